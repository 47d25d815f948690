#pragma once

#include "core/board/difficulty.h"
#include "core/solver/chance.h"
#include "core/solver/puzzle_draft.h"

#include <array>
#include <functional>
#include <optional>

namespace tessaly {

/// The hexagons that may become the blank one.
inline constexpr std::array<int, 6> BlankHexagonChoices{7, 5, 8, 13, 15, 12};

/// The blank hexagon of a puzzle, and the hint of a hard one (0 in an easy one): a position in the
/// hexagon across that side of the blank one which faces it, and the number there.
struct BlankChoice {
    int blankHex = NoHexagon;
    int hintCell = 0;
    int hintNum = 0;
};

/// Whether a cell may hold the hint of a hard puzzle.
bool mayHoldHint(CellId cell);

/// The cell that a hint speaks of: the one at that position in the blank hexagon's neighbour that
/// touches the blank hexagon with it. No cell when there is none.
CellId hintedCell(int blankHex, int hintCell);

/// Looks for a blank hexagon among the six choices in random order, and makes it a given. Each
/// trial starts from the givens with that hexagon emptied. The cells on the rim must be given, and
/// of an easy draft rules 1 to 3 must settle every cell from its givens.
///
/// Easy: rules 1 to 3 settle every cell. Hard: they do not, and there is a cell beside the blank
/// hexagon of whose candidates only the right one lets all four rules settle the board soundly;
/// that cell becomes a given, and with it rules 1 to 3 still do not settle the board.
///
/// `beforeTrial` is told of each hexagon that is tried. No answer when none qualifies; the draft is
/// unchanged then.
std::optional<BlankChoice> chooseBlank(PuzzleDraft& draft, Difficulty difficulty, Chance& chance,
                                       const std::function<void(int hexagon)>& beforeTrial = {});

} // namespace tessaly
