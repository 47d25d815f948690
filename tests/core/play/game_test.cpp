#include "core/play/game.h"

#include "support/sample_puzzles.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

constexpr CellId Cell{7, 3};

struct GameTest : testing::Test, Game {
    void type(CellId cell, const std::string& digits) {
        for (char digit : digits)
            typeDigit(cell, digit);
    }
};

TEST_F(GameTest, TypedDigitsMakeMarksAndOneUndoRecord) {
    type(Cell, "351");
    ASSERT_EQ(undoList.size(), 1u);
    EXPECT_EQ(undoList.text(0), "0703");
    EXPECT_TRUE(TouchedCell[Cell]);
    type(Cell, "3120645");
    EXPECT_EQ(board.CellNum[Cell], "351206") << "no digit twice, six at most";
    place(Cell, "");
    undo();
    EXPECT_EQ(board.CellNum[Cell], "351206") << "all six come back";
    EXPECT_TRUE(undo().test(7));
    EXPECT_EQ(board.CellNum[Cell], "");
    EXPECT_TRUE(TouchedCell[Cell]) << "a single record leaves the cell touched";
    EXPECT_TRUE(undo().none());
}

TEST_F(GameTest, PlacingAlwaysPushesTheEntryBefore) {
    for (const char* entry : {"3", "", ""})
        place(Cell, entry);
    ASSERT_EQ(undoList.size(), 3u);
    EXPECT_EQ(undoList.text(1), "07033");
    undo();
    undo();
    EXPECT_EQ(board.CellNum[Cell], "3");
    PushUndo(0, 3);
    PushUndo(7, -1);
    EXPECT_EQ(undoList.size(), 1u);
}

TEST_F(GameTest, CopyAcrossSidesFeedsLaterCellsAndIsUndoneAsOne) {
    board.BlankHex = 5;
    place({2, 3}, "6"); // faces hexagon 1 cell 6
    place({5, 1}, "4"); // faces hexagon 2 cell 4, but hexagon 5 is blank
    board.CellNum[1][6] = "123456";
    int count = 0;
    CopyAcrossSides(count);
    EXPECT_EQ(count, 1);
    EXPECT_EQ(board.CellNum[1][6], "6");
    EXPECT_EQ(board.CellNum[2][4], "");
    EXPECT_EQ(undoList.text(0), "0106*123456");
    EXPECT_TRUE(undo().test(1));
    EXPECT_EQ(board.CellNum[1][6], "123456");
    EXPECT_FALSE(TouchedCell[1][6]);
}

TEST_F(GameTest, AGroupedRunIsUndoneDownToTheSingleRecordBelow) {
    place(Cell, "1");
    for (int hexagon = 1; hexagon <= 3; ++hexagon)
        board.CellNum[hexagon] = {"", "1", "2", "3", "4", "5", ""};
    EXPECT_EQ(setSingles(), 3);
    EXPECT_EQ(board.CellNum[1][6], "6");
    EXPECT_FALSE(TouchedCell[1][6]) << "this assist touches nothing";
    int count = 0;
    CopyAcrossSides(count);
    EXPECT_GT(count, 0);
    const HexagonSet changed = undo();
    EXPECT_TRUE(changed.test(1) && changed.test(2) && changed.test(3)) << "both form one run";
    EXPECT_EQ(board.CellNum[1][6], "");
    EXPECT_EQ(board.CellNum[Cell], "1");
    ASSERT_EQ(undoList.size(), 1u);
}

TEST_F(GameTest, OnlyWhatThePlayerMayFillIsSelectableAndReset) {
    EXPECT_FALSE(isSelectable({1, 2})) << "no puzzle";
    const Board fresh = boardOf(sampleRecords("easy.txt").front());
    board = fresh;
    int filled = 0;
    for (CellId cell : AllCells) {
        const bool isOpen = !fresh.FixedCell[cell] && cell.hexagon != fresh.BlankHex;
        EXPECT_EQ(isSelectable(cell), isOpen);
        if (isOpen)
            type(cell, ++filled % 2 == 0 ? "12" : "3");
    }
    EXPECT_FALSE(isSelectable(CellId{}));
    reset();
    EXPECT_EQ(board, fresh);
    EXPECT_TRUE(undoList.empty());
    EXPECT_EQ(TouchedCell, Grid<bool>{});
}

} // namespace
} // namespace tessaly
