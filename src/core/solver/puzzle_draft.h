#pragma once

#include "core/board/board.h"
#include "core/board/vocabulary.h"
#include "core/solver/packed_board.h"

#include <array>

namespace tessaly {

/// Cells that lose their given together; the second is no cell when there is only one.
struct RemovalEntry {
    CellId first;
    CellId second;
};

/// The inner givens that a puzzle starts from; the generator tries to do without them in this
/// order.
inline constexpr std::array<RemovalEntry, 8> RemovalPlan{{
    {{7, 4}, {}},
    {{5, 5}, {}},
    {{8, 6}, {}},
    {{12, 3}, {}},
    {{13, 1}, {}},
    {{15, 2}, {}},
    {{1, 5}, {5, 2}},
    {{15, 5}, {19, 2}},
}};

/// The cells that are never given in a puzzle, and therefore never hold its hint either.
inline constexpr std::array<CellId, 2> NeverGiven{{{19, 2}, {1, 5}}};

/// A puzzle while it is being made: its solution and which cells are given.
class PuzzleDraft {
public:
    /// A draft of a filling, with the givens that every puzzle starts from: the cells on the rim
    /// and those that the removal plan names.
    explicit PuzzleDraft(const HexagonWords& solution);
    /// The draft of a board's solution and givens.
    explicit PuzzleDraft(const Board& board);

    int solutionDigit(CellId cell) const;

    bool isGiven(CellId cell) const {
        return word::byteAt(m_given[index(cell.hexagon)], cell.position) != 0;
    }
    void give(CellId cell) { m_given[index(cell.hexagon)] |= word::maskOf(cell.position); }
    void withdraw(CellId cell) { m_given[index(cell.hexagon)] &= ~word::maskOf(cell.position); }
    void giveHexagon(int hexagon) { m_given[index(hexagon)] = word::repeat(0xFF); }
    /// The givens of a hexagon, 0xFF in the byte of each.
    HexagonWord givenMask(int hexagon) const { return m_given[index(hexagon)]; }

    /// The board at its givens.
    HexagonWords givens() const;
    /// The board at its givens, with a hexagon emptied.
    HexagonWords givensWithout(int hexagon) const;

    /// Writes solution and givens onto a board, whose entries end at the givens.
    void writeTo(Board& board) const;

private:
    static constexpr std::size_t index(int hexagon) { return static_cast<std::size_t>(hexagon); }

    HexagonWords m_solution{};
    /// 0xFF in the byte of each given.
    HexagonWords m_given{};
};

} // namespace tessaly
