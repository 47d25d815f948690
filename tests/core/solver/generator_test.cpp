#include "core/solver/generator.h"

#include "core/board/tables.h"
#include "core/solver/blank_hexagon.h"
#include "core/solver/deduction.h"
#include "core/solver/solution_counter.h"
#include "support/sample_boards.h"
#include "support/sample_puzzles.h"

#include <gtest/gtest.h>

#include <set>

namespace tessaly {
namespace {

Board createdPuzzle(Difficulty difficulty, std::uint64_t stream) {
    Board board;
    Chance chance(7, stream);
    CreatePuzzle(board, difficulty, chance, completeFill());
    return board;
}

/// Whether the rules lead to the solution without what stands in the blank hexagon.
bool falls(Board board, bool useXcells) {
    board.CellNum[board.BlankHex].fill({});
    board.BlankHex = NoHexagon;
    std::int32_t counter = 0;
    SolveBasic(board, useXcells, counter);
    return board.CellNum == board.SolNum;
}

/// What a blank hexagon promises, and its hint.
void expectPuzzle(const Board& board, Difficulty difficulty) {
    EXPECT_EQ(board.difficulty, difficulty);
    EXPECT_EQ(falls(board, false), difficulty == Difficulty::Easy);
    EXPECT_TRUE(falls(board, true));
    EXPECT_EQ(board.SkipHex, NoHexagon);
    const CellId hint = hintedCell(board.BlankHex, board.HintCell);
    if (difficulty == Difficulty::Hard) {
        ASSERT_TRUE(hint);
        EXPECT_EQ(SideLink[hint].hexagon, board.BlankHex);
        EXPECT_TRUE(board.FixedCell[hint]);
        EXPECT_EQ(board.SolNum[hint], std::to_string(board.HintNum));
    } else {
        EXPECT_EQ(board.HintCell + board.HintNum, 0);
    }
    for (CellId cell : AllCells) {
        EXPECT_TRUE(board.FixedCell[cell] || cell.hexagon != board.BlankHex);
        EXPECT_EQ(board.CellNum[cell], board.FixedCell[cell] ? board.SolNum[cell] : "");
    }
}

TEST(Generator, PuzzlesKeepTheirPromises) {
    for (Difficulty difficulty : {Difficulty::Easy, Difficulty::Hard}) {
        std::set<std::string> records;
        std::set<int> blanks;
        for (std::uint64_t stream = 0; stream < 150; ++stream) {
            const Board board = createdPuzzle(difficulty, stream);
            SCOPED_TRACE(PuzzleRecord(board));
            expectPuzzle(board, difficulty);
            EXPECT_EQ(countSolutions(board).found, 1);
            records.insert(PuzzleRecord(board));
            blanks.insert(board.BlankHex);
            int givens = 0;
            for (CellId cell : AllCells) {
                givens += board.FixedCell[cell] && cell.hexagon != board.BlankHex ? 1 : 0;
                EXPECT_TRUE(board.FixedCell[cell] || SideLink[cell]);
            }
            EXPECT_LE(givens, 45);
            EXPECT_FALSE(board.FixedCell[1][5] || board.FixedCell[19][2]);
        }
        EXPECT_EQ(records.size(), 150U);
        EXPECT_EQ(blanks, (std::set<int>{5, 7, 8, 12, 13, 15}));
    }
}

TEST(Generator, AWatchedPuzzleIsTheSameAndIsDrawnAsItGrows) {
    for (Difficulty difficulty : {Difficulty::Easy, Difficulty::Hard}) {
        Board board = createdPuzzle(Difficulty::Easy, 99);
        board.SkipHex = 4;
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
        EXPECT_EQ(board, createdPuzzle(difficulty, 5));
        EXPECT_EQ(board.CellNum, drawn);
        EXPECT_EQ(emptied.size(), 19U) << "the old puzzle goes first";
        EXPECT_GT(yields, 8);
    }
}

TEST(Generator, ATableWithoutAFillingIsTriedAgainAndSaidSo) {
    struct Enough {};
    std::vector<std::string> said;
    CreationObserver observer;
    observer.message = [&](const std::string& text) {
        said.push_back(text);
        if (said.size() == 2)
            throw Enough();
    };
    Board board;
    Chance chance(7);
    const SearchFill none(std::array<Arrangement, 1>{{{1, 2, 3, 4, 5, 6}}});
    EXPECT_THROW(CreatePuzzle(board, Difficulty::Easy, chance, none, observer), Enough);
    EXPECT_EQ(said, std::vector<std::string>(2, "No solution in 50 iterations, solution aborted"));
}

TEST(Generator, ABlankHexagonIsChosenOrTheGivensAreLeft) {
    Chance chance(8);
    int failures = 0;
    for (int i = 0; i < 100; ++i) {
        const Board start = sampleBoard(Sample::Puzzle, chance);
        Board board = start;
        const auto difficulty = i % 2 == 0 ? Difficulty::Easy : Difficulty::Hard;
        if (ChooseBlankHexagon(board, difficulty, chance)) {
            expectPuzzle(board, difficulty);
            continue;
        }
        ++failures;
        EXPECT_EQ(board.FixedCell, start.FixedCell);
        EXPECT_EQ(board.CellNum, start.CellNum);
        EXPECT_EQ(board.BlankHex, NoHexagon);
        EXPECT_EQ(board.SkipHex, NoHexagon);
    }
    EXPECT_GT(failures, 20);
    EXPECT_LT(failures, 90);
}

TEST(Generator, OneHalfOfTheDrawsIsEasy) {
    constexpr auto Easy = Difficulty::Easy;
    constexpr auto Hard = Difficulty::Hard;
    for (const auto& [number, drawn] :
         {std::pair(0U, Easy), {49U, Easy}, {50U, Hard}, {99U, Hard}}) {
        Chance chance = chanceOf(number);
        EXPECT_EQ(drawDifficulty(std::nullopt, chance), drawn) << number;
        EXPECT_EQ(drawDifficulty(Hard, chance), Hard);
    }
}

} // namespace
} // namespace tessaly
