#include "core/solver/deduction.h"

#include "core/board/puzzle_record.h"
#include "core/board/tables.h"
#include "support/plain_rules.h"
#include "support/sample_boards.h"

#include <gtest/gtest.h>

#include <tuple>

namespace tessaly {
namespace {

constexpr int BoardsOfEachKind = 2500;

using Rule = void (*)(Board&, std::int32_t&);

struct RulePair {
    const char* name;
    Rule rule;
    Rule plainRule;
};

const RulePair Rules[] = {
    {"FixNeighbours", FixNeighbours, plain::FixNeighbours},
    {"GetCandidates", GetCandidates, plain::GetCandidates},
    {"FixSingles", FixSingles, plain::FixSingles},
    {"FixXcellPairs", FixXcellPairs, plain::FixXcellPairs},
};

std::string showEntries(const Board& board) {
    std::string text;
    for (CellId cell : AllCells)
        text += (board.CellNum[cell].empty() ? "-" : board.CellNum[cell]) +
                (cell.position == CellCount ? "\n" : " ");
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
            ASSERT_FALSE(testing::Test::HasFailure())
                << "kind " << kind << ", board " << i << ", skipped " << board.SkipHex << ", blank "
                << board.BlankHex << "\n"
                << showEntries(board);
        }
    }
}

TEST(Deduction, EveryRuleAgreesWithThePlainReading) {
    int changes = 0;
    int contradictions = 0;
    onManyBoards([&](const Board& start, Chance& chance) {
        const auto counter = static_cast<std::int32_t>(chance.below(4)) - 1;
        for (const RulePair& pair : Rules) {
            Board fast = start;
            Board slow = start;
            std::int32_t fastCounter = counter;
            std::int32_t slowCounter = counter;
            pair.rule(fast, fastCounter);
            pair.plainRule(slow, slowCounter);
            EXPECT_EQ(fastCounter, slowCounter) << pair.name;
            EXPECT_EQ(fast.CellNum, slow.CellNum) << pair.name;
            changes += fast.CellNum == start.CellNum ? 0 : 1;
            contradictions += fastCounter == -1 && counter != -1 ? 1 : 0;
        }
    });
    EXPECT_GT(changes, 10000);
    EXPECT_GT(contradictions, 300);
}

TEST(Deduction, EveryLoopAgreesWithThePlainReading) {
    int solved = 0;
    onManyBoards([&solved](const Board& start, Chance&) {
        Board fast = start;
        Board slow = start;
        EXPECT_EQ(SolveByDeduction(fast), plain::SolveByDeduction(slow));
        EXPECT_EQ(fast.CellNum, slow.CellNum);
        solved += SolveByDeduction(fast) == 0 ? 1 : 0;
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
    });
    EXPECT_GT(solved, 1000);
}

TEST(Deduction, TheConsistencyCheckAgreesWithThePlainReading) {
    int sound = 0;
    onManyBoards([&sound](const Board& start, Chance& chance) {
        Board board = start;
        if (chance.below(2) == 0)
            SolveByDeduction(board);
        for (int leftOut : {board.BlankHex, NoHexagon, 10}) {
            const int result = plain::CheckHexagons(board, leftOut);
            EXPECT_EQ(CheckHexagons(board, leftOut), result);
            sound += result == 99 ? 1 : 0;
        }
    });
    EXPECT_GT(sound, 300);
}

TEST(Deduction, ASettledBoardTakesOnePass) {
    Chance chance(1);
    Board board = filledBoard(chance);
    int passes = 0;
    EXPECT_EQ(SolveByDeduction(board, [&passes] { ++passes; }), 0);
    EXPECT_EQ(passes, 1);
    EXPECT_EQ(CheckHexagons(board, 7), 99);
    EXPECT_EQ(CheckHexagons(board, NoHexagon), 0);
    board.CellNum[1][1] = board.CellNum[1][2];
    EXPECT_EQ(CheckHexagons(board, 7), -1);
    EXPECT_EQ(CheckHexagons(board, 1), 99);
}

TEST(Deduction, TheOwnerSeesTheBoardBeforeEveryPass) {
    Chance chance(2);
    const Board start = sampleBoard(Sample::Puzzle, chance);
    Board board = start;
    std::vector<Grid<std::string>> seen;
    SolveByDeduction(board, [&] { seen.push_back(board.CellNum); });
    ASSERT_GT(seen.size(), 2U);
    EXPECT_EQ(seen.front(), start.CellNum);
    EXPECT_NE(seen[1], start.CellNum);
    EXPECT_EQ(seen.back(), board.CellNum) << "the last pass changes nothing";
}

TEST(Deduction, AContradictionIsCountedMinusOneAndStopsTheRule) {
    Board board;
    // Hexagons 1 and 3 share side 4 of hexagon 1, and hold all six digits between them.
    board.CellNum[1] = {"", "1", "2", "3", "", "", ""};
    board.CellNum[3] = {"", "", "4", "5", "6", "", ""};
    std::int32_t counter = 7;
    board.CellNum[1][4] = "16";
    GetCandidates(board, counter);
    EXPECT_EQ(counter, -1);
    EXPECT_EQ(board.CellNum[1][4], "");
    EXPECT_EQ(board.CellNum[1][5], "") << "nothing behind the contradiction is touched";
    EXPECT_EQ(SolveByDeduction(board), 1);
}

TEST(Deduction, TheXcellRuleNeedsExactlyThreeDigits) {
    const XcellCells& cells = XcellTable[8];
    const auto boardWith = [&cells](const std::array<const char*, 6>& texts) {
        Board board;
        for (std::size_t i = 0; i < cells.size(); ++i)
            board.CellNum[cells[i]] = texts[i];
        return board;
    };
    const Board three = boardWith({"12", "12", "12", "13", "13", "12"});
    Board board = three;
    std::int32_t counter = 0;
    FixXcellPairs(board, counter);
    EXPECT_EQ(counter, 2);
    EXPECT_EQ(board.CellNum[cells[3]], "3");
    EXPECT_EQ(board.CellNum[cells[4]], "3");

    Board blank = three;
    blank.BlankHex = cells[5].hexagon;
    for (const Board& start : {blank, boardWith({"12", "12", "12", "34", "34", "12"})}) {
        board = start;
        FixXcellPairs(board, counter);
        EXPECT_TRUE(board == start) << showEntries(board);
    }
}

TEST(Deduction, UnusualTextsCountAsTheyAreWritten) {
    Board board;
    std::int32_t counter = 0;
    // "11" names 1 twice in one cell, and "21" is not the text that the rule would write.
    board.CellNum[XcellTable[1][0]] = "11";
    board.CellNum[XcellTable[1][1]] = "23";
    FixXcellPairs(board, counter);
    EXPECT_EQ(board.CellNum[XcellTable[1][0]], "1");
    EXPECT_EQ(counter, 1);

    Board marks;
    for (int position = 1; position <= CellCount; ++position)
        marks.CellNum[{10, position}] = "654321";
    counter = 0;
    GetCandidates(marks, counter);
    EXPECT_EQ(marks.CellNum[10][3], "123456");
    EXPECT_EQ(counter, 84) << "every cell that has a neighbour";
}

} // namespace
} // namespace tessaly
