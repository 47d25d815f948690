#include "core/session/developer_commands.h"

#include "core/board/tables.h"
#include "core/play/assists.h"
#include "core/play/pencil_marks.h"
#include "core/solver/deduction.h"
#include "core/solver/library_tools.h"
#include "core/solver/packed_rules.h"

#include <vector>

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

/// "035" is cell 5 of hexagon 3.
std::string cellCode(int hexagon, int position) {
    return (hexagon < 10 ? "0" : "") + std::to_string(hexagon) + std::to_string(position);
}

/// The cell that three digits name; no cell when they name none.
CellId cellOfCode(std::string_view code) {
    if (code.size() != 3 || code.find_first_not_of("0123456789") != std::string_view::npos)
        return {};
    const CellId cell{10 * (code[0] - '0') + code[1] - '0', code[2] - '0'};
    const bool isCell = isHexagon(cell.hexagon) && cell.position >= 1 && cell.position <= CellCount;
    return isCell ? cell : CellId{};
}

/// The codes of what is wrong: an empty cell's own, and position 0 for a hexagon with a number
/// twice.
std::vector<std::string> findWrongPlaces(const Board& board) {
    std::vector<std::string> places;
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon) {
        for (int position = 1; position <= CellCount; ++position)
            if (board.CellNum[{hexagon, position}].empty())
                places.push_back(cellCode(hexagon, position));
        if (holdsWrongNumbers(board, hexagon))
            places.push_back(cellCode(hexagon, 0));
    }
    return places;
}

std::string describe(const std::vector<std::string>& places) {
    constexpr std::size_t MostShown = 12; // as fit into a message box
    std::string text;
    for (std::size_t i = 0; i < places.size() && i < MostShown; ++i)
        text += (i > 0 ? "\r\n" : "") + ("Error in cell " + places[i]);
    if (places.size() > MostShown)
        text += "\r\nand " + std::to_string(places.size() - MostShown) + " more";
    return text;
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
            observer.message("fix pair " + std::to_string(digit) + " at " +
                             cellCode(cell.hexagon, cell.position));
            board.CellNum[cell] = std::to_string(digit);
            ++counter;
        }
        observer.redraw();
    }
}

DeveloperCommands::DeveloperCommands(Session& session, Display& display, Prompts& prompts)
    : m_session(session)
    , m_display(display)
    , m_prompts(prompts) {}

void DeveloperCommands::solveInSteps(bool debug) {
    const WhileSet running(m_session.busy.commandRunning);
    DebugSolve(m_session.game.board, debug, *this);
}

void DeveloperCommands::applyXcellRule() {
    const WhileSet running(m_session.busy.commandRunning);
    std::int32_t counter = 0;
    FixXcellPairsVerbose(m_session.game.board, counter, *this);
}

void DeveloperCommands::autoSolveHard(bool carryOut) {
    const Board& board = m_session.game.board;
    message("AutosolveHard, fixed, Cell=" + std::to_string(board.BlankHex) + ", Pos=" +
            std::to_string(board.HintCell) + ", number=" + std::to_string(board.HintNum));
    if (carryOut)
        solveWithHint();
}

void DeveloperCommands::solveWithHint() {
    Board& board = m_session.game.board;
    {
        const WhileSet running(m_session.busy.commandRunning);
        plantHint(board);
        SolveByDeduction(board, [this] { m_display.yield(); });
        redraw();
    }
    if (CheckHexagons(board, board.BlankHex) != SettledAndSound)
        message("Error");
}

void DeveloperCommands::checkCells() {
    Board& board = m_session.game.board;
    board.SkipHex = NoHexagon;
    redraw();
    const std::vector<std::string> places = findWrongPlaces(board);
    message(places.empty() ? "done" : describe(places));
}

void DeveloperCommands::setManualValue() {
    const std::string answer =
        m_prompts.ask("Cell code and entry, such as 035 4 (035 alone empties the cell):");
    if (answer.empty())
        return;
    const std::string code = answer.substr(0, answer.find(' '));
    const std::string entry = Without(answer.substr(code.size()), " ");
    const CellId cell = cellOfCode(code);
    if (!cell || !isEntry(entry) || entry.find('0') != std::string::npos) {
        m_prompts.message("No cell and entry: " + answer, style::Critical);
        return;
    }
    m_display.DrawHexagons(m_session.game.place(cell, entry));
}

void DeveloperCommands::message(const std::string& text) {
    m_prompts.message(text, "vbok");
}

void DeveloperCommands::redraw() {
    m_display.DrawBoard();
}

void DeveloperCommands::yield() {
    m_display.yield();
}

std::string developerText(const Board& board) {
    return std::to_string(board.BlankHex) + "," + std::to_string(board.HintCell) + "," +
           std::to_string(board.HintNum);
}

} // namespace tessaly
