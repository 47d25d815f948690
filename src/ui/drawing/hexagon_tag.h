#pragma once

#include "core/board/board.h"
#include "core/options/appearance.h"

#include <QRectF>

class QPainter;

namespace tessaly {

/// How a tag looks under the pointer.
enum class TagState { Plain, Hovered, Pressed };

/// Draws the tag in the middle of a hexagon, with the hexagon's number, into `area`. Its text grows
/// with the area, which on a board in board units is the hexagon's `tagRectangle`.
void drawTag(QPainter& painter, const QRectF& area, int hexagon, const Appearance& appearance,
             TagState state = TagState::Plain);

/// Draws the tags of all hexagons but the blank one with a painter in board units.
void drawTags(QPainter& painter, const Board& board, const Appearance& appearance);

} // namespace tessaly
