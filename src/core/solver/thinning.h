#pragma once

#include "core/board/difficulty.h"
#include "core/solver/puzzle_draft.h"

#include <functional>

namespace tessaly {

/// What is known of a fresh draft at once.
enum class Prospect {
    /// No blank hexagon can make a puzzle of the difficulty, whatever givens are withdrawn.
    Hopeless,
    /// The four rules do not settle the board from its givens: none of them can be withdrawn.
    Unsolvable,
    Solvable,
};

Prospect prospectOf(const PuzzleDraft& draft, Difficulty difficulty);

/// Withdraws each entry of the removal plan in turn that the four rules can do without, and in the
/// end the cells that are never given. `afterEntry` is called after each entry.
void thinGivens(PuzzleDraft& draft, Prospect prospect,
                const std::function<void()>& afterEntry = {});

} // namespace tessaly
