#pragma once

#include "core/base/yield.h"
#include "core/board/board.h"
#include "core/board/digit_set.h"
#include "core/board/vocabulary.h"
#include "core/solver/chance.h"
#include "core/solver/packed_board.h"
#include "core/solver/search_fill.h"

#include <array>
#include <functional>
#include <span>
#include <string>

namespace tessaly {

/// Cells that lose their given together; the second is no cell when there is only one.
struct RemovalEntry {
    CellId first;
    CellId second;
};

/// The inner givens that the generator tries to do without, in this order.
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

/// The hexagons that may become the blank one.
inline constexpr std::array<int, 6> BlankHexagonChoices{7, 5, 8, 13, 15, 12};

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

/// What a generator tells the one who watches. Callbacks that are absent cost nothing; the board is
/// up to date where one is called, as far as it is drawn.
struct CreationObserver {
    Yield yield;
    /// Draws a hexagon, whose entries changed.
    std::function<void(int hexagon)> redraw;
    /// Shows a text in the message line.
    std::function<void(const std::string& text)> message;
};

/// Draws the difficulty when it is left to chance: easy and hard alike.
Difficulty drawDifficulty(DifficultyChoice choice, Chance& chance);

/// Makes a new puzzle on a board: solution, givens, blank hexagon, difficulty and hint; the entries
/// end at the givens.
///
///     Board board;
///     Chance chance(Chance::freshSeed());
///     const SearchFill fill(arrangementsOf(table));
///     CreatePuzzle(board, drawDifficulty(choice, chance), chance, fill);
///
/// A board, a chance and a fill of the same kind give the same puzzle, watched or not.
void CreatePuzzle(Board& board, Difficulty difficulty, Chance& chance, const SearchFill& fill,
                  const CreationObserver& observer = {});

/// Chooses the blank hexagon (and the hint) of a board that holds a solution and givens; false when
/// no hexagon qualifies. Whether or not, the board ends at its givens.
bool ChooseBlankHexagon(Board& board, Difficulty difficulty, Chance& chance,
                        const CreationObserver& observer = {});

} // namespace tessaly
