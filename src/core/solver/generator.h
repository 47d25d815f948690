#pragma once

#include "core/base/yield.h"
#include "core/board/board.h"
#include "core/board/difficulty.h"
#include "core/solver/chance.h"
#include "core/solver/search_fill.h"

#include <functional>
#include <string>

namespace tessaly {

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
