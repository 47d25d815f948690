#pragma once

#include "core/options/colour.h"

#include <array>
#include <string>

namespace tessaly {

/// The sixteen classic colours: eight dark ones, then their bright sisters.
inline constexpr std::array<Colour, 16> ClassicPalette{
    RGB(0, 0, 0),       RGB(0, 0, 128),   RGB(0, 128, 0),   RGB(0, 128, 128),
    RGB(128, 0, 0),     RGB(128, 0, 128), RGB(128, 128, 0), RGB(192, 192, 192),
    RGB(128, 128, 128), RGB(0, 0, 255),   RGB(0, 255, 0),   RGB(0, 255, 255),
    RGB(255, 0, 0),     RGB(255, 0, 255), RGB(255, 255, 0), RGB(255, 255, 255),
};

/// What they are called.
inline constexpr std::array<const char*, 16> ClassicNames{
    "black", "navy", "green", "teal", "maroon", "purple",  "olive",  "silver",
    "grey",  "blue", "lime",  "aqua", "red",    "fuchsia", "yellow", "white",
};

/// How many steps lead from black, or from white, to a colour.
inline constexpr int ShadeSteps = 256;

/// The shade of `colour` at step `v` of the way that starts at black: 0 is black, `ShadeSteps` the
/// colour itself. Halves are rounded to even.
Colour clrBlackness(Colour colour, int v);
/// The same for the way that starts at white.
Colour clrWhiteness(Colour colour, int v);

/// What the colour picker's surface shows, in units of its own: a column of one unit for each shade
/// across, and about five to a pixel down.
///
///      10                         267
///     +---------------------------------+
///     |  [ 0]   [ 1]   [ 2]   [ 3]      |    30   the classic colours,
///     |  [ 4]   [ 5]   [ 6]   [ 7]      |   255   each box 55 by 200
///     |  [ 8]   [ 9]   [10]   [11]      |   480
///     |  [12]   [13]   [14]   [15]      |   705
///     |  [black  . . . . . .  colour]   |   950   shades down to black
///     |  [white  . . . . . .  colour]   |  1175   shades up to white
///     +---------------------------------+
namespace colour_surface {

inline constexpr int Width = 277;
inline constexpr int Height = 1405;
inline constexpr int Rows = 6;
inline constexpr int PaletteRows = 4;
inline constexpr int PaletteColumns = 4;
/// From here on downwards a pick is one of a shade.
inline constexpr int RampsTop = 900;

struct Box {
    int left;
    int top;
    int width;
    int height;

    constexpr bool contains(double x, double y) const {
        return x >= left && x < left + width && y >= top && y < top + height;
    }
};

/// A box of the palette, by its number of 0 to 15.
constexpr Box paletteBox(int index) {
    return {10 + 65 * (index % PaletteColumns), 30 + 225 * (index / PaletteColumns), 55, 200};
}
/// The line of step `v`, 0 to `ShadeSteps`, in a ramp.
constexpr Box blackLine(int v) {
    return {10 + v, 950, 1, 200};
}
constexpr Box whiteLine(int v) {
    return {10 + v, 1175, 1, 200};
}

/// The colour that the surface shows at a point, its ramps being those of `rampColour`.
Colour colourAt(double x, double y, Colour rampColour, Colour background);

/// A place that the keys can reach: a box of the palette, or a shade in a ramp.
struct Place {
    /// 0 to 3 for the palette, 4 for the black ramp, 5 for the white one.
    int row = 0;
    /// 0 to 3 in the palette, 0 to `ShadeSteps` in a ramp.
    int column = 0;

    friend bool operator==(const Place&, const Place&) = default;
};

/// The places one after the other, row by row.
inline constexpr int PlaceCount = PaletteRows * PaletteColumns + 2 * (ShadeSteps + 1);
int indexOf(Place place);
Place placeAt(int index);
/// What stands there, in words; the ramps are those of `rampColour`.
std::string nameOf(Place place, Colour rampColour);

Box boxOf(Place place);
/// The place `columns` to the right and `rows` down, as far as there is one. In a ramp a column is
/// a step of 8 shades; from one kind of row to the other the way leads straight down or up.
Place moved(Place place, int columns, int rows);

} // namespace colour_surface

} // namespace tessaly
