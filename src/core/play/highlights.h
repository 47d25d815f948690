#pragma once

#include "core/board/board.h"
#include "core/play/play_switches.h"

#include <vector>

namespace tessaly {

/// What stands out on the board. Nothing of it needs the solution, and the blank hexagon is never
/// looked at.
struct Highlights {
    struct Mark {
        CellId cell;
        char digit;
        friend bool operator==(const Mark&, const Mark&) = default;
    };

    /// The cell that is looked at, and the one across its side.
    std::vector<CellId> looked;
    /// The cells that hold the number that is looked for, or have it among their marks.
    std::vector<CellId> equal;
    /// The cells whose number stands twice in their hexagon.
    std::vector<CellId> repeated;
    /// Of each side with two different numbers the cell in the lower hexagon.
    std::vector<CellId> differing;
    /// Marks that the placed numbers rule out.
    std::vector<Mark> impossible;
};

/// What stands out while the player looks at a cell, or at none, and for a digit, or for none (0).
Highlights highlightsOf(const Board& board, const PlaySwitches& switches, CellId looked,
                        char digit = 0);

/// Whether a cell's number breaks a rule: it stands twice in its hexagon, or another one is across
/// the side.
bool breaksARule(const Board& board, CellId cell);

} // namespace tessaly
