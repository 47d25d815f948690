#include "core/play/cell_description.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

TEST(CellDescription, SaysWhereACellLiesWhatItHoldsAndWhatLiesAcross) {
    Board board;
    board.BlankHex = 7;
    board.CellNum[3] = {"", "352", "4", "", "6", "", ""};
    board.FixedCell[3][2] = true;
    board.CellNum[7][1] = "2";
    EXPECT_EQ(entryInWords(board, {3, 1}), "marks 3 5 2");
    EXPECT_EQ(entryInWords(board, {3, 2}), "given 4");
    EXPECT_EQ(entryInWords(board, {3, 3}), "empty");
    EXPECT_EQ(entryInWords(board, {3, 4}), "6");
    EXPECT_EQ(entryInWords(board, {7, 1}), "withheld");
    EXPECT_EQ(cellInWords({1, 1}), "hexagon 1, upper left");
    EXPECT_EQ(cellInWords({19, 4}), "hexagon 19, lower right");
    board.CellNum[5][2] = "6";
    EXPECT_EQ(neighbourInWords(board, {1, 5}), "across: hexagon 5, top, 6");
    EXPECT_EQ(neighbourInWords(board, {1, 2}), "at the edge");
}

} // namespace
} // namespace tessaly
