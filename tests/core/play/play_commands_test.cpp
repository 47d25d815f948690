#include "core/play/assists.h"
#include "core/play/board_input.h"
#include "core/play/highlights.h"
#include "core/play/selection_walk.h"
#include "core/solver/step_sentence.h"
#include "support/core_fakes.h"
#include "support/sample_puzzles.h"

#include <algorithm>

namespace tessaly::play_commands_test {

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
    using enum PointerButton;
    constexpr int OnBoard = -2, NoItem = BoardInput::NoPaletteItem;
    constexpr int Eraser = BoardInput::PaletteEraser;
    // What is clicked, and with which button; the entry then, the item pressed, the undo records.
    const std::tuple<int, PointerButton, std::string, int, std::size_t> rows[] = {
        {OnBoard, Left, "", NoItem, 0},
        {3, Left, "", 3, 0},
        {OnBoard, Right, "", 3, 0},
        {OnBoard, Left, "4", 3, 1},
        {OnBoard, Left, "4", 3, 2},
        {Eraser, Left, "4", Eraser, 2},
        {OnBoard, Left, "", Eraser, 3},
        {Eraser, Left, "", NoItem, 3},
        {2, Left, "", 2, 3},
        {4, Other, "", 2, 3},
        {0, Right, "", NoItem, 3}};
    for (const auto& [item, button, expected, pressed, records] : rows) {
        item == OnBoard ? click(button) : input.digt_MouseUp(item, button);
        EXPECT_EQ(entry(), expected) << item;
        EXPECT_EQ(display.palette, pressed) << item;
        EXPECT_EQ(game.undoList.size(), records) << "a record whatever stood there";
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
        ASSERT_EQ(entry(), expected) << button;
        EXPECT_TRUE(game.undoList.text(0).ends_with(record)) << game.undoList.text(0);
        EXPECT_FALSE(display.popupShown);
    }
    EXPECT_EQ(display.message, " 6 Cells Fixed");
}

TEST_F(BoardInputTest, ThePopupOpensUpwardsAtTheBottomAndIsHidden) {
    const auto open = [this](CellId cell) {
        pointAt(cell);
        click(PointerButton::Right);
        return display.popupShown;
    };
    for (CellId cell : {CellId{17, 4}, {19, 1}, {19, 2}, {19, 3}, {18, 6}})
        EXPECT_TRUE(open(cell) && display.popupUpwards);
    for (const auto& hide : std::initializer_list<std::function<void()>>{
             [this] { input.Timer1_Timer(); }, [this] { click(); }, [this] { key('0'); },
             [this] { input.pointerLeft(), click(); }, [this] { input.forgetSelection(); }}) {
        EXPECT_TRUE(open(Cell));
        hide();
        EXPECT_FALSE(display.popupShown);
    }
    EXPECT_EQ(input.selection(), Cell) << "the pointer stands there";
    input.Num16_Click(2);
    EXPECT_EQ(entry(), "0") << "its cell was another puzzle's";
}

TEST_F(BoardInputTest, PeekingShowsCandidatesOnlyWhileHeld) {
    game.place({10, 1}, "6");
    const Board before = game.board;
    input.Celltags_MouseDown(10);
    EXPECT_EQ(display.peeked[2], "12345");
    EXPECT_EQ(display.announced.find("hexagon 10: upper left 6, top marks 1 2 3 4 5, upper"), 0U);
    EXPECT_EQ(game.board, before);
    input.Celltags_MouseUp();
    input.Celltags_MouseUp();
    EXPECT_EQ(display.drawn, std::vector<int>{10});
    game.board = Board();
    display.peeked = {};
    input.Celltags_MouseDown(10);
    EXPECT_EQ(display.peeked[2], "") << "there is no puzzle";
}

TEST_F(BoardInputTest, NothingIsEnteredWhileACommandIsUnderWay) {
    input.digt_MouseUp(3, PointerButton::Left);
    input.openPopupAtSelection();
    busy.creating = true;
    key('3');
    click();
    pointAt({8, 3});
    input.moveSelection(1, 0), input.selectFirst(), input.selectLast();
    input.pointerLeft();
    input.enter(3);
    EXPECT_EQ(input.selection(), Cell);
    input.Celltags_MouseDown(10);
    input.Num16_Click(2);
    input.openPopupAtSelection();
    EXPECT_FALSE(display.popupShown);
    EXPECT_EQ(game.board, puzzleWithoutGivens());
    EXPECT_TRUE(display.drawn.empty());
}

