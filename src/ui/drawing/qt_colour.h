#pragma once

#include "core/options/colour.h"

#include <QColor>

namespace tessaly {

QColor toQColor(Colour colour);
/// The packed form of `colour`; how transparent it is gets lost.
Colour toColour(const QColor& colour);

/// `from` mixed with `to`: 0 gives `from`, 1 gives `to`.
QColor blended(const QColor& from, const QColor& to, double amount);

/// Black or white, whichever reads better on `background`.
QColor readableOn(const QColor& background);
/// The same, faded as far as it still reads: text of what cannot be used now.
QColor fadedOn(const QColor& background);

} // namespace tessaly
