#include "core/session/creation_commands.h"

#include "support/core_fakes.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

struct CreationCommandsTest : testing::Test, SessionScene {
    CreationCommandsTest() {
        EXPECT_TRUE(Set6Combos(TESSALY_DATA "/hexabinx.txt", session.arrangements).ok());
        commands.emplace(session, files, display, Chance(7));
    }
    std::optional<CreationCommands> commands;
};

TEST_F(CreationCommandsTest, TheLabelGoesRound) {
    for (const char* shown : {"Easy", "Hard", "Random", "Easy"}) {
        commands->DifLab();
        EXPECT_EQ(nameOf(display.difficulty), shown);
    }
}

TEST_F(CreationCommandsTest, APuzzleGoesToTheFileInPlayAndIsShown) {
    const std::filesystem::path path = fileOfPuzzles("mine.txt", 1);
    files.load(path);
    session.difficulty = Difficulty::Hard;
    display.onYield = [this] { EXPECT_EQ(display.message, "Creating Puzzle (Hard) ..."); };
    display.message.clear();
    commands->cmdcreate();
    EXPECT_EQ(display.message, "New Puzzle Created (Hard)");
    EXPECT_EQ(display.puzzle.PuzPath, path);
    EXPECT_EQ(display.puzzle.PuzNum, 2);
    EXPECT_EQ(session.game.board.DifName(), "Hard");
    EXPECT_EQ(PuzzleRecord(session.game.board), display.puzzle.record);
    EXPECT_EQ(display.puzzle.record.size(), RecordLength);
    EXPECT_FALSE(session.busy.isBusy());
}

TEST_F(CreationCommandsTest, WithoutAFileItGoesToTheTemporaryOneAndTheLabelKeepsRandom) {
    for (const int number : {1, 2}) {
        commands->cmdcreate();
        EXPECT_EQ(display.puzzle.PuzPath, session.ProgramFolder / "temporarypuzfile.txt");
        EXPECT_EQ(display.puzzle.PuzNum, number);
        EXPECT_EQ(display.difficulty, std::nullopt);
    }
}

TEST_F(CreationCommandsTest, APuzzleThatCannotBeSavedIsPlayedAllTheSame) {
    session.puzzle = {"/no/such/folder/a.txt", 3, 5, "record"};
    session.difficulty = Difficulty::Easy;
    commands->cmdcreate();
    EXPECT_EQ(display.message, "New Puzzle Created (Easy)");
    EXPECT_EQ(session.puzzle.PuzNum, 0);
    EXPECT_TRUE(session.game.hasPuzzle());
    EXPECT_EQ(lastMessage().text.find("The puzzle stands in no file:\r\n/no/such/folder/a.txt"),
              0U);
}

} // namespace
} // namespace tessaly
