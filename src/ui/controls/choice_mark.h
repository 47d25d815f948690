#pragma once

#include <QAbstractButton>

namespace tessaly {

/// The mark before the caption of a box to tick or of one option among several.
enum class ChoiceMark { Tick, Dot };

/// The room that a button with such a mark needs.
QSize choiceSize(const QAbstractButton& button);

/// Draws mark and caption so that they read on every colour of ground, a dark one included.
void drawChoice(QAbstractButton& button, ChoiceMark mark);

} // namespace tessaly
