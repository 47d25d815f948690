#pragma once

#include "core/options/appearance.h"
#include "core/play/board_geometry.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

namespace tessaly {

/// Parallel lines that rise to the right at 45 degrees through a hexagon, from border to border,
/// one of them through its centre.
std::vector<std::pair<Point, Point>> hatchLines(int hexagon);

/// Pencil marks stand in two rows of three places:
///
///     0 1 2
///     3 4 5
inline constexpr int MarkPlaces = 6;
inline constexpr int MarksInARow = 3;

/// Calls `onNumber(digit)` for an entry that is a placed number, and otherwise `onMark(digit,
/// place)` for each of its pencil marks. Marks fill the places from the last one backwards, so that
/// the one typed last stands in the lower right place.
template <class OnNumber, class OnMark>
void layOutEntry(std::string_view entry, OnNumber onNumber, OnMark onMark) {
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    if (entry.size() == 1 && isDigit(entry[0])) {
        onNumber(entry[0] - '0');
        return;
    }
    const int count = std::min(static_cast<int>(entry.size()), MarkPlaces);
    for (int i = 0; i < count; ++i)
        if (const char c = entry[static_cast<std::size_t>(i)]; isDigit(c))
            onMark(c - '0', MarkPlaces - count + i);
}

/// The colours and the border that the board is drawn with.
struct BoardStyle {
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
    /// How much larger numbers are than usual.
    double numberScale = 1;
    /// Whether anything is painted under the cells.
    bool isFilled = true;
    /// On paper what lies under the cells is not painted, and the blank hexagon is hatched, for a
    /// solid one would take much ink.
    bool onPaper = false;
};

/// Spaced hexagons have a border in the background's colour, somewhat wider than the plain one.
/// Their cells' lines and the blank hexagon keep the border colour, for in the background's they
/// would vanish.
BoardStyle boardStyle(const Appearance& appearance);

/// The colour of the solution's numbers, and that of the marker about the selected cell: the
/// scheme's own where they are seen on a hexagon, else black or white.
Colour solutionColour(const Appearance& appearance);
Colour markerColour(const Appearance& appearance);

/// Black on white paper, with borders of `PrintLineWidth`, as far as they leave room for a board;
/// for eyes that see less, with larger numbers and wider lines.
BoardStyle paperStyle(const Appearance& appearance, bool large = false);

} // namespace tessaly
