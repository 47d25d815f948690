#include "core/board/board.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

TEST(Board, ResetToGivensKeepsOnlyTheGivens) {
    Board board;
    board.SolNum[7][2] = "4";
    board.SolNum[7][3] = "5";
    board.FixedCell[7][2] = true;
    board.CellNum[7][2] = "1";
    board.CellNum[7][3] = "23";

    board.ResetToGivens();

    EXPECT_EQ(board.CellNum[7][2], "4");
    EXPECT_EQ(board.CellNum[7][3], "");
}

TEST(Board, PlacedNumbersSkipMarksAndEmptyCells) {
    Board board;
    board.CellNum[19] = {"", "3", "", "12", "3", "0", ""};
    EXPECT_EQ(board.PlacedNumbers(19), "330");
    EXPECT_EQ(board.PlacedNumbers(18), "");
}

TEST(Board, WithoutRemovesEveryOccurrence) {
    EXPECT_EQ(Without("123456", "3361"), "245");
    EXPECT_EQ(Without("1212", "1"), "22");
    EXPECT_EQ(Without("", "1"), "");
}

} // namespace
} // namespace tessaly
