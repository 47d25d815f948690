#pragma once

#include "core/play/display.h"
#include "core/session/session.h"
#include "core/solver/debug_solve.h"

namespace tessaly {

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
