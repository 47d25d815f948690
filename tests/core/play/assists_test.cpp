#include "core/play/assists.h"

#include "core/play/game.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

/// Hexagon 10 holds the givens 1, 2 and 3 in its cells 1, 2 and 3.
Game gameWithThreeGivens() {
    Game game;
    for (int position = 1; position <= 3; ++position) {
        const CellId cell{10, position};
        game.board.CellNum[cell] = NumText(position);
        game.board.FixedCell[cell] = true;
    }
    return game;
}

TEST(CandidateText, ComesFromBothHexagonsOfTheSide) {
    Game game = gameWithThreeGivens();
    // Cell 5 of hexagon 10 faces hexagon 15, cell 6 faces hexagon 12.
    game.place({15, 1}, "6");
    EXPECT_EQ(CandidateText(game.board, game.TouchedCell, {10, 5}), "45");
    game.place({15, 2}, "5");
    EXPECT_EQ(CandidateText(game.board, game.TouchedCell, {10, 5}), "5") << "the pair must match";
    EXPECT_EQ(CandidateText(game.board, game.TouchedCell, {10, 1}), "1") << "a given is itself";
    EXPECT_EQ(CandidateText(game.board, game.TouchedCell, {1, 1}), "123456") << "a rim cell";
    game.board.SkipHex = 10;
    EXPECT_EQ(CandidateText(game.board, game.TouchedCell, {10, 5}), "");
}

TEST(CandidateText, NumbersOfASavedGameCountOnlyOnceTouched) {
    Game game = gameWithThreeGivens();
    game.board.CellNum[10][4] = "4";
    EXPECT_EQ(CandidateText(game.board, game.TouchedCell, {10, 4}), "456");
    game.TouchedCell[10][4] = true;
    EXPECT_EQ(CandidateText(game.board, game.TouchedCell, {10, 4}), "4");
    EXPECT_EQ(CountedNumbers(game.board, game.TouchedCell, 10), "1234");
}

TEST(CandidateText, LeavesTheLastCellOfAHexagonAlone) {
    Game game = gameWithThreeGivens();
    game.place({10, 4}, "4");
    game.place({10, 5}, "5");
    game.board.CellNum[10][6] = "12";
    EXPECT_EQ(CandidateText(game.board, game.TouchedCell, {10, 6}), "12");
}

TEST(CandidateText, FallsBackToItsOwnHexagonWhereTheMarkStandsAlready) {
    Game game = gameWithThreeGivens();
    game.place({15, 1}, "6");
    game.board.CellNum[10][5] = "45";
    EXPECT_EQ(CandidateText(game.board, game.TouchedCell, {10, 5}), "456");
}

TEST(SingleCandidate, NamesTheFirstOpenCellOfAHexagonThatLacksOneNumber) {
    Game game;
    game.board.CellNum[4] = {"", "1", "23", "3", "4", "5", "6"};
    const Single single = SingleCandidate(game.board, 4);
    EXPECT_EQ(single.cell, (CellId{4, 2}));
    EXPECT_EQ(single.number, "2");

    game.board.CellNum[4][5] = "3"; // two 3s, and two numbers are missing
    EXPECT_FALSE(SingleCandidate(game.board, 4).cell);
    game.board.CellNum[4] = {"", "1", "1", "3", "4", "5", "6"}; // no open cell
    EXPECT_FALSE(SingleCandidate(game.board, 4).cell);
    EXPECT_FALSE(SingleCandidate(game.board, 20).cell);
    game.board.CellNum[4] = {"", "1", "23", "3", "4", "5", "6"};
    game.board.SkipHex = 4;
    EXPECT_FALSE(SingleCandidate(game.board, 4).cell);
}

TEST(PencilMarks, FillOverwritesMarksAndUntouchedNumbersAndClearTakesMarksOnly) {
    Game game = gameWithThreeGivens();
    game.board.CellNum[10][4] = "6"; // from a saved game
    game.board.CellNum[10][5] = "12";
    fillPencilMarks(game.board, game.TouchedCell);
    EXPECT_EQ(game.board.CellNum[10][4], "456");
    EXPECT_EQ(game.board.CellNum[10][5], "456");
    EXPECT_EQ(game.board.CellNum[5][5], "2") << "what the given across the side holds";
    clearPencilMarks(game.board);
    EXPECT_EQ(game.board.CellNum[10][4], "");
    EXPECT_EQ(game.board.CellNum[10][1], "1");
    EXPECT_EQ(game.board.CellNum[5][5], "2");
}

TEST(WithCandidates, WritesThemOverACopy) {
    Game game = gameWithThreeGivens();
    game.board.CellNum[10][4] = "4";
    game.board.CellNum[10][6] = "65";
    EXPECT_EQ(withCandidates(game.board, game.TouchedCell, 10).CellNum[10][6], "456");
    EXPECT_EQ(game.board.CellNum[10][6], "65");
}

} // namespace
} // namespace tessaly
