#pragma once

#include "core/board/board.h"
#include "core/solver/chance.h"

#include <array>
#include <bit>
#include <cstdint>
#include <vector>

namespace tessaly::plain {

/// Backtracking as anybody would write it first: one bit mask of used digits for each hexagon, and
/// always the place with the fewest digits left. A yardstick for the search for fillings and for
/// the counter of solutions.
class BitmaskSearch {
public:
    /// A search on the empty board.
    BitmaskSearch();
    /// A search from the givens of a board, those of its blank hexagon left out.
    explicit BitmaskSearch(const Board& board);

    /// Fills the board, each digit drawn by chance.
    bool fill(Chance& chance);
    /// How many solutions there are, at most `limit`.
    int count(int limit);

    /// The digit of a cell after `fill`.
    int digitAt(CellId cell) const { return std::countr_zero(m_bits[cell]) + 1; }

private:
    /// A cell, or the two cells of a shared side, and the hexagons in which its digit is used;
    /// hexagon 0 stands for what lies beyond the rim.
    struct Place {
        CellId cell;
        CellId across;
    };

    unsigned choices(const Place& place) const;
    void put(const Place& place, unsigned bit);
    void take(const Place& place, unsigned bit);
    /// Takes the place with the fewest choices from the open ones.
    Place takeBest();

    std::array<unsigned, HexagonCount + 1> m_used{};
    /// The digit of each cell, as a mask.
    Grid<unsigned> m_bits;
    std::vector<Place> m_open;
};

} // namespace tessaly::plain
