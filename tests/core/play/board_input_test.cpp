#include "core/play/board_input.h"

#include "core/play/selection_walk.h"
#include "support/core_fakes.h"
#include "support/sample_puzzles.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tessaly {
namespace {

constexpr CellId Cell{7, 3};

struct BoardInputTest : testing::Test, PlayScene {
    BoardInputTest() {
        game.board = puzzleWithoutGivens();
        pointAt(Cell);
    }
    void movePointerTo(Point point) {
        pointer = point;
        input.Picture2_MouseMove(point);
    }
    void pointAt(CellId cell) { movePointerTo(numberCentre(cell)); }
    void click(PointerButton button = PointerButton::Left) {
        input.Picture2_MouseDown(button, pointer);
        input.Picture2_MouseUp(button);
    }
    /// A key that is also a character arrives through both.
    void key(int code) {
        for (const bool isCharacter : {false, true}) {
            int arriving = code;
            isCharacter ? input.Picture2_KeyPress(arriving) : input.Picture2_KeyDown(arriving);
            EXPECT_EQ(arriving, busy.isBusy() ? code : 0) << "consumed";
        }
    }
    const std::string& entry(CellId cell = Cell) const { return game.board.CellNum[cell]; }

    Point pointer;
};

TEST_F(BoardInputTest, SelectionFollowsThePointerOverCellsThatMayBeFilled) {
    EXPECT_EQ((CellId{input.SelHex(), input.SelCell()}), Cell);
    EXPECT_EQ(display.marker, Cell);
    EXPECT_GT(display.focused, 0);
    game.board.BlankHex = 5;
    game.board.FixedCell[1][2] = true;
    for (const Point outside : {numberCentre({1, 2}), numberCentre({5, 3}), Point{-5, 3}}) {
        pointAt(Cell);
        movePointerTo(outside);
        EXPECT_TRUE(input.SelHex() == -1 && input.SelCell() == -1 && !display.marker);
        key('3');
        click();
        click(PointerButton::Right);
        input.openPopupAtSelection();
        EXPECT_TRUE(game.undoList.empty() && !display.popupShown);
    }
}

TEST_F(BoardInputTest, AKeyThatArrivesTwiceTypesOnceButClearsTwice) {
    // What changes nothing is not drawn.
    const std::tuple<int, std::string, std::size_t, std::size_t> rows[] = {
        {'3', "3", 1, 1}, {'5', "35", 1, 2}, {'7', "35", 1, 2}, {'a', "35", 1, 2}, {8, "", 3, 3},
        {'0', "0", 4, 4}, {27, "", 6, 5},    {'6', "6", 7, 6},  {46, "", 9, 7}};
    for (const auto& [code, expected, records, drawn] : rows) {
        key(code);
        EXPECT_EQ(entry(), expected) << code;
        EXPECT_EQ(game.undoList.size(), records) << code;
        EXPECT_EQ(display.drawn.size(), drawn) << code;
    }
    int none = 0;
    input.Picture2_KeyDown(none);
    EXPECT_EQ(game.undoList.size(), 9u);
}

TEST_F(BoardInputTest, ThePalettePlacesAndErases) {
    click();
    EXPECT_TRUE(game.undoList.empty()) << "no item pressed";
    input.digt_MouseUp(3, PointerButton::Left);
    EXPECT_EQ(display.palette, 3);
    click(PointerButton::Right);
    EXPECT_EQ(entry(), "") << "that opens the pop-up and enters nothing";
    click();
    EXPECT_EQ(entry(), "4");
    click();
    EXPECT_EQ(game.undoList.size(), 2u) << "always a record";
    input.digt_MouseUp(BoardInput::PaletteEraser, PointerButton::Left);
    click();
    EXPECT_EQ(entry(), "");
    for (const auto& [item, button, pressed] : {std::tuple(6, PointerButton::Left, -1),
                                                {2, PointerButton::Left, 2},
                                                {4, PointerButton::Other, 2},
                                                {0, PointerButton::Right, -1}}) {
        input.digt_MouseUp(item, button);
        EXPECT_EQ(display.palette, pressed);
    }
}

TEST_F(BoardInputTest, ThePopupActsOnTheCellThatItWasOpenedFor) {
    input.Num16_Click(2);
    EXPECT_EQ(entry(), "") << "it is for no cell yet";
    display.message = "old";
    game.board.CellNum[7] = {"", "1", "2", "", "4", "5", "6"};
    using enum BoardInput::PopupButton;
    const std::tuple<int, const char*, const char*> rows[] = {
        {PopupSingle, "3", "0703"}, {PopupSingle, "3", "0703"}, // the hexagon is full
        {4, "5", "07033"},          {PopupClose, "5", "07033"}, {PopupEraser, "", "07035"},
        {2, "3", "0703"},           {PopupSideCopy, "3", "*"}};
    for (const auto& [button, expected, record] : rows) {
        pointAt(Cell);
        input.openPopupAtSelection();
        EXPECT_TRUE(display.popupShown && !display.popupUpwards);
        EXPECT_EQ(display.popupCorner, numberCentre(Cell));
        EXPECT_EQ(display.message, "");
        pointAt({8, 1});
        input.Num16_Click(button);
        EXPECT_EQ(entry(), expected) << button;
        EXPECT_TRUE(game.undoList.text(0).ends_with(record)) << game.undoList.text(0);
        EXPECT_FALSE(display.popupShown);
    }
    EXPECT_EQ(display.message, " 6 Cells Fixed");
}

TEST_F(BoardInputTest, ThePopupOpensUpwardsAtTheBottomAndIsHidden) {
    for (CellId cell :
         {CellId{17, 4}, CellId{19, 1}, CellId{19, 2}, CellId{19, 3}, CellId{18, 6}}) {
        pointAt(cell);
        click(PointerButton::Right);
        EXPECT_TRUE(display.popupUpwards);
    }
    const auto hides = [this](const auto& what) {
        pointAt(Cell);
        click(PointerButton::Right);
        what();
        return !display.popupShown;
    };
    EXPECT_TRUE(hides([&] { input.Timer1_Timer(); }) && hides([&] { click(); }));
    EXPECT_TRUE(hides([&] { key('0'); })) << "a number was entered";
    EXPECT_TRUE(hides([&] {
        input.pointerLeft();
        input.Picture2_MouseUp(PointerButton::Left);
    }));
    EXPECT_TRUE(hides([&] { input.forgetSelection(); }));
    EXPECT_EQ(input.selection(), Cell) << "the pointer stands there";
    input.Num16_Click(2);
    EXPECT_EQ(entry(), "0") << "its cell was another puzzle's";
}

TEST_F(BoardInputTest, PeekingShowsCandidatesOnlyWhileHeld) {
    game.place({10, 1}, "6");
    const Board before = game.board;
    input.Celltags_MouseDown(10);
    EXPECT_EQ(display.peeked[2], "12345");
    EXPECT_EQ(game.board, before);
    input.Celltags_MouseUp();
    input.Celltags_MouseUp();
    EXPECT_EQ(display.drawn, std::vector<int>{10});
    display.peeked = {};
    game.board = Board();
    input.Celltags_MouseDown(10);
    EXPECT_EQ(display.peeked[2], "") << "there is no puzzle";
}

TEST_F(BoardInputTest, NothingIsEnteredWhileACommandIsUnderWay) {
    input.digt_MouseUp(3, PointerButton::Left);
    input.openPopupAtSelection();
    busy.creating = true;
    key('3');
    input.Picture2_MouseUp(PointerButton::Left);
    pointAt({8, 3});
    input.moveSelection(1, 0);
    input.selectFirst();
    input.selectLast();
    input.pointerLeft();
    EXPECT_EQ(input.selection(), Cell);
    input.Celltags_MouseDown(10);
    input.Num16_Click(2);
    input.openPopupAtSelection();
    EXPECT_FALSE(display.popupShown);
    EXPECT_EQ(game.board, puzzleWithoutGivens());
    EXPECT_TRUE(display.drawn.empty());
}

TEST_F(BoardInputTest, ArrowsHomeAndEndReachEveryCellThatMayBeFilled) {
    for (const char* file : {"easy.txt", "hard.txt"}) {
        game.board = boardOf(sampleRecords(file).front());
        std::vector<CellId> reached{firstSelectable(game)};
        for (std::size_t i = 0; i < reached.size(); ++i)
            for (const auto& [columns, rows] : {std::pair(1, 0), {-1, 0}, {0, 1}, {0, -1}})
                if (const CellId next = cellBeside(game, reached[i], columns, rows);
                    std::find(reached.begin(), reached.end(), next) == reached.end())
                    reached.push_back(next);
        EXPECT_EQ(std::ssize(reached),
                  std::count_if(AllCells.begin(), AllCells.end(),
                                [this](CellId cell) { return game.isSelectable(cell); }));
    }
    game.board = puzzleWithoutGivens();
    input.pointerLeft();
    input.moveSelection(1, 0);
    EXPECT_EQ(input.selection(), (CellId{1, 2}));
    input.pointerLeft();
    input.moveSelection(-1, 0);
    input.moveSelection(0, 1); // there is nothing below
    EXPECT_EQ(input.selection(), (CellId{19, 5}));
    input.selectFirst();
    EXPECT_EQ(input.selection(), (CellId{1, 2}));
    input.selectLast();
    EXPECT_EQ(input.selection(), (CellId{19, 5}));
    for (CellId cell : AllCells)
        game.board.FixedCell[cell] = true;
    input.selectFirst();
    EXPECT_EQ(input.SelHex(), -1);
}

} // namespace
} // namespace tessaly
