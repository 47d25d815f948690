#pragma once

#include <array>
#include <bitset>
#include <cstddef>

/// The words that all of Tessaly speaks: hexagon, side, cell, grid.
namespace tessaly {

/// The board is a patch of 19 flat-topped hexagons, numbered row by row from the top:
///
///              1
///           2     3
///        4     5     6
///           7     8
///        9    10    11
///          12    13
///       14    15    16
///          17    18
///             19
inline constexpr int HexagonCount = 19;

/// Every hexagon is cut into six cells; cell k is the wedge against side k. The sides, clockwise:
///
///             2
///          _______
///       1 / \   / \ 3
///        /   \ /   \           opposite(1) = 4
///        \   / \   /           opposite(2) = 5
///       6 \ /___\ / 4          opposite(3) = 6
///
///             5
inline constexpr int CellCount = 6;

inline constexpr int BoardCellCount = HexagonCount * CellCount;

/// A hexagon number that names no hexagon: there is no blank hexagon, or none is skipped.
inline constexpr int NoHexagon = 99;

/// The side (and the cell) across from side k.
constexpr int opposite(int side) {
    return (side + 2) % CellCount + 1;
}

constexpr bool isHexagon(int hexagon) {
    return hexagon >= 1 && hexagon <= HexagonCount;
}

/// One cell of the board: hexagon 1..19, position 1..6. The default value names no cell.
struct CellId {
    int hexagon = 0;
    int position = 0;

    /// Whether this names a cell at all.
    constexpr explicit operator bool() const { return hexagon != 0; }
    friend constexpr bool operator==(CellId, CellId) = default;
};

/// Hexagons by number, such as those to draw again.
using HexagonSet = std::bitset<HexagonCount + 1>;

/// One value for each cell, addressed [hexagon 1..19][position 1..6] or by CellId.
/// Row and column 0 exist, hold nothing, and keep the numbers of the puzzle free of "minus one".
template <class T>
class Grid {
public:
    using Row = std::array<T, CellCount + 1>;

    constexpr Row& operator[](int hexagon) { return m_rows[static_cast<std::size_t>(hexagon)]; }
    constexpr const Row& operator[](int hexagon) const {
        return m_rows[static_cast<std::size_t>(hexagon)];
    }
    constexpr T& operator[](CellId cell) {
        return (*this)[cell.hexagon][static_cast<std::size_t>(cell.position)];
    }
    constexpr const T& operator[](CellId cell) const {
        return (*this)[cell.hexagon][static_cast<std::size_t>(cell.position)];
    }

    friend constexpr bool operator==(const Grid&, const Grid&) = default;

private:
    // Not "{}": clang 14 crashes on it when T is std::string.
    std::array<Row, HexagonCount + 1> m_rows = std::array<Row, HexagonCount + 1>();
};

namespace detail {
constexpr std::array<CellId, BoardCellCount> makeAllCells() {
    std::array<CellId, BoardCellCount> cells{};
    std::size_t next = 0;
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon)
        for (int position = 1; position <= CellCount; ++position)
            cells[next++] = {hexagon, position};
    return cells;
}
} // namespace detail

/// All 114 cells, hexagon by hexagon and within each by position: the order of puzzle records.
inline constexpr std::array<CellId, BoardCellCount> AllCells = detail::makeAllCells();

} // namespace tessaly
