#include "core/play/assists.h"

#include "support/sample_puzzles.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

Board solvedBoard() {
    Board board = boardOf(sampleRecords("hard.txt").front());
    board.CellNum = board.SolNum;
    return board;
}

TEST(SolutionCheck, NamesTheLowestHexagonWithARepeatedNumberOrAZero) {
    Board board = boardOf(sampleRecords("easy.txt").front());
    EXPECT_EQ(firstWrongHexagon(board), 0) << "missing numbers are no fault";
    board.CellNum[12] = {"", "3", "", "3", "", "33", ""};
    EXPECT_EQ(firstWrongHexagon(board), 12);
    board.CellNum[3] = {"", "", "", "0", "", "", ""};
    EXPECT_EQ(firstWrongHexagon(board), 3);
}

TEST(SolutionCheck, SolvedMeansEveryCellHoldsItsSolution) {
    Board board = solvedBoard();
    EXPECT_TRUE(isSolved(board));
    board.CellNum[19][6] = "12";
    EXPECT_FALSE(isSolved(board)) << "marks";
    board.CellNum[19][6] = "";
    EXPECT_FALSE(isSolved(board));
    board = solvedBoard();
    std::swap(board.CellNum[1][1], board.CellNum[1][2]);
    EXPECT_FALSE(isSolved(board));
    EXPECT_EQ(firstWrongHexagon(board), 0);
}

TEST(SolutionCheck, WithoutASolutionAnySingleNumberPasses) {
    Board board;
    for (CellId cell : AllCells) {
        board.SolNum[cell] = cell.hexagon % 2 == 0 ? "" : "0";
        board.CellNum[cell] = "4";
    }
    EXPECT_TRUE(isSolved(board));
    board.CellNum[2][1] = "45";
    EXPECT_FALSE(isSolved(board)) << "marks are no number";
}

} // namespace
} // namespace tessaly
