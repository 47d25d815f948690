#include "core/solver/puzzle_audit.h"

#include "core/base/text.h"
#include "core/board/digit_set.h"
#include "core/board/puzzle_record.h"
#include "core/board/tables.h"
#include "core/solver/blank_hexagon.h"
#include "core/solver/deduction.h"
#include "core/solver/solution_counter.h"

#include <algorithm>

namespace tessaly {
namespace {

using Findings = std::vector<std::string>;

std::string cellName(CellId cell) {
    return "hexagon " + std::to_string(cell.hexagon) + " cell " + std::to_string(cell.position);
}

bool hasKnownLetter(std::string_view line) {
    return std::any_of(Difficulties.begin(), Difficulties.end(),
                       [line](const auto& entry) { return line.front() == entry.letter; });
}

void checkForm(std::string_view line, Findings& findings) {
    if (!hasKnownLetter(line))
        findings.push_back("the record begins with neither \"E\" nor \"H\"");
    if (line.size() == RecordLength)
        return;
    const std::string_view progress = line.substr(RecordLength + 1);
    if (line[RecordLength] != ':')
        findings.push_back("what follows the cells does not begin with \":\"");
    else if (line.size() > RecordLengthWithProgress)
        findings.push_back("the progress is longer than the board");
    else if (progress.find_first_not_of(" 0123456") != std::string_view::npos)
        findings.push_back("the progress holds a character that is no number of the player");
}

bool holdsEveryDigit(const Board& board, int hexagon) {
    DigitSet digits;
    for (int position = 1; position <= CellCount; ++position)
        digits = digits | DigitSet::fromText(board.SolNum[{hexagon, position}]);
    return digits == DigitSet::all();
}

void checkSolution(const Board& board, Findings& findings) {
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon)
        if (!holdsEveryDigit(board, hexagon))
            findings.push_back("the solution of hexagon " + std::to_string(hexagon) +
                               " does not hold each of 1 to 6");
    for (CellId cell : AllCells) {
        const CellId across = SideLink[cell];
        if (across.hexagon > cell.hexagon && board.SolNum[cell] != board.SolNum[across])
            findings.push_back("the solution differs across the side of " + cellName(cell) +
                               " and " + cellName(across));
    }
}

void checkEasyHint(std::string_view line, Findings& findings) {
    if (line.substr(3, 2) != "00")
        findings.push_back("an easy puzzle has a hint in its header");
}

void checkHint(const Board& board, Findings& findings) {
    const CellId hint = hintedCell(board.BlankHex, board.HintCell);
    if (!hint)
        findings.push_back("the hint names no cell beside the blank hexagon");
    else if (board.SolNum[hint] != std::to_string(board.HintNum))
        findings.push_back("the hint is " + std::to_string(board.HintNum) + ", but " +
                           cellName(hint) + " holds " + board.SolNum[hint]);
}

/// What the player does not see or is told has to be given, or the puzzle cannot be finished.
void checkGivens(const Board& board, Findings& findings) {
    const auto isOpen = [&board](CellId cell) { return !board.FixedCell[cell]; };
    if (isHexagon(board.BlankHex) &&
        std::any_of(AllCells.begin(), AllCells.end(),
                    [&](CellId cell) { return cell.hexagon == board.BlankHex && isOpen(cell); }))
        findings.push_back("a cell of the blank hexagon is not given");
    const CellId hint = hintedCell(board.BlankHex, board.HintCell);
    if (board.difficulty == Difficulty::Hard && hint && isOpen(hint))
        findings.push_back("the hint is not given");
}

void checkUniqueness(const Board& board, Findings& findings) {
    const SolutionCount count = countSolutions(board);
    if (!count.isCertain)
        findings.push_back("the givens leave too much open to count the solutions");
    else if (count.found != 1)
        findings.push_back("there is more than one solution with the blank hexagon withheld");
}

/// Whether the rules lead from the givens, without those of the blank hexagon, to the solution.
bool isSolved(Board board, bool useXcells) {
    board.ResetToGivens();
    if (isHexagon(board.BlankHex))
        board.CellNum[board.BlankHex].fill({});
    board.BlankHex = NoHexagon;
    std::int32_t counter = 0;
    SolveBasic(board, useXcells, counter);
    return board.CellNum == board.SolNum;
}

void checkDifficulty(const Board& board, Findings& findings) {
    const bool fallsToBasicRules = isSolved(board, false);
    if (board.difficulty == Difficulty::Easy && !fallsToBasicRules)
        findings.push_back("the puzzle is not easy: rules 1 to 3 do not solve it");
    if (board.difficulty == Difficulty::Hard && fallsToBasicRules)
        findings.push_back("the puzzle is not hard: rules 1 to 3 solve it");
    if (board.difficulty == Difficulty::Hard && !isSolved(board, true))
        findings.push_back("the puzzle is too hard: the four rules do not solve it");
}

} // namespace

std::vector<std::string> auditRecord(std::string_view line) {
    // Blanks behind a record are forgiven, as in the game.
    if (const auto end = line.find_last_not_of(BlankCharacters); end != std::string_view::npos)
        line = line.substr(0, std::max(end + 1, std::min(line.size(), RecordLength)));
    Findings findings;
    Board board;
    if (const Outcome read = readRecord(line, board); !read.ok())
        return {read.problem};
    checkForm(line, findings);
    if (board.difficulty == Difficulty::Easy)
        checkEasyHint(line, findings);
    checkSolution(board, findings);
    if (!findings.empty())
        return findings;
    if (board.difficulty == Difficulty::Hard)
        checkHint(board, findings);
    checkGivens(board, findings);
    checkUniqueness(board, findings);
    checkDifficulty(board, findings);
    return findings;
}

} // namespace tessaly
