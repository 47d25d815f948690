#include "core/solver/generator.h"

#include "core/board/puzzle_record.h"
#include "core/board/tables.h"
#include "core/solver/blank_hexagon.h"
#include "core/solver/deduction.h"
#include "support/plain_generator.h"
#include "support/sample_boards.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <span>
#include <utility>

namespace tessaly {
namespace {

constexpr int PuzzleCount = 300;

Board createdPuzzle(Difficulty difficulty, std::uint64_t stream) {
    Board board;
    Chance chance(7, stream);
    CreatePuzzle(board, difficulty, chance, completeFill());
    return board;
}

bool fallsToBasicRules(Board board) {
    board.CellNum[board.BlankHex].fill({});
    board.BlankHex = NoHexagon;
    std::int32_t counter = 0;
    SolveBasic(board, false, counter);
    return countOpenCells(board) == 0;
}

class CreatedPuzzles : public testing::TestWithParam<Difficulty> {};

TEST_P(CreatedPuzzles, AreThoseOfThePlainGenerator) {
    for (std::uint64_t stream = 0; stream < 60; ++stream) {
        Board board = createdPuzzle(GetParam(), stream);
        Board plainly;
        Chance chance(7, stream);
        plain::CreatePuzzle(plainly, GetParam(), chance, completeFill());
        EXPECT_EQ(PuzzleRecord(board), PuzzleRecord(plainly));
        EXPECT_TRUE(board == plainly);
    }
}

TEST_P(CreatedPuzzles, KeepTheirPromises) {
    std::set<std::string> records;
    std::set<int> blanks;
    for (std::uint64_t stream = 0; stream < PuzzleCount; ++stream) {
        const Board board = createdPuzzle(GetParam(), stream);
        const std::string record = PuzzleRecord(board);
        EXPECT_EQ(record.size(), RecordLength);
        records.insert(record);
        blanks.insert(board.BlankHex);

        EXPECT_EQ(board.difficulty, GetParam());
        int givens = 0;
        for (CellId cell : AllCells) {
            const bool inBlank = cell.hexagon == board.BlankHex;
            givens += board.FixedCell[cell] && !inBlank ? 1 : 0;
            EXPECT_EQ(board.CellNum[cell], board.FixedCell[cell] ? board.SolNum[cell] : "");
            EXPECT_TRUE(board.FixedCell[cell] || (SideLink[cell] && !inBlank));
        }
        EXPECT_LE(givens, 45);
        EXPECT_FALSE(board.FixedCell[1][5]);
        EXPECT_FALSE(board.FixedCell[19][2]);
        EXPECT_EQ(fallsToBasicRules(board), GetParam() == Difficulty::Easy) << record;
    }
    EXPECT_EQ(records.size(), PuzzleCount);
    EXPECT_EQ(blanks, (std::set<int>{5, 7, 8, 12, 13, 15}));
}

INSTANTIATE_TEST_SUITE_P(, CreatedPuzzles, testing::Values(Difficulty::Easy, Difficulty::Hard),
                         [](const auto& chosen) {
                             return std::string(entryOf(chosen.param).name);
                         });

TEST(Generator, TheHintOfAHardPuzzleIsAGivenBesideTheBlankHexagon) {
    for (std::uint64_t stream = 0; stream < PuzzleCount; ++stream) {
        Board board = createdPuzzle(Difficulty::Hard, stream);
        const CellId hint = hintedCell(board.BlankHex, board.HintCell);
        ASSERT_TRUE(hint);
        EXPECT_EQ(hint.position, board.HintCell);
        EXPECT_EQ(SideLink[hint].hexagon, board.BlankHex);
        EXPECT_TRUE(board.FixedCell[hint]);
        EXPECT_EQ(board.SolNum[hint], std::to_string(board.HintNum));

        board.CellNum[board.BlankHex].fill({});
        std::int32_t counter = 0;
        const int blank = std::exchange(board.BlankHex, NoHexagon);
        SolveBasic(board, true, counter);
        EXPECT_EQ(CheckHexagons(board, blank), 99);
        EXPECT_EQ(board.CellNum, board.SolNum);
    }
    const Board easy = createdPuzzle(Difficulty::Easy, 1);
    EXPECT_EQ(easy.HintCell, 0);
    EXPECT_EQ(easy.HintNum, 0);
    EXPECT_FALSE(hintedCell(easy.BlankHex, easy.HintCell));
}

TEST(Generator, AWatchedPuzzleIsTheSameAndIsDrawnAsItGrows) {
    for (Difficulty difficulty : {Difficulty::Easy, Difficulty::Hard}) {
        Board board = createdPuzzle(Difficulty::Easy, 99);
        Grid<std::string> drawn = board.CellNum;
        int yields = 0;
        std::set<int> emptied;
        CreationObserver observer;
        observer.yield = [&] {
            ++yields;
            EXPECT_EQ(board.CellNum, drawn) << "what changed was drawn before the event loop runs";
        };
        observer.redraw = [&](int hexagon) {
            drawn[hexagon] = board.CellNum[hexagon];
            if (yields == 0)
                emptied.insert(hexagon);
        };
        Chance chance(7, 5);
        CreatePuzzle(board, difficulty, chance, completeFill(), observer);
        EXPECT_TRUE(board == createdPuzzle(difficulty, 5));
        EXPECT_EQ(board.CellNum, drawn);
        EXPECT_EQ(emptied.size(), 19U) << "the old puzzle goes first";
        EXPECT_GT(yields, 8);
    }
}

TEST(Generator, ATableWithoutAFillingIsTriedAgainAndSaidSo) {
    struct Enough {};
    const std::vector<Arrangement> all = allArrangements();
    const SearchFill none{std::span(all).first(1)};
    std::vector<std::string> said;
    CreationObserver observer;
    observer.message = [&](const std::string& text) {
        said.push_back(text);
        if (said.size() == 2)
            throw Enough();
    };
    Board board;
    Chance chance(7);
    EXPECT_THROW(CreatePuzzle(board, Difficulty::Easy, chance, none, observer), Enough);
    EXPECT_EQ(said, std::vector<std::string>(2, "No solution in " +
                                                    std::to_string(SearchFill::MaxAttempts) +
                                                    " iterations, solution aborted"));
}

TEST(Generator, AFailedChoiceOfTheBlankHexagonLeavesTheGivens) {
    Chance chance(8);
    int failures = 0;
    for (int i = 0; i < 100; ++i) {
        Board start = sampleBoard(Sample::Puzzle, chance);
        start.SkipHex = NoHexagon;
        start.BlankHex = NoHexagon;
        Board board = start;
        Board plainly = start;
        const auto difficulty = i % 2 == 0 ? Difficulty::Easy : Difficulty::Hard;
        Chance own(9, static_cast<std::uint64_t>(i));
        Chance same = own;
        const bool chosen = ChooseBlankHexagon(board, difficulty, own);
        EXPECT_EQ(chosen, plain::ChooseBlankHexagon(plainly, difficulty, same));
        if (chosen) {
            EXPECT_TRUE(board == plainly);
            continue;
        }
        ++failures;
        EXPECT_EQ(board.FixedCell, start.FixedCell);
        EXPECT_EQ(board.CellNum, start.CellNum);
        EXPECT_EQ(board.BlankHex, NoHexagon);
    }
    EXPECT_GT(failures, 20);
    EXPECT_LT(failures, 90);
}

TEST(Generator, RandomDrawsBothDifficultiesAlike) {
    Chance chance(10);
    int easy = 0;
    for (int i = 0; i < 10000; ++i)
        easy += drawDifficulty(std::nullopt, chance) == Difficulty::Easy ? 1 : 0;
    EXPECT_NEAR(easy, 5000, 200);
    EXPECT_EQ(drawDifficulty(Difficulty::Hard, chance), Difficulty::Hard);
}

} // namespace
} // namespace tessaly
