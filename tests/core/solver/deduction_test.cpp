#include "core/solver/deduction.h"

#include "core/board/tables.h"
#include "support/plain_rules.h"
#include "support/sample_boards.h"
#include "support/sample_puzzles.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

constexpr int BoardsOfEachKind = 700;

struct RulePair {
    const char* name;
    void (*rule)(Board&, std::int32_t&);
    void (*plainRule)(Board&, std::int32_t&);
};

const RulePair Rules[] = {
    {"FixNeighbours", FixNeighbours, plain::FixNeighbours},
    {"GetCandidates", GetCandidates, plain::GetCandidates},
    {"FixSingles", FixSingles, plain::FixSingles},
    {"FixXcellPairs", FixXcellPairs, plain::FixXcellPairs},
};

std::string showEntries(const Board& board) {
    std::string text =
        "skipped " + std::to_string(board.SkipHex) + ", blank " + std::to_string(board.BlankHex);
    for (CellId cell : AllCells)
        text += (cell.position == 1 ? "\n" : " ") +
                (board.CellNum[cell].empty() ? "-" : board.CellNum[cell]);
    return text;
}

/// Runs a check on many boards of every kind, and on what the rules made of them halfway.
template <class Check>
void onManyBoards(const Check& check) {
    for (int kind = 0; kind < SampleKinds; ++kind) {
        Chance chance(20, static_cast<std::uint64_t>(kind));
        for (int i = 0; i < BoardsOfEachKind; ++i) {
            Board board = sampleBoard(static_cast<Sample>(kind), chance);
            std::int32_t counter = 0;
            for (std::uint32_t steps = chance.below(5); steps > 0; --steps)
                Rules[chance.below(4)].plainRule(board, counter);
            check(board, chance);
            ASSERT_FALSE(testing::Test::HasFailure()) << showEntries(board);
        }
    }
}

TEST(Deduction, EveryRuleAgreesWithThePlainReading) {
    int changes = 0;
    int contradictions = 0;
    onManyBoards([&](const Board& start, Chance& chance) {
        const auto counter = static_cast<std::int32_t>(chance.below(4)) - 1;
        for (const auto& [name, rule, plainRule] : Rules) {
            Board fast = start;
            Board slow = start;
            std::int32_t fastCounter = counter;
            std::int32_t slowCounter = counter;
            rule(fast, fastCounter);
            plainRule(slow, slowCounter);
            EXPECT_EQ(fastCounter, slowCounter) << name;
            EXPECT_EQ(fast.CellNum, slow.CellNum) << name;
            changes += fast.CellNum == start.CellNum ? 0 : 1;
            contradictions += fastCounter == -1 && counter != -1 ? 1 : 0;
        }
    });
    EXPECT_GT(changes, 4 * BoardsOfEachKind);
    EXPECT_GT(contradictions, BoardsOfEachKind / 10);
}

TEST(Deduction, EveryLoopAndTheCheckAgreeWithThePlainReading) {
    int solved = 0;
    int sound = 0;
    onManyBoards([&](const Board& start, Chance&) {
        Board fast = start;
        Board slow = start;
        const int result = SolveByDeduction(fast);
        EXPECT_EQ(result, plain::SolveByDeduction(slow));
        EXPECT_EQ(fast.CellNum, slow.CellNum);
        solved += result == 0 ? 1 : 0;
        for (bool useXcells : {false, true}) {
            Board basic = start;
            Board slowBasic = start;
            std::int32_t counter = 5;
            std::int32_t slowCounter = 5;
            SolveBasic(basic, useXcells, counter);
            plain::SolveBasic(slowBasic, useXcells, slowCounter);
            EXPECT_EQ(counter, slowCounter);
            EXPECT_EQ(basic.CellNum, slowBasic.CellNum);
        }
        for (const Board* board : {&start, static_cast<const Board*>(&fast)})
            for (int leftOut : {board->BlankHex, NoHexagon, 10}) {
                const int check = CheckHexagons(*board, leftOut);
                EXPECT_EQ(check, plain::CheckHexagons(*board, leftOut));
                sound += check == SettledAndSound ? 1 : 0;
            }
    });
    EXPECT_GT(solved, BoardsOfEachKind / 3);
    EXPECT_GT(sound, BoardsOfEachKind / 8);
}

TEST(Deduction, TheOwnerSeesTheBoardBeforeEveryPass) {
    Chance chance(2);
    Board board = filledBoard(chance);
    std::vector<Grid<std::string>> seen;
    const auto watch = [&] { seen.push_back(board.CellNum); };
    EXPECT_EQ(SolveByDeduction(board, watch), 0);
    EXPECT_EQ(seen.size(), 1U) << "a settled board takes one pass";

    seen.clear();
    const Board start = board = sampleBoard(Sample::Puzzle, chance);
    SolveByDeduction(board, watch);
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

Board withXcell(std::size_t xcell, const std::vector<std::string>& texts) {
    Board board;
    for (std::size_t i = 0; i < texts.size(); ++i)
        board.CellNum[XcellTable[xcell][i]] = texts[i];
    return board;
}

TEST(Deduction, TheXcellRuleCountsTextsAsTheyAreWritten) {
    const Board three = withXcell(8, {"12", "12", "12", "13", "13", "12"});
    Board blank = three;
    blank.BlankHex = XcellTable[8][5].hexagon;
    const Board four = withXcell(8, {"12", "12", "12", "34", "34", "12"});
    const Board twice = withXcell(1, {"11", "23"}); // 1 in one cell
    for (const auto& [start, expected, changes] :
         {std::tuple(three, withXcell(8, {"12", "12", "12", "3", "3", "12"}), 2),
          {blank, blank, 0},
          {four, four, 0},
          {twice, withXcell(1, {"1", "23"}), 1}}) {
        Board board = start;
        std::int32_t counter = 0;
        FixXcellPairs(board, counter);
        EXPECT_EQ(board.CellNum, expected.CellNum) << showEntries(board);
        EXPECT_EQ(counter, changes);
    }
}

TEST(Deduction, CandidatesAreWrittenInAscendingOrderUpToAContradiction) {
    Board board;
    board.CellNum[10].fill("654321");
    std::int32_t counter = 0;
    GetCandidates(board, counter);
    EXPECT_EQ(board.CellNum[10][3], "123456");
    EXPECT_EQ(counter, 84) << "every cell that has a neighbour";

    board = contradictoryBoard();
    GetCandidates(board, counter);
    EXPECT_EQ(counter, -1);
    EXPECT_EQ(board.CellNum[1][4] + board.CellNum[1][5], "") << "nothing behind it is touched";
}

} // namespace
} // namespace tessaly
