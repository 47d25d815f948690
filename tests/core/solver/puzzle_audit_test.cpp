#include "core/solver/puzzle_audit.h"

#include "core/board/tables.h"
#include "core/solver/deduction.h"
#include "core/solver/solution_counter.h"
#include "support/sample_puzzles.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tessaly {
namespace {

using Findings = std::vector<std::string>;

std::string easyRecord() {
    return sampleRecords("easy.txt").front();
}
std::string hardRecord() {
    return sampleRecords("hard.txt").front();
}

bool finds(const std::string& record, std::string_view what) {
    const Findings findings = auditRecord(record);
    return std::any_of(findings.begin(), findings.end(), [what](const std::string& finding) {
        return finding.find(what) != std::string::npos;
    });
}

std::string changed(std::string record, std::size_t at, std::string_view to) {
    return record.replace(at, to.size(), to);
}

/// The place of a cell in a record.
std::size_t placeOf(CellId cell) {
    return 5 + static_cast<std::size_t>(std::find(AllCells.begin(), AllCells.end(), cell) -
                                        AllCells.begin());
}

std::string withGiven(const std::string& record, CellId cell, bool given) {
    const char digit = boardOf(record).SolNum[cell].front();
    return changed(record, placeOf(cell),
                   std::string(1, static_cast<char>(given ? digit + 32 : digit)));
}

std::string withNoGivens(std::string record) {
    for (CellId cell : AllCells)
        record = withGiven(record, cell, false);
    return record;
}

TEST(PuzzleAudit, FindsNothingInSoundPuzzles) {
    for (const char* file : {"easy.txt", "hard.txt"})
        for (const std::string& record : sampleRecords(file)) {
            EXPECT_EQ(auditRecord(record), Findings{}) << record;
            EXPECT_EQ(auditRecord(record + ":" + std::string(BoardCellCount, '6')), Findings{});
        }
}

TEST(PuzzleAudit, FindsWhatIsNotWellFormed) {
    const std::string record = easyRecord();
    EXPECT_TRUE(finds(record.substr(1), "118 characters"));
    EXPECT_TRUE(finds("X" + record.substr(1), "neither \"E\" nor \"H\""));
    EXPECT_TRUE(finds(record + " ", "does not begin with \":\""));
    EXPECT_TRUE(finds(record + ":7", "no number of the player"));
    EXPECT_TRUE(finds(record + ":" + std::string(BoardCellCount + 1, ' '), "longer than"));
}

TEST(PuzzleAudit, FindsAWrongSolution) {
    const std::string record = easyRecord();
    std::string swapped = record;
    // Hexagon 1's cells 1 and 2 lie on the rim: swapping them breaks no rule of a filled board.
    EXPECT_TRUE(finds(changed(record, 5, record.substr(6, 1)), "hexagon 1 does not hold each"));
    EXPECT_TRUE(finds(changed(record, placeOf({10, 3}), "0"), "hexagon 10 does not hold each"));
    const auto inner = static_cast<long>(placeOf({10, 1}));
    std::iter_swap(swapped.begin() + inner, swapped.begin() + inner + 1);
    EXPECT_TRUE(finds(swapped, "differs across the side of"));
    EXPECT_EQ(auditRecord(swapped).size(), 2U) << "both cells have one across";
}

TEST(PuzzleAudit, FindsMoreThanOneSolution) {
    // A puzzle whose givens are taken away one by one has several solutions sooner or later.
    for (std::string record : {easyRecord(), hardRecord()}) {
        bool several = false;
        for (auto cell = AllCells.begin(); !several && cell != AllCells.end(); ++cell) {
            record = withGiven(record, *cell, false);
            several = countSolutions(boardOf(record)).found != 1;
            EXPECT_EQ(finds(record, "more than one solution"), several);
        }
        EXPECT_TRUE(several);
    }
    EXPECT_TRUE(finds(withNoGivens(easyRecord()), "more than one solution"));
}

TEST(PuzzleAudit, FindsAFalseDifficulty) {
    const std::string easy = easyRecord();
    const std::string hard = hardRecord();
    EXPECT_TRUE(finds(changed(changed(hard, 0, "E"), 3, "00"), "not easy"));
    std::string allGiven = hard;
    for (CellId cell : AllCells)
        allGiven = withGiven(allGiven, cell, true);
    EXPECT_EQ(auditRecord(allGiven), Findings{"the puzzle is not hard: rules 1 to 3 solve it"});
    std::string fewGiven = hard;
    for (CellId cell : AllCells)
        fewGiven = withGiven(fewGiven, cell, !SideLink[cell]);
    EXPECT_TRUE(finds(fewGiven, "too hard"));
}

TEST(PuzzleAudit, FindsAFalseHint) {
    const std::string hard = hardRecord();
    const int number = hard[4] - '0';
    EXPECT_TRUE(finds(changed(hard, 4, std::to_string(number % 6 + 1)), "the hint is"));
    int noCell = 0;
    for (int position = 0; position <= 9; ++position)
        noCell += finds(changed(hard, 3, std::to_string(position)), "names no cell") ? 1 : 0;
    EXPECT_EQ(noCell, 4) << "0, 7, 8 and 9 are no positions";
    EXPECT_TRUE(finds(changed(hard, 1, "99"), "names no cell"));
    EXPECT_TRUE(finds(changed(easyRecord(), 3, "11"), "an easy puzzle has a hint"));
}

} // namespace
} // namespace tessaly
