// The rules, and what applies them faster, against the plain reading of them.

#include "core/board/puzzle_record.h"
#include "core/solver/deduction.h"
#include "core/solver/packed_rules.h"
#include "core/solver/puzzle_draft.h"
#include "core/solver/side_rules.h"

#include "support/plain_rules.h"
#include "support/sample_boards.h"

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <string>

namespace tessaly::deduction_test {

using Rule = void (*)(Board& board, std::int32_t& counter);

/// The four rules, then the loops.
const struct {
    std::string name;
    Rule rule;
    Rule plainRule;
} Rules[] = {
    {"FixNeighbours", FixNeighbours, plain::FixNeighbours},
    {"GetCandidates", GetCandidates, plain::GetCandidates},
    {"FixSingles", FixSingles, plain::FixSingles},
    {"FixXcellPairs", FixXcellPairs, plain::FixXcellPairs},
    {"SolveBasic",
     [](Board& board, std::int32_t& counter) { SolveBasic(board, counter > 0, counter); },
     [](Board& board, std::int32_t& counter) { plain::SolveBasic(board, counter > 0, counter); }},
    {"SolveByDeduction",
     [](Board& board, std::int32_t& counter) { counter = SolveByDeduction(board); },
     [](Board& board, std::int32_t& counter) { counter = plain::SolveByDeduction(board); }},
};

TEST(Deduction, EveryRuleAndLoopAgreesWithThePlainReading) {
    std::map<std::string, int> seen;
    for (int i = 0; i < 250 * SampleKinds; ++i) {
        Chance chance(20, static_cast<std::uint64_t>(i));
        Board start = sampleBoard(static_cast<Sample>(i % SampleKinds), chance);
        std::int32_t counter = 0;
        for (std::uint32_t steps = chance.below(5); steps > 0; --steps)
            Rules[chance.below(4)].plainRule(start, counter);
        counter = static_cast<std::int32_t>(chance.below(4)) - 1;
        for (const auto& [name, rule, plainRule] : Rules) {
            Board fast = start, slow = start;
            std::int32_t fastCounter = counter, slowCounter = counter;
            rule(fast, fastCounter);
            plainRule(slow, slowCounter);
            ASSERT_EQ(fastCounter, slowCounter) << name;
            ASSERT_EQ(fast.CellNum, slow.CellNum) << name << " of record " << PuzzleRecord(start);
            const int check = plain::CheckHexagons(slow, slow.BlankHex);
            ASSERT_EQ(CheckHexagons(slow, slow.BlankHex), check);
            ASSERT_EQ(CheckHexagons(slow, 10), plain::CheckHexagons(slow, 10));
            ++seen[slow.CellNum == start.CellNum ? "nothing" : name];
            ++seen["check " + std::to_string(check)];
            seen["contradiction"] += counter >= 0 && slowCounter == -1 ? 1 : 0;
        }
    }
    EXPECT_EQ(seen.size(), std::size(Rules) + 5);
    for (const auto& [what, count] : seen)
        EXPECT_GT(count, 50) << what;
}

TEST(Deduction, OpenCellsAreThoseOfSeveralCandidates) {
    Board board;
    EXPECT_EQ(countOpenCells(board), 0);
    board.CellNum[3] = {"", "1", "12", "", "123456", "0", "26"};
    board.CellNum[19][6] = "15";
    EXPECT_EQ(countOpenCells(board), 4);
}

/// A filling with the rim and some more cells given, few or many.
PuzzleDraft randomDraft(const HexagonWords& filling, Chance& chance) {
    PuzzleDraft draft(filling);
    const std::uint32_t percent = chance.below(30);
    for (CellId cell : AllCells)
        if (SideLink[cell]) {
            draft.withdraw(cell);
            if (chance.below(100) < percent)
                draft.give(cell);
        }
    return draft;
}

TEST(SideRules, EndWhereTheRulesEndOneByOneOnAHundredThousandBoards) {
    std::array<int, 2> stuck{};
    for (std::uint64_t i = 0; i < 5'000; ++i) {
        Chance chance(9, i);
        HexagonWords filling{};
        completeFill().fill(filling, chance);
        for (int board = 0; board < 20; ++board) {
            const PuzzleDraft draft = randomDraft(filling, chance);
            const bool useXcells = board % 2 == 1;
            PackedRules oneByOne(draft.givens());
            oneByOne.solveBasic(useXcells, [] {});
            SideRules together = draft.rules();
            const bool isDone = together.deduceEverySide(useXcells);
            ASSERT_EQ(isDone, oneByOne.board().everyCellIsSettled());
            for (CellId cell : AllCells)
                ASSERT_NE(together.open().contains(cell), oneByOne.board().isSettled(cell));
            stuck.at(useXcells ? 1 : 0) += isDone ? 0 : 1;
        }
    }
    for (int count : stuck)
        EXPECT_TRUE(count > 10'000 && count < 49'000) << count;
}

} // namespace tessaly::deduction_test
