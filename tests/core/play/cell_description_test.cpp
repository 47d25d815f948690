#include "core/play/cell_description.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

TEST(CellDescription, SaysWhatACellHolds) {
    Board board;
    board.BlankHex = 7;
    board.CellNum[3][2] = "4";
    EXPECT_EQ(entryInWords(board, {3, 2}), "4");
    board.FixedCell[3][2] = true;
    EXPECT_EQ(entryInWords(board, {3, 2}), "given 4");
    board.CellNum[3][1] = "352";
    EXPECT_EQ(entryInWords(board, {3, 1}), "marks 3 5 2");
    EXPECT_EQ(entryInWords(board, {3, 3}), "empty");
    board.CellNum[7][1] = "2";
    EXPECT_EQ(entryInWords(board, {7, 1}), "withheld");
}

TEST(CellDescription, SaysWhereACellLiesAndWhatLiesAcross) {
    Board board;
    EXPECT_EQ(cellInWords({1, 1}), "hexagon 1, upper left");
    EXPECT_EQ(cellInWords({19, 4}), "hexagon 19, lower right");
    // Hexagon 5 lies beneath hexagon 1, and hexagon 1 has nothing above it.
    board.CellNum[5][2] = "6";
    EXPECT_EQ(neighbourInWords(board, {1, 5}), "across: hexagon 5, top, 6");
    EXPECT_EQ(neighbourInWords(board, {1, 2}), "at the edge");
    EXPECT_EQ(neighbourInWords(board, {5, 6}), "across: hexagon 7, upper right, empty");
}

} // namespace
} // namespace tessaly
