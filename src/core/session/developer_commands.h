#pragma once

#include "core/base/prompts.h"
#include "core/board/board.h"
#include "core/play/display.h"
#include "core/session/session.h"

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

/// The developer's commands on the puzzle in play.
class DeveloperCommands : private SolverObserver {
public:
    DeveloperCommands(Session& session, Display& display, Prompts& prompts);

    /// Solves the puzzle rule by rule, with a message before each step when `debug` is on.
    void solveInSteps(bool debug);
    /// Applies the xcell rule once and tells what it finds.
    void applyXcellRule();
    /// Tells the hint of the puzzle. With `carryOut` it then plants the hint, solves by deduction,
    /// and tells when that does not lead to a sound board.
    void autoSolveHard(bool carryOut);
    /// Tells which cells are empty and which hexagons hold a number twice.
    void checkCells();
    /// Asks for a cell and an entry and enters it, givens included.
    void setManualValue();

private:
    void solveWithHint();
    void message(const std::string& text) override;
    void redraw() override;
    void yield() override;

    Session& m_session;
    Display& m_display;
    Prompts& m_prompts;
};

/// The blank hexagon and the hint of a board as developers read them: "12,4,3".
std::string developerText(const Board& board);

} // namespace tessaly
