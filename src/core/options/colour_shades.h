#pragma once

#include "core/options/colour.h"

#include <array>

namespace tessaly {

/// The sixteen classic colours: eight dark ones, then their bright sisters.
inline constexpr std::array<Colour, 16> ClassicPalette{
    RGB(0, 0, 0),       RGB(0, 0, 128),   RGB(0, 128, 0),   RGB(0, 128, 128),
    RGB(128, 0, 0),     RGB(128, 0, 128), RGB(128, 128, 0), RGB(192, 192, 192),
    RGB(128, 128, 128), RGB(0, 0, 255),   RGB(0, 255, 0),   RGB(0, 255, 255),
    RGB(255, 0, 0),     RGB(255, 0, 255), RGB(255, 255, 0), RGB(255, 255, 255),
};

/// How many steps lead from black, or from white, to a colour.
inline constexpr int ShadeSteps = 256;

/// The shade of `colour` at step `v` of the way that starts at black: 0 is black, `ShadeSteps` the
/// colour itself. Halves are rounded to even.
Colour clrBlackness(Colour colour, int v);
/// The same for the way that starts at white.
Colour clrWhiteness(Colour colour, int v);

} // namespace tessaly
