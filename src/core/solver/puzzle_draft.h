#pragma once

#include "core/board/board.h"
#include "core/board/vocabulary.h"
#include "core/solver/packed_board.h"
#include "core/solver/side_rules.h"

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

/// A set of cells: for each position a plane of the hexagons, in both halves of its word.
class CellSet {
public:
    constexpr bool contains(CellId cell) const {
        return (m_words[planes::sideIndex(cell)] & planes::hexagonBit(cell.hexagon)) != 0;
    }
    constexpr void add(CellId cell) { m_words[planes::sideIndex(cell)] |= bitsOf(cell.hexagon); }
    constexpr void remove(CellId cell) {
        m_words[planes::sideIndex(cell)] &= ~bitsOf(cell.hexagon);
    }
    constexpr void removeHexagon(int hexagon) {
        for (planes::Word& word : m_words)
            word &= ~bitsOf(hexagon);
    }

    /// The sides that have a cell of the set.
    SideSet sides() const {
        std::array<planes::Word, SideDirections> words{};
        for (std::size_t here = 0; here < SideDirections; ++here) {
            const std::size_t across = here + SideDirections;
            words[here] = m_words[here] | planes::shifted(m_words[across], planes::Step[across]);
        }
        return SideSet(words) & SideSet::all();
    }

private:
    static constexpr planes::Word bitsOf(int hexagon) {
        return planes::inBothHalves(planes::hexagonBit(hexagon));
    }

    std::array<planes::Word, CellCount> m_words{};
};

/// A puzzle while it is being made: its solution and which cells are given.
class PuzzleDraft {
public:
    /// A draft of a filling, with the givens that every puzzle starts from: the cells on the rim
    /// and those that the removal plan names.
    explicit PuzzleDraft(const HexagonWords& solution);
    /// The draft of a board's solution and givens.
    explicit PuzzleDraft(const Board& board);

    int solutionDigit(CellId cell) const;

    bool isGiven(CellId cell) const { return m_given.contains(cell); }
    bool givesWholeRim() const;
    void give(CellId cell) { m_given.add(cell); }
    void withdraw(CellId cell) { m_given.remove(cell); }
    void giveHexagon(int hexagon) {
        for (int position = 1; position <= CellCount; ++position)
            give({hexagon, position});
    }

    /// The board at its givens.
    HexagonWords givens() const { return solutionAt(m_given); }
    /// The board at its givens, with a hexagon emptied.
    HexagonWords givensWithout(int hexagon) const { return solutionAt(givenWithout(hexagon)); }
    /// The solution with both cells of some sides emptied.
    HexagonWords solutionWithout(const SideSet& sides) const;

    /// The rules at the givens, for as long as the draft lives.
    SideRules rules() const { return rulesWithout(SideSet()); }
    /// The same with more sides open than the givens leave.
    SideRules rulesWithout(const SideSet& sides) const {
        return {m_sides, (SideSet::all() - m_given.sides()) | sides};
    }
    /// The same with a hexagon emptied.
    SideRules rulesWithout(int hexagon) const {
        return {m_sides, SideSet::all() - givenWithout(hexagon).sides()};
    }

    /// Writes solution and givens onto a board, whose entries end at the givens.
    void writeTo(Board& board) const;

private:
    CellSet givenWithout(int hexagon) const {
        CellSet given = m_given;
        given.removeHexagon(hexagon);
        return given;
    }
    HexagonWords solutionAt(const CellSet& cells) const;

    HexagonWords m_solution{};
    SideDigits m_sides{};
    CellSet m_given;
};

} // namespace tessaly
