#include "core/play/play_commands.h"

#include "support/core_fakes.h"
#include "support/sample_puzzles.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

using Message = ScriptedPrompts::Message;

struct PlayCommandsTest : testing::Test, PlayScene {
    PlayCommandsTest() { game.board = fresh; }
    const Board fresh = boardOf(sampleRecords("easy.txt").front());
};

TEST_F(PlayCommandsTest, CheckNamesTheWrongHexagonOrPraisesAFinishedBoard) {
    commands.StatLab();
    EXPECT_EQ(display.message, "Not done yet ...");
    game.board.CellNum[7] = {"", "3", "3", "", "", "", ""};
    commands.StatLab();
    EXPECT_EQ(display.message, "Cell 7 has incorrect numbers");
    EXPECT_TRUE(prompts.shown.empty());
    game.board.CellNum = game.board.SolNum;
    commands.StatLab();
    EXPECT_EQ(prompts.shown, (std::vector<Message>{{"All Done!", "vbok+vbhappy"}}));
    EXPECT_EQ(display.message, "Not done yet ...") << "the praise was in the box";
}

TEST_F(PlayCommandsTest, AssistsCountWhatTheyDidAndUndoDrawsIt) {
    game.board = puzzleWithoutGivens();
    const Board empty = game.board;
    commands.cmdundo();
    commands.cmdset1s();
    EXPECT_EQ(display.message, "None Set");
    commands.cmdsetpairs();
    EXPECT_EQ(display.message, "None Fixed");
    EXPECT_EQ(display.boardsDrawn, 0);
    EXPECT_TRUE(display.drawn.empty());
    game.board.CellNum[1] = {"", "1", "2", "3", "4", "", "6"};
    commands.cmdset1s();
    EXPECT_EQ(display.message, " 1 Cells Set");
    game.board.CellNum[1] = {"", "", "", "", "", "5", ""};
    commands.cmdsetpairs();
    EXPECT_EQ(display.message, " 1 Cells Fixed");
    EXPECT_EQ(display.boardsDrawn, 2);
    commands.cmdundo();
    EXPECT_EQ(display.message, "");
    EXPECT_EQ(display.drawn, (std::vector<int>{1, 5})) << "both made one run";
    EXPECT_EQ(game.board, empty);
}

TEST_F(PlayCommandsTest, WhatTakesEntriesAwayAsksFirst) {
    struct Row {
        void (PlayCommands::*command)();
        const char* question;
        const char* said;
    };
    for (const auto& [command, question, said] :
         {Row{&PlayCommands::cmdallpencil, "Existing Pencilmarks will be overwitten, Proceed?",
              "Pencilmarks updated"},
          Row{&PlayCommands::cmdallpencilClear, "Existing Pencilmarks will be cleared, Proceed?",
              "Pencilmarks cleared"},
          Row{&PlayCommands::cmdreset, "Clear ALL user entries?", ""}}) {
        for (CellId cell : AllCells)
            if (game.isSelectable(cell))
                game.place(cell, cell.position == 1 ? "3" : "12");
        const Board before = game.board;
        for (const int no : {answer::No, answer::None}) {
            prompts.answers = {no};
            (commands.*command)();
            EXPECT_EQ(game.board, before);
        }
        prompts.answers = {answer::Yes};
        (commands.*command)();
        EXPECT_NE(game.board, before);
        EXPECT_EQ(prompts.shown.back(), (Message{question, "vbyesno+vbquestion+vbdefaultbutton2"}));
        EXPECT_EQ(display.message, said);
    }
    EXPECT_EQ(game.board, fresh);
    EXPECT_TRUE(game.undoList.empty());
}

TEST_F(PlayCommandsTest, TheSolutionShowsWhileTheButtonIsHeld) {
    commands.cmdshowsolPressed();
    EXPECT_EQ(display.solutionsDrawn, 1);
    commands.cmdshowsolReleased();
    EXPECT_EQ(display.boardsDrawn, 1);
}

} // namespace
} // namespace tessaly
