#include "core/play/play_commands.h"

#include "support/core_fakes.h"
#include "support/sample_puzzles.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

class PlayCommandsTest : public testing::Test, protected PlayScene {
protected:
    PlayCommandsTest() { game.board = boardOf(sampleRecords("easy.txt").front()); }

    ScriptedPrompts::Message onlyMessage() const {
        EXPECT_EQ(prompts.shown.size(), 1u);
        return prompts.shown.empty() ? ScriptedPrompts::Message{} : prompts.shown.front();
    }
};

TEST_F(PlayCommandsTest, CheckNamesTheWrongHexagon) {
    game.board.CellNum[7] = {"", "3", "3", "", "", "", ""};
    commands.StatLab();
    EXPECT_EQ(display.message, "Cell 7 has incorrect numbers");
    EXPECT_TRUE(prompts.shown.empty());
}

TEST_F(PlayCommandsTest, CheckPraisesAFinishedBoardAndThenSaysNotDoneYet) {
    commands.StatLab();
    EXPECT_EQ(display.message, "Not done yet ...");
    EXPECT_TRUE(prompts.shown.empty());
    display.message.clear();
    game.board.CellNum = game.board.SolNum;
    commands.StatLab();
    EXPECT_EQ(onlyMessage(), (ScriptedPrompts::Message{"All Done!", "vbok+vbhappy"}));
    EXPECT_EQ(display.message, "Not done yet ...");
}

TEST_F(PlayCommandsTest, AssistsCountWhatTheyDid) {
    commands.cmdset1s();
    EXPECT_EQ(display.message, "None Set");
    EXPECT_EQ(display.boardsDrawn, 0);
    commands.cmdsetpairs();
    EXPECT_TRUE(display.message.ends_with(" Cells Fixed")) << display.message;
    EXPECT_EQ(display.message.front(), ' ');
    EXPECT_EQ(display.boardsDrawn, 1);
    commands.cmdsetpairs();
    EXPECT_EQ(display.message, "None Fixed");

    commands.cmdundo();
    EXPECT_EQ(display.message, "");
    EXPECT_FALSE(display.drawn.empty());
    EXPECT_EQ(game.board, boardOf(sampleRecords("easy.txt").front()));
}

TEST_F(PlayCommandsTest, PencilMarksAskFirst) {
    const Board before = game.board;
    prompts.answers = {7, answer::Yes, 7, answer::Yes};
    commands.cmdallpencil();
    EXPECT_EQ(game.board, before);
    commands.cmdallpencil();
    EXPECT_NE(game.board, before);
    EXPECT_EQ(display.message, "Pencilmarks updated");
    EXPECT_TRUE(game.undoList.empty());
    const Board marked = game.board;
    commands.cmdallpencilClear();
    EXPECT_EQ(game.board, marked);
    commands.cmdallpencilClear();
    EXPECT_NE(game.board, marked);
    EXPECT_EQ(display.message, "Pencilmarks cleared");
    EXPECT_EQ(prompts.shown[1].text, "Existing Pencilmarks will be overwitten, Proceed?");
    EXPECT_EQ(prompts.shown[3].text, "Existing Pencilmarks will be cleared, Proceed?");
    EXPECT_EQ(prompts.shown[3].style, "vbyesno+vbquestion");
}

TEST_F(PlayCommandsTest, ResetAnsweredNoChangesNothing) {
    game.place({1, 1}, "2");
    const Board before = game.board;
    prompts.answers = {0, answer::Yes};
    commands.cmdreset();
    EXPECT_EQ(game.board, before);
    EXPECT_EQ(game.undoList.size(), 1u);
    commands.cmdreset();
    EXPECT_NE(game.board, before);
    EXPECT_TRUE(game.undoList.empty());
    EXPECT_EQ(prompts.shown[0].text, "Clear ALL user entries?");
}

TEST_F(PlayCommandsTest, TheSolutionShowsWhileTheButtonIsHeld) {
    commands.cmdshowsolPressed();
    EXPECT_EQ(display.solutionsDrawn, 1);
    commands.cmdshowsolReleased();
    EXPECT_EQ(display.boardsDrawn, 1);
}

TEST_F(PlayCommandsTest, WithNothingToUndoNothingIsDrawn) {
    display.message = "kept";
    commands.cmdundo();
    EXPECT_EQ(display.message, "kept");
    EXPECT_TRUE(display.drawn.empty());
}

} // namespace
} // namespace tessaly
