#pragma once

#include "core/board/tables.h"
#include "core/board/vocabulary.h"

#include <array>

/// Where everything on the board picture lies. One board unit is a pixel at 96 dpi; x runs to the
/// right and y down from the picture's upper left corner. Nothing here knows a window: whoever
/// shows the board scales it, and takes pointer positions back through the same transform.
namespace tessaly {

struct Point {
    double x = 0;
    double y = 0;

    friend constexpr Point operator+(Point a, Point b) { return {a.x + b.x, a.y + b.y}; }
    friend constexpr bool operator==(Point, Point) = default;
};

struct Rect {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;

    constexpr double width() const { return right - left; }
    constexpr double height() const { return bottom - top; }
    constexpr Point centre() const { return {(left + right) / 2, (top + bottom) / 2}; }
    /// Bounds included on all four sides.
    constexpr bool contains(Point p) const {
        return p.x >= left && p.x <= right && p.y >= top && p.y <= bottom;
    }
    friend constexpr bool operator==(const Rect&, const Rect&) = default;
};

/// A rectangle of the given size about `centre`.
constexpr Rect rectAbout(Point centre, double width, double height) {
    return {centre.x - width / 2, centre.y - height / 2, centre.x + width / 2,
            centre.y + height / 2};
}

/// The size of the board picture.
inline constexpr double PictureWidth = 506;
inline constexpr double PictureHeight = 476;

inline constexpr double TwipsPerUnit = 15;
inline constexpr double PointsPerUnit = 72.0 / 96.0;

/// Half a hexagon's height and a hexagon's side (which is half its width):
///
///           1_______2        corner 0 is the template's origin;
///           /       \        corners run clockwise
///        0 /         \ 3
///          \         /       0 to 3: 2 * HexagonSide
///           \_______/        1 to 5: 2 * HalfHeight
///           5       4
inline constexpr double HalfHeight = 660 / TwipsPerUnit;
inline constexpr double HexagonSide = 810 / TwipsPerUnit;

/// Text sizes: of a number, and of a pencil mark.
inline constexpr double NumberSize = 16 / PointsPerUnit;
inline constexpr double MarkSize = 8 / PointsPerUnit;

/// The circle that marks the selected cell.
inline constexpr double MarkerDiameter = 26;
/// The tag with a hexagon's number in its centre.
inline constexpr double TagWidth = 20;
inline constexpr double TagHeight = 16;

namespace detail {

/// The nearest whole number, halves to the even one.
constexpr double roundHalfToEven(double value) {
    const auto towardsZero = static_cast<long>(value);
    const long below = towardsZero - (value < static_cast<double>(towardsZero) ? 1 : 0);
    const double over = value - static_cast<double>(below);
    const bool up = over > 0.5 || (over == 0.5 && below % 2 != 0);
    return static_cast<double>(below + (up ? 1 : 0));
}

constexpr Point rounded(Point p) {
    return {roundHalfToEven(p.x), roundHalfToEven(p.y)};
}

/// Column 1..5 and half-row 0..8 of a hexagon; two half-rows are a hexagon's height.
struct Place {
    int column;
    int halfRow;
};

inline constexpr std::array<Place, HexagonCount + 1> Places{{
    {0, 0},                 // no hexagon
    {3, 0},                 //        1
    {2, 1}, {4, 1},         //     2     3
    {1, 2}, {3, 2}, {5, 2}, //  4     5     6
    {2, 3}, {4, 3},         //     7     8
    {1, 4}, {3, 4}, {5, 4}, //  9    10    11
    {2, 5}, {4, 5},         //    12    13
    {1, 6}, {3, 6}, {5, 6}, // 14    15    16
    {2, 7}, {4, 7},         //    17    18
    {3, 8},                 //       19
}};

} // namespace detail

/// The corners of a hexagon relative to its left corner, clockwise.
inline constexpr std::array<Point, CellCount> CornerTemplate{{
    {0, 0},
    detail::rounded({HexagonSide / 2, -HalfHeight}),
    detail::rounded({3 * HexagonSide / 2, -HalfHeight}),
    detail::rounded({2 * HexagonSide, 0}),
    detail::rounded({3 * HexagonSide / 2, HalfHeight}),
    detail::rounded({HexagonSide / 2, HalfHeight}),
}};

/// The point that a hexagon's drawing starts from, right of and below its centre.
constexpr Point anchorOf(int hexagon) {
    constexpr Point First{4200 / TwipsPerUnit, 1584 / TwipsPerUnit};
    const auto [column, halfRow] = detail::Places[static_cast<std::size_t>(hexagon)];
    return First + Point{(column - 3) * 1.5 * HexagonSide, halfRow * HalfHeight};
}

/// The corners of a hexagon as it is drawn, from the left one clockwise. Side k of the hexagon runs
/// from corner k - 1 to corner k (mod 6).
constexpr std::array<Point, CellCount> hexagonCorners(int hexagon) {
    const Point anchor = detail::rounded(anchorOf(hexagon));
    std::array<Point, CellCount> corners{};
    for (std::size_t i = 0; i < corners.size(); ++i)
        corners[i] =
            detail::rounded(Point{-1.5 * HexagonSide, -HalfHeight} + CornerTemplate[i] + anchor);
    return corners;
}

/// The smallest rectangle about a hexagon's corners; its border reaches half its width further.
constexpr Rect hexagonBounds(int hexagon) {
    const auto corners = hexagonCorners(hexagon);
    return {corners[0].x, corners[1].y, corners[3].x, corners[4].y};
}

constexpr Point hexagonCentre(int hexagon) {
    return hexagonBounds(hexagon).centre();
}

/// The corners of a cell's triangle: the hexagon's centre, then the two ends of the cell's side.
constexpr std::array<Point, 3> cellTriangle(CellId cell) {
    const auto corners = hexagonCorners(cell.hexagon);
    const auto side = static_cast<std::size_t>(cell.position);
    return {hexagonCentre(cell.hexagon), corners[side - 1], corners[side % CellCount]};
}

/// The triangles of the even cells stand on their tip. What is written in them is lifted by this
/// much, for the text positions lie lower there than the triangle's middle.
inline constexpr double EvenCellLift = 75 / TwipsPerUnit;

constexpr bool standsOnItsTip(CellId cell) {
    return cell.position % 2 == 0;
}

/// Where a cell's text goes, before the lift of the even cells.
constexpr Point textPosition(CellId cell) {
    const auto [a, b, c] = cellTriangle(cell);
    return {(a.x + b.x + c.x) / 3,
            (a.y + b.y + c.y) / 3 + (standsOnItsTip(cell) ? EvenCellLift : 0)};
}

/// The centroid of a cell's triangle: a number stands centred on it.
constexpr Point numberCentre(CellId cell) {
    return textPosition(cell) + Point{0, standsOnItsTip(cell) ? -EvenCellLift : 0};
}

/// Where the two rows of pencil marks stand centred: nearer to the triangle's level side, so that
/// the row towards the tip keeps clear of the slanted lines.
constexpr Point marksCentre(CellId cell) {
    constexpr double TowardsLevelSide = 1.5;
    return numberCentre(cell) +
           Point{0, standsOnItsTip(cell) ? -TowardsLevelSide : TowardsLevelSide};
}

/// The rectangle that answers the pointer for a cell: as high as the cell's triangle and half as
/// wide. Three quarters of the triangle lie in it, and a wider one would take more from a neighbour
/// than it gives. Together the rectangles cover the board without a gap:
///
///         _______            ___________
///        / \ 2 / \          |   |   |   |
///       / 1 \ / 3 \         | 1 | 2 | 3 |
///      /_____V_____\        |___|___|___|
///
constexpr Rect hitRectangle(CellId cell) {
    const bool upperHalf = cell.position <= CellCount / 2;
    const Point middle{numberCentre(cell).x,
                       hexagonCentre(cell.hexagon).y + (upperHalf ? -0.5 : 0.5) * HalfHeight};
    return rectAbout(middle, HexagonSide / 2, HalfHeight);
}

/// The cell whose hit rectangle holds the point; where rectangles meet, the lower hexagon and in it
/// the lower position has it. No cell when the point lies in none.
CellId cellAt(Point point);

/// Where the selection marker stands when a cell is selected.
constexpr Rect markerRectangle(CellId cell) {
    return rectAbout(numberCentre(cell), MarkerDiameter, MarkerDiameter);
}

constexpr Rect tagRectangle(int hexagon) {
    return rectAbout(hexagonCentre(hexagon), TagWidth, TagHeight);
}

namespace detail {

constexpr bool near(double a, double b) {
    return a - b < 1e-9 && b - a < 1e-9;
}

/// Side k of a hexagon and the side across it are one and the same line.
constexpr bool neighboursShareTheirSides() {
    for (CellId cell : AllCells) {
        const CellId across = SideLink[cell];
        if (!across)
            continue;
        const auto mine = cellTriangle(cell);
        const auto theirs = cellTriangle(across);
        if (mine[1] != theirs[2] || mine[2] != theirs[1])
            return false;
    }
    return true;
}

} // namespace detail

static_assert(detail::neighboursShareTheirSides());
static_assert(detail::near(hexagonBounds(4).left, PictureWidth - hexagonBounds(6).right) &&
                  detail::near(hexagonBounds(1).top, PictureHeight - hexagonBounds(19).bottom),
              "the board stands in the middle of its picture");

} // namespace tessaly
