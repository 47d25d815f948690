#include "core/options/colour_surface.h"

#include <algorithm>
#include <cmath>

namespace tessaly {
namespace {

template <class Shade>
Colour shaded(Colour colour, Shade shade) {
    const auto channel = [&shade](int value) {
        return static_cast<int>(std::lrint(shade(static_cast<float>(value))));
    };
    return RGB(channel(RedOf(colour)), channel(GreenOf(colour)), channel(BlueOf(colour)));
}

} // namespace

Colour clrBlackness(Colour colour, int v) {
    const float f = static_cast<float>(v) / ShadeSteps;
    return shaded(colour, [f](float channel) { return channel * f; });
}

Colour clrWhiteness(Colour colour, int v) {
    constexpr float Full = 255;
    const float f = static_cast<float>(ShadeSteps - v) / ShadeSteps;
    return shaded(colour, [f](float channel) { return channel + f * (Full - channel); });
}

namespace colour_surface {
namespace {

constexpr int ShadesInAStep = 8;
/// How many shades stand under one column of the palette.
constexpr int ShadesInAColumn = ShadeSteps / PaletteColumns;

bool isRamp(int row) {
    return row >= PaletteRows;
}

} // namespace

Colour colourAt(double x, double y, Colour rampColour, Colour background) {
    for (int index = 0; index < static_cast<int>(ClassicPalette.size()); ++index)
        if (paletteBox(index).contains(x, y))
            return ClassicPalette[static_cast<std::size_t>(index)];
    const int v = static_cast<int>(std::floor(x)) - blackLine(0).left;
    if (v < 0 || v > ShadeSteps)
        return background;
    if (blackLine(v).contains(x, y))
        return clrBlackness(rampColour, v);
    if (whiteLine(v).contains(x, y))
        return clrWhiteness(rampColour, v);
    return background;
}

int indexOf(Place place) {
    constexpr int FirstShade = PaletteRows * PaletteColumns;
    return isRamp(place.row)
               ? FirstShade + (place.row - PaletteRows) * (ShadeSteps + 1) + place.column
               : place.row * PaletteColumns + place.column;
}

Place placeAt(int index) {
    const int shade = index - PaletteRows * PaletteColumns;
    return shade < 0 ? Place{index / PaletteColumns, index % PaletteColumns}
                     : Place{PaletteRows + shade / (ShadeSteps + 1), shade % (ShadeSteps + 1)};
}

std::string nameOf(Place place, Colour rampColour) {
    if (!isRamp(place.row))
        return ClassicNames[static_cast<std::size_t>(indexOf(place))];
    const bool fromBlack = place.row == PaletteRows;
    const Colour colour =
        fromBlack ? clrBlackness(rampColour, place.column) : clrWhiteness(rampColour, place.column);
    return std::string(fromBlack ? "darker" : "lighter") + ": red " +
           std::to_string(RedOf(colour)) + ", green " + std::to_string(GreenOf(colour)) +
           ", blue " + std::to_string(BlueOf(colour));
}

Box boxOf(Place place) {
    if (!isRamp(place.row))
        return paletteBox(place.row * PaletteColumns + place.column);
    return place.row == PaletteRows ? blackLine(place.column) : whiteLine(place.column);
}

Place moved(Place place, int columns, int rows) {
    const int row = std::clamp(place.row + rows, 0, Rows - 1);
    int column = place.column;
    if (isRamp(row) && !isRamp(place.row))
        column = column * ShadesInAColumn + ShadesInAColumn / 2;
    else if (!isRamp(row) && isRamp(place.row))
        column = std::min(column / ShadesInAColumn, PaletteColumns - 1);
    const int last = isRamp(row) ? ShadeSteps : PaletteColumns - 1;
    const int step = isRamp(row) ? ShadesInAStep : 1;
    return {row, std::clamp(column + columns * step, 0, last)};
}

} // namespace colour_surface

} // namespace tessaly
