#include "core/solver/debug_solve.h"

#include "core/board/tables.h"
#include "core/solver/deduction.h"
#include "core/solver/packed_rules.h"

namespace tessaly {
namespace {

using Rule = void (*)(Board&, std::int32_t&);

/// One stepping run.
class Steps {
public:
    Steps(Board& board, bool debug, SolverObserver& observer)
        : m_board(board)
        , m_debug(debug)
        , m_observer(observer) {}

    /// One pass; whether another has to follow.
    bool pass() {
        m_counter = 0;
        announce("Fill Fixed Neibours");
        m_observer.yield();
        apply(FixNeighbours);
        announce("Fixed Neibours Done, get candidates");
        apply(GetCandidates);
        announce("Candidates Done, fix singles");
        if (m_counter == -1)
            return false;
        announce("Fix Singles");
        apply(FixSingles);
        announce("Singles Fixed, fix neighbours");
        apply(FixNeighbours);
        announce("Neighbours Fixed, chech xpairs");
        apply(FixXcellPairs);
        announce("Xpairs done, loop back");
        return m_counter != 0;
    }

private:
    void announce(const char* text) {
        if (m_debug)
            m_observer.message(text);
    }

    void apply(Rule rule) {
        rule(m_board, m_counter);
        m_observer.redraw();
    }

    Board& m_board;
    bool m_debug;
    SolverObserver& m_observer;
    std::int32_t m_counter = 0;
};

std::string cellCode(CellId cell) {
    return (cell.hexagon < 10 ? "0" : "") + std::to_string(cell.hexagon) +
           std::to_string(cell.position);
}

} // namespace

void DebugSolve(Board& board, bool debug, SolverObserver& observer) {
    Steps steps(board, debug, observer);
    while (steps.pass()) {
    }
    observer.redraw();
    observer.message("All Done");
}

void FixXcellPairsVerbose(Board& board, std::int32_t& counter, SolverObserver& observer) {
    for (int xcell = 1; xcell <= XcellCount; ++xcell) {
        const PackedRules rules(packEntries(board.CellNum), {board.SkipHex, board.BlankHex},
                                &board.CellNum);
        const XcellFinding finding = rules.examineXcell(xcell);
        if (finding.threeDigits)
            observer.message("3 pairs in xcell " + std::to_string(xcell));
        for (const auto& [cell, digit] : finding.all()) {
            if (board.CellNum[cell].size() <= 1)
                continue;
            observer.message("fix pair " + std::to_string(digit) + " at " + cellCode(cell));
            board.CellNum[cell] = std::to_string(digit);
            ++counter;
        }
        observer.redraw();
    }
}

} // namespace tessaly
