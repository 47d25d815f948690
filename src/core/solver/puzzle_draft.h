#pragma once

#include "core/board/board.h"
#include "core/board/digit_set.h"
#include "core/solver/hexagon_word.h"

namespace tessaly {

/// A puzzle while it is being made: its solution and which cells are given.
class PuzzleDraft {
public:
    /// A draft of a filling, with the givens that every puzzle starts from: the cells on the rim
    /// and those that the removal plan names.
    explicit PuzzleDraft(const HexagonWords& solution);
    /// The draft of a board's solution and givens.
    explicit PuzzleDraft(const Board& board);

    HexagonWord solution(int hexagon) const { return m_solution[index(hexagon)]; }
    int solutionDigit(CellId cell) const {
        return DigitSet::fromBits(word::byteAt(solution(cell.hexagon), cell.position)).first();
    }

    bool isGiven(CellId cell) const {
        return word::byteAt(m_given[index(cell.hexagon)], cell.position) != 0;
    }
    void give(CellId cell) { m_given[index(cell.hexagon)] |= word::maskOf(cell.position); }
    void withdraw(CellId cell) { m_given[index(cell.hexagon)] &= ~word::maskOf(cell.position); }
    /// The givens of a hexagon, 0xFF in the byte of each.
    HexagonWord givenMask(int hexagon) const { return m_given[index(hexagon)]; }
    void giveHexagon(int hexagon) { m_given[index(hexagon)] = word::repeat(0xFF); }

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
