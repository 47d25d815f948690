// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "options/colour.h"

#include <array>
#include <string>

namespace tessaly {

/// The colours of a scheme by slot; slot 13 is never used.
using SchemeColours = std::array<Colour, 14>;

/// The slots that have a role of their own.
namespace slot {
inline constexpr std::size_t Background = 2;
inline constexpr std::size_t Menu = 3;
inline constexpr std::size_t Button = 4;
inline constexpr std::size_t Accent = 5;
inline constexpr std::size_t DarkRed = 9;
inline constexpr std::size_t Red = 10;
inline constexpr std::size_t Green = 11;
inline constexpr std::size_t LightGreen = 12;
} // namespace slot

/// How the board and the windows look: the scheme in force and the user's own settings.
struct Appearance {
    std::string ActiveScheme = "xp.col";
    tessaly::SchemeColours SchemeColours{};
    std::string NumberFont = "Arial";
    Colour FixedNumberColour = Black;
    Colour UserNumberColour = RGB(128, 0, 0);
    Colour HexaBorderColour = Black;
    Colour HexaFillColour = RGB(240, 240, 240);
    /// Width of the hexagons' border, 1 to 5 board units.
    int HexaBorderWidth = 2;
    /// Width of the border lines in printed puzzles, at least 1.
    int PrintLineWidth = 2;
    /// Whether the hexagons are drawn spaced apart.
    bool SplitHexas = false;
    /// Whether the number in the centre of a hexagon has a border around it.
    bool NumBorder = false;

    friend bool operator==(const Appearance&, const Appearance&) = default;
};

/// Black or white, whichever reads better on `background` (contrast ratio of WCAG 2,
/// section 1.4.3).
Colour readableOn(Colour background);

} // namespace tessaly
