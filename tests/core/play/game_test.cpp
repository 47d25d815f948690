#include "core/play/game.h"

#include "support/sample_puzzles.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

constexpr CellId Cell{7, 3};

void type(Game& game, CellId cell, const std::string& digits) {
    for (char digit : digits)
        game.typeDigit(cell, digit);
}

TEST(Game, TypedDigitsMakeMarksAndOneUndoRecord) {
    Game game;
    type(game, Cell, "351");
    EXPECT_EQ(game.board.CellNum[Cell], "351");
    ASSERT_EQ(game.undoList.size(), 1u);
    EXPECT_EQ(game.undoList.text(0), "0703");
    EXPECT_TRUE(game.TouchedCell[Cell]);

    type(game, Cell, "3120645");
    EXPECT_EQ(game.board.CellNum[Cell], "351206") << "no digit twice, six at most";

    EXPECT_TRUE(game.undo().test(7));
    EXPECT_EQ(game.board.CellNum[Cell], "");
    EXPECT_TRUE(game.TouchedCell[Cell]) << "a single record leaves the cell touched";
    EXPECT_TRUE(game.undo().none());
}

TEST(Game, PlacingAlwaysPushesTheEntryBefore) {
    Game game;
    game.place(Cell, "3");
    game.place(Cell, "");
    game.place(Cell, "");
    ASSERT_EQ(game.undoList.size(), 3u);
    EXPECT_EQ(game.undoList.text(1), "07033");
    game.undo();
    game.undo();
    EXPECT_EQ(game.board.CellNum[Cell], "3");

    game.PushUndo(0, 3);
    game.PushUndo(7, -1);
    EXPECT_EQ(game.undoList.size(), 1u);
}

TEST(Game, CopyAcrossSidesFeedsLaterCellsAndIsUndoneAsOne) {
    Game game;
    game.board.BlankHex = 5;
    game.place({2, 3}, "6"); // faces hexagon 1 cell 6
    game.place({5, 1}, "4"); // faces hexagon 2 cell 4, but hexagon 5 is blank
    game.board.CellNum[1][6] = "12";

    int count = 0;
    game.CopyAcrossSides(count);

    EXPECT_EQ(count, 1);
    EXPECT_EQ(game.board.CellNum[1][6], "6");
    EXPECT_EQ(game.board.CellNum[2][4], "");
    EXPECT_EQ(game.undoList.text(0), "0106*12");
    EXPECT_TRUE(game.undo().test(1));
    EXPECT_EQ(game.board.CellNum[1][6], "12");
    EXPECT_FALSE(game.TouchedCell[1][6]);
}

TEST(Game, AGroupedRunIsUndoneDownToTheSingleRecordBelow) {
    Game game;
    game.place(Cell, "1");
    for (int hexagon = 1; hexagon <= 3; ++hexagon)
        game.board.CellNum[hexagon] = {"", "1", "2", "3", "4", "5", ""};
    EXPECT_EQ(game.setSingles(), 3);
    EXPECT_EQ(game.board.CellNum[1][6], "6");
    EXPECT_EQ(game.board.CellNum[2][6], "6");
    EXPECT_FALSE(game.TouchedCell[1][6]) << "this assist touches nothing";
    int count = 0;
    game.CopyAcrossSides(count);
    EXPECT_GT(count, 0);

    const HexagonSet changed = game.undo();

    EXPECT_TRUE(changed.test(1) && changed.test(2) && changed.test(3))
        << "both groups form one run";
    EXPECT_EQ(game.board.CellNum[1][6], "");
    EXPECT_EQ(game.board.CellNum[Cell], "1");
    ASSERT_EQ(game.undoList.size(), 1u);
    game.undo();
    EXPECT_EQ(game.board.CellNum[Cell], "");
}

TEST(Game, ResetKeepsTheGivensAndForgetsTheRest) {
    Game game;
    const Board fresh = boardOf(sampleRecords("easy.txt").front());
    game.board = fresh;
    for (CellId cell : AllCells)
        if (game.isSelectable(cell))
            type(game, cell, cell.position % 2 == 0 ? "12" : "3");
    ASSERT_NE(game.board, fresh);

    game.reset();

    EXPECT_EQ(game.board, fresh);
    EXPECT_TRUE(game.undoList.empty());
    EXPECT_EQ(game.TouchedCell, Grid<bool>{});
}

TEST(Game, GivensAndTheBlankHexagonCannotBeSelected) {
    Game game;
    EXPECT_FALSE(game.isSelectable({1, 2})) << "no puzzle";
    game.board = puzzleWithoutGivens();
    game.board.BlankHex = 5;
    game.board.FixedCell[1][1] = true;
    EXPECT_FALSE(game.isSelectable({1, 1}));
    EXPECT_TRUE(game.isSelectable({1, 2}));
    EXPECT_FALSE(game.isSelectable({5, 2}));
    EXPECT_FALSE(game.isSelectable(CellId{}));
}

} // namespace
} // namespace tessaly
