#include "core/solver/deduction.h"

#include "support/plain_rules.h"
#include "support/sample_boards.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace tessaly {
namespace {

using Rule = void (*)(Board& board, std::int32_t& counter);

/// The four rules, then the loops and the check, whose answer is told as a counter.
const struct {
    const char* name;
    Rule rule;
    Rule plainRule;
} Rules[] = {
    {"FixNeighbours", FixNeighbours, plain::FixNeighbours},
    {"GetCandidates", GetCandidates, plain::GetCandidates},
    {"FixSingles", FixSingles, plain::FixSingles},
    {"FixXcellPairs", FixXcellPairs, plain::FixXcellPairs},
    {"SolveBasic", [](Board& board, std::int32_t& counter) { SolveBasic(board, false, counter); },
     [](Board& board, std::int32_t& counter) { plain::SolveBasic(board, false, counter); }},
    {"SolveBasic with xcells",
     [](Board& board, std::int32_t& counter) { SolveBasic(board, true, counter); },
     [](Board& board, std::int32_t& counter) { plain::SolveBasic(board, true, counter); }},
    {"CheckHexagons",
     [](Board& board, std::int32_t& counter) { counter = CheckHexagons(board, 10); },
     [](Board& board, std::int32_t& counter) { counter = plain::CheckHexagons(board, 10); }},
    {"SolveByDeduction",
     [](Board& board, std::int32_t& counter) {
         counter = 1000 * SolveByDeduction(board);
         counter += CheckHexagons(board, board.BlankHex);
     },
     [](Board& board, std::int32_t& counter) {
         counter = 1000 * plain::SolveByDeduction(board);
         counter += plain::CheckHexagons(board, board.BlankHex);
     }},
};

TEST(Deduction, EveryRuleAndLoopAgreesWithThePlainReading) {
    std::map<std::string, int> changes;
    std::map<std::string, std::map<std::int32_t, int>> answers;
    for (int kind = 0; kind < SampleKinds; ++kind) {
        Chance chance(20, static_cast<std::uint64_t>(kind));
        for (int i = 0; i < 700; ++i) {
            Board start = sampleBoard(static_cast<Sample>(kind), chance);
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
                ASSERT_EQ(fast.CellNum, slow.CellNum)
                    << name << ", skipped " << start.SkipHex << ", blank " << start.BlankHex;
                changes[name] += slow.CellNum == start.CellNum ? 0 : 1;
                answers[name][slowCounter] += counter == -1 ? 0 : 1;
            }
        }
    }
    for (const auto& [name, rule, plainRule] : Rules)
        EXPECT_GT(changes[name], rule == Rules[6].rule ? -1 : 400) << name;
    EXPECT_GT(answers["GetCandidates"][-1], 70);
    for (const std::int32_t each : {SettledAndSound, 1000 + Unsettled, 1000 + Contradictory})
        EXPECT_GT(answers["SolveByDeduction"][each], 80) << each;
}

TEST(Deduction, TheOwnerSeesTheBoardBeforeEveryPass) {
    Chance chance(2);
    Board board = sampleBoard(Sample::Puzzle, chance);
    const Board start = board;
    std::vector<Grid<std::string>> seen;
    SolveByDeduction(board, [&] { seen.push_back(board.CellNum); });
    ASSERT_GT(seen.size(), 2U);
    EXPECT_EQ(seen.front(), start.CellNum);
    EXPECT_NE(seen[1], start.CellNum);
    EXPECT_EQ(seen.back(), board.CellNum) << "the last pass changes nothing";
}

TEST(Deduction, OpenCellsAreThoseOfSeveralCandidates) {
    Board board;
    EXPECT_EQ(countOpenCells(board), 0);
    board.CellNum[3] = {"", "1", "12", "", "123456", "0", "26"};
    board.CellNum[19][6] = "15";
    EXPECT_EQ(countOpenCells(board), 4);
}

} // namespace
} // namespace tessaly
