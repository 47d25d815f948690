#pragma once

#include "core/board/board.h"

#include <cstdint>
#include <functional>
#include <string>

namespace tessaly {

/// What a solver that shows its steps asks of the one who watches.
class SolverObserver {
public:
    virtual ~SolverObserver() = default;
    /// Shows a text and waits until it was read.
    virtual void message(const std::string& text) = 0;
    /// Draws the board as it stands.
    virtual void redraw() = 0;
    /// Gives the event loop a turn.
    virtual void yield() = 0;
};

/// Solves as SolveByDeduction does, but in the order 1, 2, 3, 1, 4, redrawing after every rule, and
/// stopping at a contradiction. With `debug` each step is announced; the end always is.
void DebugSolve(Board& board, bool debug, SolverObserver& observer);

/// The xcell rule step by step: tells of every xcell with three digits and of every cell that it
/// sets ("fix pair 3 at 055": digit and cell code), and redraws after every xcell.
void FixXcellPairsVerbose(Board& board, std::int32_t& counter, SolverObserver& observer);

} // namespace tessaly
