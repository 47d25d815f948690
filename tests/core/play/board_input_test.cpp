#include "core/play/board_input.h"

#include "core/play/board_geometry.h"
#include "core/play/selection_walk.h"
#include "support/core_fakes.h"
#include "support/sample_puzzles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <queue>

namespace tessaly {
namespace {

class BoardInputTest : public testing::Test, protected PlayScene {
protected:
    BoardInputTest() { game.board = puzzleWithoutGivens(); }

    void pointAt(CellId cell) { input.Picture2_MouseMove(numberCentre(cell)); }
    void click(PointerButton button = PointerButton::Left) {
        input.Picture2_MouseDown(button, numberCentre(input.selection()));
        input.Picture2_MouseUp(button);
    }
    /// A key that is also a character arrives through both.
    void key(int code) {
        int arriving = code;
        input.Picture2_KeyDown(arriving);
        arriving = code;
        input.Picture2_KeyPress(arriving);
    }
    const std::string& entry(CellId cell) const { return game.board.CellNum[cell]; }
};

TEST_F(BoardInputTest, SelectionFollowsThePointerOverCellsThatMayBeFilled) {
    game.board.BlankHex = 5;
    game.board.FixedCell[1][2] = true;
    pointAt({1, 1});
    EXPECT_EQ(input.SelHex(), 1);
    EXPECT_EQ(input.SelCell(), 1);
    EXPECT_EQ(display.marker, (CellId{1, 1}));
    EXPECT_GT(display.focused, 0);
    for (CellId cell : {CellId{1, 2}, CellId{5, 3}}) {
        pointAt({1, 1});
        pointAt(cell);
        EXPECT_EQ(input.SelHex(), -1);
        EXPECT_EQ(input.SelCell(), -1);
        EXPECT_FALSE(display.marker);
        key('3');
        EXPECT_TRUE(game.undoList.empty());
    }
    input.Picture2_MouseMove({-5, 3});
    EXPECT_EQ(input.SelHex(), -1);
}

TEST_F(BoardInputTest, AKeyThatArrivesTwiceTypesOnceButClearsTwice) {
    pointAt({7, 3});
    key('3');
    key('5');
    EXPECT_EQ(entry({7, 3}), "35");
    EXPECT_EQ(game.undoList.size(), 1u);
    key(8);
    EXPECT_EQ(entry({7, 3}), "");
    EXPECT_EQ(game.undoList.size(), 3u);
    int code = 'a';
    input.Picture2_KeyPress(code);
    EXPECT_EQ(code, 0) << "consumed";
    EXPECT_EQ(entry({7, 3}), "");
    for (const int clearing : {8, 27, 46}) {
        game.place({7, 3}, "4");
        key(clearing);
        EXPECT_EQ(entry({7, 3}), "") << clearing;
    }
    game.place({7, 3}, "4");
    const std::size_t before = game.undoList.size();
    for (const int idle : {0, int{' '}, int{'/'}, int{'7'}})
        key(idle);
    EXPECT_EQ(game.undoList.size(), before);
    key(8);
    key('0');
    EXPECT_EQ(entry({7, 3}), "0");
    key('7');
    EXPECT_EQ(entry({7, 3}), "0");
}

TEST_F(BoardInputTest, ThePalettePlacesAndErases) {
    pointAt({7, 3});
    click();
    EXPECT_TRUE(game.undoList.empty()) << "no item pressed";
    input.digt_MouseUp(3, PointerButton::Left);
    EXPECT_EQ(display.palette, 3);
    pointAt({7, 3});
    click();
    EXPECT_EQ(entry({7, 3}), "4");
    click();
    EXPECT_EQ(game.undoList.size(), 2u) << "always a record";
    input.digt_MouseUp(6, PointerButton::Left);
    EXPECT_EQ(display.palette, 6);
    click();
    EXPECT_EQ(entry({7, 3}), "");
    input.digt_MouseUp(6, PointerButton::Left);
    EXPECT_EQ(display.palette, BoardInput::NoPaletteItem) << "a second press releases";
    input.digt_MouseUp(2, PointerButton::Left);
    input.digt_MouseUp(4, PointerButton::Other);
    EXPECT_EQ(display.palette, 2);
    input.digt_MouseUp(0, PointerButton::Right);
    EXPECT_EQ(display.palette, BoardInput::NoPaletteItem);
}

TEST_F(BoardInputTest, ThePopupActsOnTheCellThatItWasOpenedFor) {
    display.message = "old";
    pointAt({7, 3});
    click(PointerButton::Right);
    EXPECT_TRUE(display.popupShown);
    EXPECT_FALSE(display.popupUpwards);
    EXPECT_EQ(display.message, "");
    pointAt({8, 1});
    input.Num16_Click(4);
    EXPECT_EQ(entry({7, 3}), "5");
    EXPECT_EQ(entry({8, 1}), "");
    EXPECT_FALSE(display.popupShown);

    pointAt({7, 3});
    click(PointerButton::Right);
    input.Num16_Click(BoardInput::PopupEraser);
    EXPECT_EQ(entry({7, 3}), "");
    EXPECT_EQ(game.undoList.size(), 2u);

    click(PointerButton::Right);
    input.Num16_Click(BoardInput::PopupClose);
    EXPECT_EQ(game.undoList.size(), 2u);
    EXPECT_FALSE(display.popupShown);
}

TEST_F(BoardInputTest, ThePopupSetsTheLastNumberOfItsHexagonAndCopiesAcrossSides) {
    game.board.CellNum[7] = {"", "1", "2", "", "4", "5", "6"};
    pointAt({7, 1});
    click(PointerButton::Right);
    input.Num16_Click(BoardInput::PopupSingle);
    EXPECT_EQ(entry({7, 3}), "3");
    EXPECT_EQ(game.undoList.text(0), "0703") << "a single record";
    click(PointerButton::Right);
    input.Num16_Click(BoardInput::PopupSideCopy);
    EXPECT_EQ(entry({5, 6}), "3");
    EXPECT_EQ(display.message, " 6 Cells Fixed");

    const Board before = game.board;
    click(PointerButton::Right);
    input.Num16_Click(BoardInput::PopupSingle);
    EXPECT_EQ(game.board, before) << "the hexagon is full";
}

TEST_F(BoardInputTest, ThePopupOpensUpwardsAtTheBottomAndHides) {
    for (CellId cell :
         {CellId{17, 4}, CellId{19, 1}, CellId{19, 2}, CellId{19, 3}, CellId{18, 6}}) {
        pointAt(cell);
        click(PointerButton::Right);
        EXPECT_TRUE(display.popupUpwards);
    }
    input.Timer1_Timer();
    EXPECT_FALSE(display.popupShown);
    click(PointerButton::Right);
    click(PointerButton::Left);
    EXPECT_FALSE(display.popupShown);
    click(PointerButton::Right);
    input.Picture2_MouseMove({-1, -1});
    input.Picture2_MouseUp(PointerButton::Left);
    EXPECT_FALSE(display.popupShown);
}

TEST_F(BoardInputTest, WithoutASelectionThereIsNoPopup) {
    input.openPopupAtSelection();
    input.Picture2_MouseDown(PointerButton::Right, {100, 100});
    EXPECT_FALSE(display.popupShown);
    input.Num16_Click(2);
    EXPECT_EQ(game.board, puzzleWithoutGivens());
    pointAt({7, 3});
    input.openPopupAtSelection();
    EXPECT_TRUE(display.popupShown);
    EXPECT_EQ(display.popupCorner, numberCentre({7, 3}));
    input.pointerLeft();
    EXPECT_FALSE(input.selection());
    input.Num16_Click(2);
    EXPECT_EQ(entry({7, 3}), "3") << "the pop-up still knows its cell";
}

TEST_F(BoardInputTest, PeekingShowsCandidatesOnlyWhileHeld) {
    game.place({10, 1}, "6");
    const Board before = game.board;
    input.Celltags_MouseDown(10);
    EXPECT_EQ(display.peeked[2], "12345");
    EXPECT_EQ(game.board, before);
    input.Celltags_MouseUp();
    EXPECT_EQ(display.drawn, std::vector<int>{10});
    EXPECT_EQ(game.undoList.size(), 1u);
    game.board = Board();
    input.Celltags_MouseDown(10);
    EXPECT_EQ(game.board, Board()) << "there is no puzzle";
}

TEST_F(BoardInputTest, NothingIsEnteredWhilePuzzlesAreCreated) {
    input.digt_MouseUp(3, PointerButton::Left);
    pointAt({7, 3});
    input.openPopupAtSelection();
    busy.creating = true;
    key('3');
    input.Picture2_MouseUp(PointerButton::Left);
    pointAt({8, 3});
    input.moveSelection(1, 0);
    input.selectFirst();
    input.selectLast();
    input.pointerLeft();
    EXPECT_EQ(input.selection(), (CellId{7, 3}));
    input.Celltags_MouseDown(10);
    input.Num16_Click(2);
    EXPECT_FALSE(display.popupShown);
    input.Picture2_MouseDown(PointerButton::Right, {100, 100});
    EXPECT_FALSE(display.popupShown);
    EXPECT_EQ(game.board, puzzleWithoutGivens());
}

/// The cells that the arrow keys reach from the first one.
int cellsReachedByArrows(const Game& game) {
    Grid<bool> seen;
    std::queue<CellId> open;
    int count = 0;
    const auto visit = [&](CellId cell) {
        if (seen[cell])
            return;
        seen[cell] = true;
        ++count;
        open.push(cell);
    };
    visit(firstSelectable(game));
    while (!open.empty()) {
        const CellId cell = open.front();
        open.pop();
        visit(cellBeside(game, cell, 1, 0));
        visit(cellBeside(game, cell, -1, 0));
        visit(cellBeside(game, cell, 0, 1));
        visit(cellBeside(game, cell, 0, -1));
    }
    return count;
}

TEST(SelectionWalk, ArrowKeysReachEveryCellOfEveryPuzzle) {
    for (const char* file : {"easy.txt", "hard.txt"}) {
        for (const std::string& record : sampleRecords(file)) {
            Game game;
            game.board = boardOf(record);
            const auto selectable =
                std::count_if(AllCells.begin(), AllCells.end(),
                              [&game](CellId cell) { return game.isSelectable(cell); });
            EXPECT_EQ(cellsReachedByArrows(game), selectable) << record;
        }
    }
}

TEST_F(BoardInputTest, ArrowsHomeAndEndMoveTheSelection) {
    game.board.BlankHex = 5;
    input.moveSelection(1, 0);
    EXPECT_EQ(input.selection(), firstSelectable(game));
    EXPECT_EQ(input.selection().hexagon, 1);
    input.selectLast();
    EXPECT_EQ(input.selection(), (CellId{19, 5}));
    input.moveSelection(0, 1);
    EXPECT_EQ(input.selection(), (CellId{19, 5})) << "there is nothing below";
    pointAt({2, 5});
    input.moveSelection(1, 0);
    EXPECT_NE(input.selection().hexagon, 5) << "the blank hexagon is stepped over";
    input.pointerLeft();
    input.moveSelection(-1, 0);
    EXPECT_EQ(input.selection(), (CellId{19, 5}));
    for (CellId cell : AllCells)
        game.board.FixedCell[cell] = true;
    input.selectFirst();
    EXPECT_EQ(input.SelHex(), -1);
}

} // namespace
} // namespace tessaly
