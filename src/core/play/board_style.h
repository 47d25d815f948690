#pragma once

#include "core/options/appearance.h"

namespace tessaly {

/// The colours and the border that the board is drawn with.
struct BoardStyle {
    Colour background;
    Colour border;
    /// The lines that part the cells of a hexagon.
    Colour line;
    Colour fill;
    /// The fill of the blank hexagon.
    Colour solid;
    Colour fixedNumber;
    Colour userNumber;
    /// In board units.
    double borderWidth;
    double lineWidth = 1;
    /// On paper what lies under the cells is not painted, and the blank hexagon is hatched, for a
    /// solid one would take much ink.
    bool onPaper = false;
    /// Whether the givens are bold.
    bool boldGivens = false;
};

/// Spaced hexagons have a border in the background's colour, somewhat wider than the plain one.
/// Their cells' lines and the blank hexagon keep the border colour, for in the background's they
/// would vanish.
BoardStyle boardStyle(const Appearance& appearance);

/// Black on white paper, with borders of `PrintLineWidth`, as far as they leave room for a board,
/// and givens that stand out from what is written by hand.
BoardStyle paperStyle(const Appearance& appearance);

} // namespace tessaly
