#include "core/solver/puzzle_audit.h"

#include "core/solver/blank_hexagon.h"
#include "core/solver/solution_counter.h"

#include "support/sample_boards.h"
#include "support/sample_puzzles.h"

#include <algorithm>
#include <map>

namespace tessaly::puzzle_audit_test {

using Findings = std::vector<std::string>;

std::string changed(std::string record, std::size_t at, std::string_view to) {
    return record.replace(at, to.size(), to);
}

/// The place of a cell in a record.
std::size_t placeOf(CellId cell) {
    return static_cast<std::size_t>(5 + CellCount * (cell.hexagon - 1) + cell.position - 1);
}

TEST(PuzzleAudit, FindsWhatIsWrongAndNothingElse) {
    const std::string easy = sampleRecords("easy.txt").front();
    const std::string hard = sampleRecords("hard.txt").front();
    const std::string otherNumber(1, hard[4] == '6' ? '1' : static_cast<char>(hard[4] + 1));
    std::string swapped = easy;
    std::swap(swapped[placeOf({10, 1})], swapped[placeOf({10, 2})]);
    const Board ofEasy = boardOf(easy), ofHard = boardOf(hard);
    const CellId hint = hintedCell(ofHard.BlankHex, ofHard.HintCell);
    const auto nowhere = [](CellId) { return false; };
    const auto anywhere = [](CellId) { return true; };
    const auto outside = [&](CellId cell) { return !ofEasy.isBlank(cell.hexagon); };
    const auto noHint = [&](CellId cell) { return cell != hint; };
    const struct {
        std::string record;
        const char* finding;
        /// How many findings there are; 0 is any number.
        std::size_t count = 0;
    } rows[] = {
        {easy.substr(1), "118 characters"},
        {"X" + easy.substr(1), "neither \"E\" nor \"H\""},
        {easy + "x", "does not begin with \":\""},
        {easy + ":7", "no number of the player"},
        {easy + ":" + std::string(BoardCellCount, ' ') + "1", "longer than"},
        {changed(easy, 5, easy.substr(6, 1)), "hexagon 1 does not hold each"},
        {changed(easy, placeOf({10, 3}), "0"), "hexagon 10 does not hold each"},
        {swapped, "differs across the side of", 2},
        {givenWhere(easy, nowhere), "more than one solution"},
        {changed(changed(hard, 0, "E"), 3, "00"), "not easy"},
        {givenWhere(hard, anywhere), "the puzzle is not hard: rules 1 to 3 solve it", 1},
        {recordOfTheRim(hard), "too hard"},
        {changed(hard, 4, otherNumber), "the hint is"},
        {changed(hard, 3, "0"), "names no cell"},
        {changed(hard, 3, "7"), "names no cell"},
        {changed(hard, 1, "99"), "names no cell"},
        {changed(easy, 3, "10"), "an easy puzzle has a hint"},
        {changed(easy, 3, "01"), "an easy puzzle has a hint"},
        {givenWhere(easy, outside), "a cell of the blank hexagon is not given"},
        {givenWhere(hard, noHint), "the hint is not given"},
    };
    for (const std::string& sound : {easy + ":" + std::string(BoardCellCount, '6'), hard + " \t"})
        EXPECT_EQ(auditRecord(sound), Findings{});
    for (const auto& row : rows) {
        const Findings findings = auditRecord(row.record);
        EXPECT_TRUE(std::ranges::any_of(findings, [&](const std::string& found) {
            return found.find(row.finding) != std::string::npos;
        })) << row.finding;
        EXPECT_TRUE(row.count == 0 || findings.size() == row.count) << row.finding;
    }
}

TEST(SolutionCounter, CountsEverySolutionOnceAndNeverTakesLong) {
    constexpr int Limit = 1000;
    Chance chance(1);
    std::map<int, int> boardsWith;
    for (std::size_t i = 0; i < 400; ++i) {
        const Sample kind = i % 3 == 0 ? Sample::WrongGivens : Sample::RandomGivens;
        Board board = sampleBoard(kind, chance);
        const SolutionCount count = countSolutions(board, {Limit});
        EXPECT_TRUE(count.isCertain);
        EXPECT_GE(count.found, kind == Sample::RandomGivens ? 1 : 0);
        ++boardsWith[std::min(count.found, 2)];
        if (isHexagon(board.BlankHex))
            board.SolNum[board.BlankHex].fill("1"); // counts for nothing
        // They are those with 1 in an open cell, those with 2 there, and so on.
        const CellId cell = AllCells[i % BoardCellCount];
        if (board.FixedCell[cell] || cell.hexagon == board.BlankHex)
            continue;
        board.FixedCell[cell] = true;
        int sum = 0;
        for (const char* number : {"1", "2", "3", "4", "5", "6"}) {
            board.SolNum[cell] = number;
            sum += countSolutions(board, {Limit}).found;
        }
        EXPECT_EQ(std::min(sum, Limit), count.found);
    }
    for (int found = 0; found <= 2; ++found)
        EXPECT_GT(boardsWith[found], 10) << found;
}

TEST(SolutionCounter, StopsWhereItIsTold) {
    for (const auto& [limits, isCertain] :
         {std::pair(CountLimits{1}, true), {{5000}, true}, {{5000, 30}, false}}) {
        const SolutionCount count = countSolutions(Board(), limits);
        EXPECT_EQ(count.found == limits.solutions, isCertain);
        EXPECT_EQ(count.isCertain, isCertain);
    }
}

} // namespace tessaly::puzzle_audit_test