TEST_F(BoardInputTest, ArrowsReachEveryCellThatIsNotWithheldAndGivensAreOnlyRead) {
    for (const char* file : {"easy.txt", "hard.txt"}) {
        game.board = boardOf(sampleRecords(file).front());
        std::vector<CellId> reached{firstSelectable(game)};
        for (std::size_t i = 0; i < reached.size(); ++i)
            for (const auto& [columns, rows] : {std::pair(1, 0), {-1, 0}, {0, 1}, {0, -1}})
                if (const CellId next = cellBeside(game, reached[i], columns, rows);
                    std::find(reached.begin(), reached.end(), next) == reached.end())
                    reached.push_back(next);
        EXPECT_EQ(std::ssize(reached), BoardCellCount - CellCount);
    }
    game.board = puzzleWithoutGivens();
    input.pointerLeft();
    input.moveSelection(1, 0);
    EXPECT_EQ(input.selection(), (CellId{1, 2}));
    input.selectLast();
    input.moveSelection(0, 1); // there is nothing below
    EXPECT_EQ(input.selection(), (CellId{19, 5}));
    game.board.FixedCell[CellId{19, 6}] = true;
    game.board.CellNum[19][6] = "3";
    input.moveSelection(-1, 0);
    EXPECT_EQ(display.marker, (CellId{19, 6}));
    EXPECT_EQ(input.SelHex(), -1);
    input.enter(4);
    key('4');
    EXPECT_EQ(entry({19, 6}), "3");
    input.readHexagon();
    EXPECT_TRUE(display.announced.ends_with("lower left given 3, missing 1 2 4 5 6"));
    game.board.BlankHex = 5;
    for (const auto& [columns, rows, beside] :
         {std::tuple(0, 1, 15), {1, 0, 8}, {-1, 0, 7}, {0, -1, 7}})
        EXPECT_EQ(hexagonBeside(game.board, 10, columns, rows), beside) << columns << rows;
}

TEST_F(BoardInputTest, ThePointerTakesTheCellOfTheKeysOnlyWhenItIsMeantTo) {
    const CellId far{19, 5};
    input.pointerLeft();
    input.walkTo(far);
    pointAt(Cell); // where it stood behind a box
    input.Picture2_MouseMove({pointer.x + 1, pointer.y});
    input.pointerLeft();
    input.forgetSelection();
    EXPECT_EQ(input.selection(), far);
    input.digt_MouseUp(3, PointerButton::Left);
    click();
    EXPECT_EQ(entry(), "4") << "the press was meant for this one";
    input.walkTo(far);
    pointAt({8, 1});
    EXPECT_EQ(input.selection(), (CellId{8, 1}));
}

struct PlayCommandsTest : testing::Test, PlayScene {
    PlayCommandsTest() { game.board = fresh; }
    /// Gives a command; the message then, and the boxes.
    std::string said(void (PlayCommands::*command)()) {
        (commands.*command)();
        return display.message + prompts.told();
    }
    const Board fresh = boardOf(sampleRecords("easy.txt").front());
};

TEST_F(PlayCommandsTest, CheckNamesTheWrongHexagonOrPraisesAFinishedBoard) {
    EXPECT_EQ(said(&PlayCommands::StatLab), "Not done yet ...");
    game.board.CellNum[7] = {"", "3", "3", "", "", "", ""};
    EXPECT_EQ(said(&PlayCommands::StatLab), "Cell 7 has incorrect numbers");
    game.board.CellNum = game.board.SolNum;
    // The praise is in the box.
    EXPECT_EQ(said(&PlayCommands::StatLab), "Not done yet ...|All Done! [vbok+vbhappy]");
}

TEST_F(PlayCommandsTest, AssistsCountWhatTheyDidAndUndoDrawsIt) {
    const Board empty = game.board = puzzleWithoutGivens();
    commands.cmdundo();
    EXPECT_EQ(said(&PlayCommands::cmdset1s), "None Set");
    EXPECT_EQ(said(&PlayCommands::cmdsetpairs), "None Fixed");
    EXPECT_TRUE(display.boardsDrawn == 0 && display.drawn.empty());
    game.place({19, 5}, "");
    game.board.CellNum[1] = {"", "1", "2", "3", "4", "", "6"};
    EXPECT_EQ(said(&PlayCommands::cmdset1s), " 1 Cells Set");
    EXPECT_FALSE(game.TouchedCell[1][5]) << "this assist touches nothing";
    game.board.CellNum[1] = {"", "", "", "", "", "5", ""};
    EXPECT_EQ(said(&PlayCommands::cmdsetpairs), " 1 Cells Fixed");
    EXPECT_EQ(display.boardsDrawn, 2);
    EXPECT_EQ(said(&PlayCommands::cmdundo), "");
    EXPECT_EQ(display.drawn, (std::vector<int>{1, 5})) << "both made one run";
    EXPECT_EQ(game.board, empty);
    EXPECT_EQ(game.undoList.text(0), "1905") << "what was there before stays";
}

