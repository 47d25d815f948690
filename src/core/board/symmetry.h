#pragma once

#include "core/board/tables.h"

#include <array>

namespace tessaly {

/// A way to turn or mirror the board onto itself: where each hexagon and each position goes.
struct Symmetry {
    /// By hexagon 1..19; index 0 is not used.
    std::array<int, HexagonCount + 1> hexagons;
    /// By position 1..6; index 0 is not used.
    std::array<int, CellCount + 1> positions;

    constexpr int hexagon(int from) const { return hexagons[static_cast<std::size_t>(from)]; }
    constexpr int position(int from) const { return positions[static_cast<std::size_t>(from)]; }
    constexpr CellId cell(CellId from) const {
        return {hexagon(from.hexagon), position(from.position)};
    }
};

namespace symmetry {

/// Top and bottom change places; hexagons 9, 10 and 11 stay.
inline constexpr Symmetry TopBottom{
    {0, 19, 17, 18, 14, 15, 16, 12, 13, 9, 10, 11, 7, 8, 4, 5, 6, 2, 3, 1},
    {0, 6, 5, 4, 3, 2, 1},
};
/// Left and right change places; hexagons 1, 5, 10, 15 and 19 stay.
inline constexpr Symmetry LeftRight{
    {0, 1, 3, 2, 6, 5, 4, 8, 7, 11, 10, 9, 13, 12, 16, 15, 14, 18, 17, 19},
    {0, 3, 2, 1, 6, 5, 4},
};
/// The mirror stands on the diagonal that rises from hexagon 14 to hexagon 6.
inline constexpr Symmetry Rising{
    {0, 16, 18, 11, 19, 13, 6, 15, 8, 17, 10, 3, 12, 5, 14, 7, 1, 9, 2, 4},
    {0, 5, 4, 3, 2, 1, 6},
};
/// The mirror stands on the diagonal that falls from hexagon 4 to hexagon 16.
inline constexpr Symmetry Falling{
    {0, 14, 9, 17, 4, 12, 19, 7, 15, 2, 10, 18, 5, 13, 1, 8, 16, 3, 11, 6},
    {0, 1, 6, 5, 4, 3, 2},
};
/// A sixth of a turn clockwise about hexagon 10.
inline constexpr Symmetry Turn{
    {0, 6, 3, 11, 1, 8, 16, 5, 13, 2, 10, 18, 7, 15, 4, 12, 19, 9, 17, 14},
    {0, 2, 3, 4, 5, 6, 1},
};

/// One symmetry after another.
constexpr Symmetry after(const Symmetry& second, const Symmetry& first) {
    Symmetry both = first;
    for (int& hexagon : both.hexagons)
        hexagon = second.hexagon(hexagon);
    for (int& position : both.positions)
        position = second.position(position);
    return both;
}

constexpr std::array<Symmetry, 12> makeAll() {
    std::array<Symmetry, 12> all{LeftRight, after(LeftRight, LeftRight)};
    for (std::size_t i = 2; i < all.size(); ++i)
        all[i] = after(Turn, all[i - 2]);
    return all;
}
/// All that there are: the six turns, each with and without a mirror; the second changes nothing.
inline constexpr std::array<Symmetry, 12> All = makeAll();

} // namespace symmetry

namespace detail {

/// Whether cells that face each other still do afterwards, which the cells on the rim cannot hide:
/// an image without a cell across must come from one without.
constexpr bool keepsNeighbours(const Symmetry& symmetry) {
    for (CellId cell : AllCells) {
        const CellId across = SideLink[cell];
        const CellId expected = across ? symmetry.cell(across) : CellId{};
        if (SideLink[symmetry.cell(cell)] != expected)
            return false;
    }
    return true;
}

constexpr bool isIdentityAfter(const Symmetry& symmetry, int times) {
    for (CellId cell : AllCells) {
        CellId image = cell;
        for (int i = 0; i < times; ++i)
            image = symmetry.cell(image);
        if (image != cell)
            return false;
    }
    return true;
}

constexpr bool isMirror(const Symmetry& symmetry) {
    return keepsNeighbours(symmetry) && isIdentityAfter(symmetry, 2);
}

} // namespace detail

static_assert(detail::isMirror(symmetry::TopBottom) && detail::isMirror(symmetry::LeftRight));
static_assert(detail::isMirror(symmetry::Rising) && detail::isMirror(symmetry::Falling));
static_assert(detail::keepsNeighbours(symmetry::Turn));
static_assert(detail::isIdentityAfter(symmetry::Turn, 6));
static_assert(!detail::isIdentityAfter(symmetry::Turn, 3));

} // namespace tessaly
