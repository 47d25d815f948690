#include "core/play/play_commands.h"

#include "support/core_fakes.h"
#include "support/sample_puzzles.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

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
    game.board.CellNum[1] = {"", "1", "2", "3", "4", "", "6"};
    EXPECT_EQ(said(&PlayCommands::cmdset1s), " 1 Cells Set");
    game.board.CellNum[1] = {"", "", "", "", "", "5", ""};
    EXPECT_EQ(said(&PlayCommands::cmdsetpairs), " 1 Cells Fixed");
    EXPECT_EQ(display.boardsDrawn, 2);
    EXPECT_EQ(said(&PlayCommands::cmdundo), "");
    EXPECT_EQ(display.drawn, (std::vector<int>{1, 5})) << "both made one run";
    EXPECT_EQ(game.board, empty);
}

TEST_F(PlayCommandsTest, WhatTakesEntriesAwayAsksFirst) {
    for (const auto& [command, question, done] :
         {std::tuple(&PlayCommands::cmdallpencil,
                     "Existing Pencilmarks will be overwitten, Proceed?", "Pencilmarks updated"),
          {&PlayCommands::cmdallpencilClear, "Existing Pencilmarks will be cleared, Proceed?",
           "Pencilmarks cleared"},
          {&PlayCommands::cmdreset, "Clear ALL user entries?", ""}}) {
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

TEST_F(PlayCommandsTest, TheSolutionShowsWhileTheButtonIsHeld) {
    commands.cmdshowsolPressed();
    EXPECT_EQ(display.solutionsDrawn, 1);
    commands.cmdshowsolReleased();
    EXPECT_EQ(display.boardsDrawn, 1);
}

} // namespace
} // namespace tessaly
