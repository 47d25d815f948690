#include "core/session/creation_commands.h"

#include "core/board/puzzle_record.h"
#include "core/files/file_access.h"
#include "support/core_fakes.h"
#include "support/sample_puzzles.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

/// Remembers every message, not only the last.
struct TalkingDisplay : RecordingDisplay {
    void showMessage(std::string_view text) override {
        if (!text.empty())
            messages.emplace_back(text);
    }
    std::vector<std::string> messages;
};

class CreationCommandsTest : public testing::Test {
protected:
    CreationCommandsTest() {
        session.ProgramFolder = folder.path().string() + "/";
        EXPECT_TRUE(Set6Combos(TESSALY_DATA "/hexabinx.txt", session.arrangements).ok());
    }

    test::TemporaryFolder folder;
    Session session;
    TalkingDisplay display;
    ScriptedPrompts prompts;
    ScriptedFileChoice choice;
    PlayCommands play{session.game, session.appearance, display, prompts};
    BoardInput input{session.game, session.busy, play, display};
    PuzzleFileCommands files{session, input, display, prompts, choice.choice()};
    CreationCommands& commands() {
        if (!m_commands)
            m_commands.emplace(session, files, display, Chance(7));
        return *m_commands;
    }

private:
    std::optional<CreationCommands> m_commands;
};

TEST_F(CreationCommandsTest, TheLabelGoesRound) {
    std::vector<std::string_view> shown;
    for (int step = 0; step < 4; ++step) {
        commands().DifLab();
        shown.push_back(nameOf(display.difficulty));
    }
    EXPECT_EQ(shown, (std::vector<std::string_view>{"Easy", "Hard", "Random", "Easy"}));
}

TEST_F(CreationCommandsTest, APuzzleGoesToTheFileInPlayAndIsShown) {
    const std::string path = folder / "mine.txt";
    ASSERT_TRUE(replaceFile(path, sampleRecords("easy.txt").front()).ok());
    files.load(path);
    session.difficulty = Difficulty::Hard;
    commands().cmdcreate();
    EXPECT_EQ(display.messages, (std::vector<std::string>{"Creating Puzzle (Hard) ...",
                                                          "New Puzzle Created (Hard)"}));
    EXPECT_EQ(display.puzzle.PuzPath, path);
    EXPECT_EQ(display.puzzle.PuzNum, 2);
    EXPECT_EQ(session.game.board.DifName(), "Hard");
    EXPECT_EQ(PuzzleRecord(session.game.board), display.puzzle.record);
    EXPECT_EQ(display.puzzle.record.size(), RecordLength);
    EXPECT_FALSE(session.busy.isBusy());
    EXPECT_TRUE(prompts.shown.empty());
}

TEST_F(CreationCommandsTest, WithoutAFileItGoesToTheTemporaryOneAndTheLabelKeepsRandom) {
    for (int number = 1; number <= 3; ++number) {
        commands().cmdcreate();
        EXPECT_EQ(display.puzzle.PuzPath, session.ProgramFolder / "temporarypuzfile.txt");
        EXPECT_EQ(display.puzzle.PuzNum, number);
        EXPECT_EQ(display.difficulty, std::nullopt);
    }
}

TEST_F(CreationCommandsTest, APuzzleThatCannotBeSavedIsPlayedAllTheSame) {
    session.puzzle = {"/no/such/folder/a.txt", 3, 5, "record"};
    session.difficulty = Difficulty::Easy;
    commands().cmdcreate();
    EXPECT_EQ(display.messages.back(), "New Puzzle Created (Easy)");
    EXPECT_EQ(session.puzzle.PuzNum, 0);
    EXPECT_NE(session.game.board, Board{});
    EXPECT_TRUE(prompts.shown.empty());
}

} // namespace
} // namespace tessaly