TEST_F(PlayCommandsTest, WhatTakesEntriesAwayAsksFirst) {
    for (const auto& [command, question, done] :
         {std::tuple(&PlayCommands::cmdallpencil,
                     "Existing Pencilmarks will be overwitten, Proceed?", "Pencilmarks updated"),
          {&PlayCommands::cmdallpencilClear, "Existing Pencilmarks will be cleared, Proceed?",
           "Pencilmarks cleared"},
          {&PlayCommands::cmdreset, "Clear ALL user entries?",
           "All entries cleared; Undo brings them back"}}) {
        for (CellId cell : AllCells)
            if (game.isSelectable(cell))
                game.place(cell, cell.position == 1 ? "3" : "12");
        const Board before = game.board;
        prompts.answers = {answer::No, answer::None, answer::Yes};
        (commands.*command)();
        (commands.*command)();
        EXPECT_EQ(game.board, before);
        prompts.shown.clear();
        EXPECT_EQ(said(command),
                  std::string(done) + "|" + question + " [vbyesno+vbquestion+vbdefaultbutton2]");
        EXPECT_NE(game.board, before);
    }
    EXPECT_EQ(game.board, fresh);
    EXPECT_TRUE(game.undoList.empty());
}

TEST_F(PlayCommandsTest, ForAMinuteUndoBringsBackWhatWasReset) {
    const CellId cell = firstSelectable(game);
    const auto playAndReset = [&] {
        game.place(cell, "12");
        prompts.answers = {answer::Yes};
        commands.cmdreset();
        return std::exchange(display.later, {});
    };
    const auto first = playAndReset();
    commands.cmdundo();
    EXPECT_EQ(game.board.CellNum[cell], "12");
    const auto second = playAndReset();
    first();
    EXPECT_TRUE(game.canUndo()) << "that minute was another's";
    second();
    EXPECT_FALSE(game.canUndo());
    EXPECT_EQ(display.message, "");
    playAndReset();
    game.place(cell, "3");
    commands.cmdundo();
    EXPECT_EQ(game.board, fresh) << "what is entered since counts";
    EXPECT_FALSE(game.canUndo());
}

TEST(Hints, LeadFromWhereOverWhyToTheNumberAndSoToTheSolution) {
    PlayScene scene;
    Board& board = scene.game.board;
    board = boardOf(sampleRecords("hard.txt").front());
    board.ResetToGivens();
    int aboutBlank = 0;
    for (int press = 0; press < 400 && !isSolved(board); ++press) {
        const auto before = board.CellNum;
        scene.commands.cmdhint();
        const Hint& hint = scene.display.hint;
        const bool isEntry = board.CellNum != before;
        EXPECT_EQ(isEntry, scene.display.message.ends_with(" entered"));
        EXPECT_TRUE(isEntry || hint.hexagon != 0 || hint.xcell != 0) << hint.sentence;
        aboutBlank += hint.cell && board.isBlank(hint.cell.hexagon) ? 1 : 0;
    }
    EXPECT_TRUE(isSolved(board) && aboutBlank > 0 && scene.game.hints > 0);

    // What is wrong comes first, and where only when it is asked for again.
    const CellId cell = firstSelectable(scene.game);
    scene.game.place(cell, board.SolNum[cell] == "1" ? "2" : "1");
    scene.commands.cmdhint();
    EXPECT_EQ(scene.display.message, MistakeSentence);
    scene.commands.cmdhint();
    EXPECT_FALSE(scene.display.hint.proof.empty());
}

TEST(Highlights, ShowWhatBreaksARuleAndWhatIsLookedFor) {
    Board board = puzzleWithoutGivens();
    board.BlankHex = 10;
    const CellId cell{5, 1}, across = SideLink[cell], twin{5, 4}, marked{5, 2};
    for (const auto& [at, entry] :
         {std::pair(cell, "3"), {twin, "3"}, {across, "4"}, {CellId{10, 1}, "3"}, {marked, "136"}})
        board.CellNum[at] = entry;
    using Cells = std::vector<CellId>;
    Highlights found = highlightsOf(board, {}, cell, '3');
    EXPECT_EQ(found.looked, (Cells{cell, across}));
    EXPECT_EQ(found.equal, (Cells{cell, marked, twin}));
    EXPECT_EQ(found.repeated, (Cells{cell, twin}));
    EXPECT_EQ(found.differing, Cells{across.hexagon < cell.hexagon ? across : cell});
    EXPECT_TRUE(found.impossible.empty());
    found = highlightsOf(board, {false, false, true}, {}, '3');
    EXPECT_TRUE(found.equal.empty() && found.repeated.empty() && found.differing.empty());
    EXPECT_EQ(found.impossible, (std::vector{Highlights::Mark{marked, '3'}}));
}

} // namespace tessaly::play_commands_test
