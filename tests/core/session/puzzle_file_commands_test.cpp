#include "core/session/puzzle_file_commands.h"

#include "core/files/file_access.h"
#include "support/core_fakes.h"
#include "support/file_calls.h"
#include "support/sample_puzzles.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>

namespace tessaly {
namespace {

class PuzzleFileCommandsTest : public testing::Test {
protected:
    using Message = ScriptedPrompts::Message;

    PuzzleFileCommandsTest() { session.ProgramFolder = folder.path().string() + "/"; }
    ~PuzzleFileCommandsTest() override { EXPECT_EQ(display.busyDepth, 0); }

    std::filesystem::path fileOf(const std::string& name, const std::string& content) {
        std::filesystem::path path = session.ProgramFolder / name;
        EXPECT_TRUE(replaceFile(path, content).ok());
        return path;
    }
    std::filesystem::path fileOfPuzzles(const std::string& name, std::size_t count) {
        std::string content;
        for (std::size_t i = 0; i < count; ++i)
            content += records[i] + "\r\n";
        return fileOf(name, content);
    }
    const Message& lastMessage() { return prompts.shown.back(); }

    const std::vector<std::string> records = sampleRecords("easy.txt");
    test::TemporaryFolder folder;
    Session session;
    RecordingDisplay display;
    ScriptedPrompts prompts;
    ScriptedFileChoice choice;
    PlayCommands play{session.game, session.appearance, display, prompts};
    BoardInput input{session.game, session.busy, play, display};
    PuzzleFileCommands commands{session, input, display, prompts, choice.choice()};
};

TEST_F(PuzzleFileCommandsTest, LoadShowsTheFirstPuzzleAndRemembersTheFile) {
    choice.path = fileOfPuzzles("a.txt", 3);
    session.game.undoList.push({1, 1}, false, "");
    commands.mnuload();
    EXPECT_EQ(choice.asked, std::vector<std::string>{"OPEN: Select a Puzzle file to open"});
    EXPECT_EQ(display.puzzle.PuzNum, 1);
    EXPECT_EQ(display.puzzle.PuzCount, 3);
    EXPECT_EQ(display.saveTarget, choice.path);
    EXPECT_EQ(display.recent, std::vector<std::filesystem::path>{choice.path});
    EXPECT_EQ(session.game.board, boardOf(records[0]));
    EXPECT_TRUE(session.game.undoList.empty());
    choice.path.clear();
    commands.mnuload();
    EXPECT_EQ(display.puzzle.PuzNum, 1);
    EXPECT_TRUE(prompts.shown.empty());
}

TEST_F(PuzzleFileCommandsTest, AFileThatHoldsNoPuzzleIsRefusedAndNothingChanges) {
    commands.load(fileOfPuzzles("a.txt", 2));
    session.game.place({1, 1}, "3");
    const Board before = session.game.board;
    const std::vector<std::filesystem::path> bad{
        fileOf("empty.txt", ""), fileOf("short.txt", records[0].substr(0, 118) + "\r\n"),
        fileOf("header.txt", "EXX00" + records[0].substr(5)), folder.path(),
        session.ProgramFolder / "gone.txt"};
    for (const std::filesystem::path& path : bad) {
        prompts.shown.clear();
        commands.load(path);
        EXPECT_EQ(prompts.shown, (std::vector<Message>{{"Error reading file:\r\n" + path.native(),
                                                        "vbcritical+vbok"}}));
        EXPECT_EQ(display.message, "Error reading p# 1");
        EXPECT_EQ(session.game.board, before);
        EXPECT_EQ(session.game.undoList.size(), 1u);
        EXPECT_EQ(display.recent.size(), 1u);
    }
}

TEST_F(PuzzleFileCommandsTest, SteppingWrapsAroundBothEnds) {
    commands.cmdarrow(1);
    commands.goTo(1);
    commands.mnudelete();
    EXPECT_EQ(display.puzzle.PuzNum, 0) << "no puzzle is shown";
    commands.load(fileOfPuzzles("one.txt", 1));
    session.game.place({1, 5}, "4");
    commands.cmdarrow(1);
    EXPECT_EQ(session.game.undoList.size(), 1u) << "the only puzzle is not read again";
    commands.load(fileOfPuzzles("a.txt", 3));
    commands.cmdarrow(0);
    EXPECT_EQ(display.puzzle.PuzNum, 3);
    commands.cmdarrow(1);
    EXPECT_EQ(display.puzzle.PuzNum, 1);
    commands.goTo(2);
    EXPECT_EQ(session.game.board, boardOf(records[1]));
    for (int outside : {0, 4, -1})
        commands.goTo(outside);
    EXPECT_EQ(display.puzzle.PuzNum, 2);
    EXPECT_TRUE(prompts.shown.empty());
}

TEST_F(PuzzleFileCommandsTest, CommandsWorkOnWhatTheFileHoldsNow) {
    const std::filesystem::path path = fileOfPuzzles("a.txt", 3);
    commands.load(path);
    commands.goTo(3);
    fileOfPuzzles("a.txt", 5);
    commands.cmdarrow(1);
    EXPECT_EQ(display.puzzle.PuzNum, 4) << "the file has grown";
    commands.goTo(5);
    EXPECT_EQ(display.puzzle.PuzNum, 5);
    fileOfPuzzles("a.txt", 2);
    commands.goTo(3);
    EXPECT_EQ(display.puzzle.PuzNum, 5) << "there is no puzzle 3 any more";
    commands.cmdarrow(0);
    EXPECT_EQ(display.puzzle.PuzNum, 2);
    EXPECT_EQ(display.puzzle.PuzCount, 2);
    fileOfPuzzles("a.txt", 1);
    commands.cmdarrow(1);
    EXPECT_EQ(display.puzzle.PuzNum, 1);
    EXPECT_TRUE(prompts.shown.empty());
}

TEST_F(PuzzleFileCommandsTest, AFileThatIsEmptyOrGoneIsSaidAndTheBoardStays) {
    const std::filesystem::path path = fileOfPuzzles("a.txt", 3);
    commands.load(path, 3);
    const Board before = session.game.board;
    fileOf("a.txt", "");
    for (int item : {0, 1}) {
        commands.cmdarrow(item);
        EXPECT_EQ(display.message, "Error reading p# 1");
    }
    EXPECT_TRUE(prompts.shown.empty());
    std::filesystem::remove(path);
    commands.cmdarrow(0);
    ASSERT_EQ(prompts.shown.size(), 1u);
    EXPECT_NE(lastMessage().text.find(path), std::string::npos);
    EXPECT_EQ(session.game.board, before);
    EXPECT_EQ(display.puzzle.PuzNum, 3);
}

TEST_F(PuzzleFileCommandsTest, WhatArrivesWhileALargeFileIsReadOrCopiedIsIgnored) {
    std::string content;
    while (content.size() < 500'000)
        content += records[content.size() % 7] + "\r\n";
    const std::filesystem::path path = fileOf("large.txt", content);
    int arrived = 0;
    display.onYield = [&] {
        ++arrived;
        EXPECT_GT(display.busyDepth, 0);
        EXPECT_TRUE(session.busy.refuses(prompts));
    };
    commands.load(path);
    EXPECT_EQ(display.puzzle.PuzNum, 1);
    EXPECT_GE(arrived, 5);
    prompts.answers = {answer::Yes, answer::Ok};
    arrived = 0;
    commands.mnudelete();
    EXPECT_GE(arrived, 5);
    EXPECT_EQ(test::contentOf(path), content.substr(RecordLength + 2));
    EXPECT_EQ(prompts.shown.size(), 2u);
    EXPECT_FALSE(session.busy.isBusy());
}

TEST_F(PuzzleFileCommandsTest, APuzzleThatStandsInNoFileCanStillBeSaved) {
    choice.path = session.ProgramFolder / "rescued.txt";
    commands.mnusavex();
    EXPECT_TRUE(choice.asked.empty()) << "there is no puzzle";
    session.game.board = boardOf(records[0]);
    commands.mnusavex();
    EXPECT_EQ(test::contentOf(choice.path), records[0] + "\r\n");
    EXPECT_EQ(display.puzzle.PuzNum, 1);
    choice.path.clear();
    commands.mnusavex();
    EXPECT_EQ(prompts.shown.size(), 1u) << "no file was chosen";
}

TEST_F(PuzzleFileCommandsTest, SavingAppendsThePlayAndShowsTheCopy) {
    commands.load(fileOfPuzzles("a.txt", 1));
    session.game.place({1, 5}, "4");
    choice.path = session.ProgramFolder / "new.txt";
    commands.mnusavex();
    EXPECT_EQ(choice.asked, std::vector<std::string>{"SAVE: Select an output Puzzle file"});
    EXPECT_EQ(lastMessage(),
              (Message{"Puzzle#1 added to file " + choice.path.native(), "vbok+vbinformation"}));
    EXPECT_EQ(display.saveTarget, choice.path);
    EXPECT_EQ(session.game.board.CellNum[1][5], "4");
    commands.mnusaveto();
    EXPECT_EQ(lastMessage().text, "Puzzle#2 added to file " + choice.path.native());
    EXPECT_EQ(display.puzzle.PuzNum, 2);
    const std::string saved = PuzzleRecord(session.game.board) + "\r\n";
    EXPECT_EQ(test::contentOf(choice.path), saved + saved);

    prompts.shown.clear();
    std::filesystem::remove(choice.path);
    commands.mnusaveto();
    EXPECT_TRUE(prompts.shown.empty()) << "only a file that exists";
}

TEST_F(PuzzleFileCommandsTest, AFailedSaveIsSaidAndKeepsThePlay) {
    commands.load(fileOfPuzzles("a.txt", 1));
    session.game.place({1, 5}, "4");
    const Board before = session.game.board;
    choice.path = session.ProgramFolder / "no/such/folder.txt";
    commands.mnusavex();
    EXPECT_EQ(lastMessage().style, "vbok+vbcritical");
    EXPECT_NE(lastMessage().text.find(choice.path), std::string::npos);
    EXPECT_EQ(session.game.board, before);
    EXPECT_EQ(session.game.undoList.size(), 1u);
    EXPECT_NE(display.saveTarget, choice.path);
}

TEST_F(PuzzleFileCommandsTest, DeleteAsksRemovesThePuzzleAndShowsTheFirst) {
    const std::filesystem::path path = fileOfPuzzles("a.txt", 3);
    commands.load(path, 2);
    prompts.answers = {7};
    commands.mnudelete();
    EXPECT_EQ(lastMessage(), (Message{"Delete current puzzle from file?", "vbyesno+vbquestion"}));
    EXPECT_EQ(test::contentOf(path).size(), 3 * 121u);
    prompts.answers = {answer::Yes, 1};
    commands.mnudelete();
    EXPECT_EQ(lastMessage(), (Message{"Done", "vbinformation+vbok"}));
    EXPECT_EQ(test::contentOf(path), records[0] + "\r\n" + records[2] + "\r\n");
    EXPECT_EQ(display.puzzle.PuzNum, 1);
    EXPECT_EQ(display.puzzle.PuzCount, 2);
}

TEST_F(PuzzleFileCommandsTest, AnotherPuzzleThanTheOneShownIsNotDeleted) {
    const std::filesystem::path path = fileOfPuzzles("a.txt", 2);
    commands.load(path);
    const std::string swapped = records[1] + "\r\n" + records[0] + "\r\n";
    fileOf("a.txt", swapped);
    prompts.answers = {answer::Yes, answer::Ok};
    commands.mnudelete();
    EXPECT_EQ(lastMessage().style, "vbok+vbcritical");
    EXPECT_NE(lastMessage().text.find("nothing was deleted"), std::string::npos);
    EXPECT_EQ(test::contentOf(path), swapped);
    EXPECT_EQ(session.game.board, boardOf(records[0]));
}

TEST_F(PuzzleFileCommandsTest, DeletingTheOnlyPuzzleLeavesAnEmptyFile) {
    const std::filesystem::path path = fileOfPuzzles("temporarypuzfile.txt", 1);
    commands.load(path);
    prompts.answers = {answer::Yes, 1};
    commands.mnudelete();
    EXPECT_EQ(test::contentOf(path), "");
    EXPECT_EQ(display.message, "Error reading p# 1");
    EXPECT_EQ(lastMessage().text, "Done");
}

TEST_F(PuzzleFileCommandsTest, RecentFilesOpenUnlessTheyAreGone) {
    const std::filesystem::path first = fileOfPuzzles("a.txt", 1);
    const std::filesystem::path second = fileOfPuzzles("b.txt", 2);
    commands.load(first);
    commands.load(second);
    EXPECT_EQ(display.recent, (std::vector<std::filesystem::path>{second, first}));
    commands.oldfiles_Click(1);
    EXPECT_EQ(display.puzzle.PuzPath, first);
    EXPECT_EQ(display.recent, (std::vector<std::filesystem::path>{second, first}))
        << "it keeps its place";
    std::filesystem::remove(second);
    commands.oldfiles_Click(0);
    EXPECT_EQ(lastMessage(), (Message{"File not found:\r\n" + second.native(), "vbcritical+vbok"}));
    fileOf("b.txt", "no puzzle\r\n");
    commands.oldfiles_Click(0);
    EXPECT_EQ(lastMessage(),
              (Message{"Error reading file:\r\n" + second.native(), "vbcritical+vbok"}));
    EXPECT_EQ(display.saveTarget, first);
    EXPECT_EQ(display.puzzle.PuzPath, first);
}

TEST_F(PuzzleFileCommandsTest, ReopeningFallsBackToTheFirstPuzzleOrTheEmptyBoard) {
    const std::filesystem::path path = fileOfPuzzles("a.txt", 3);
    commands.reopen(path, 2);
    EXPECT_EQ(display.puzzle.PuzNum, 2);
    EXPECT_EQ(display.saveTarget, path);
    commands.reopen(path, 4);
    EXPECT_EQ(display.puzzle.PuzNum, 1);
    EXPECT_TRUE(display.recent.empty());
    for (const std::filesystem::path& none :
         {std::filesystem::path("  "), fileOfPuzzles("temporarypuzfile.txt", 1),
          session.ProgramFolder / "gone.txt", fileOf("broken.txt", "no puzzle\r\n")}) {
        commands.reopen(path, 1);
        commands.reopen(none, 1);
        EXPECT_EQ(display.puzzle.PuzNum, 0) << none;
        EXPECT_EQ(display.saveTarget, "");
        EXPECT_EQ(display.message, "");
    }
    fileOfPuzzles("a.txt", 2);
    const test::FileCalls calls(test::failing("pread", EIO));
    commands.reopen(path, 1);
    EXPECT_EQ(display.puzzle.PuzNum, 0) << "it cannot be read";
    EXPECT_TRUE(prompts.shown.empty());
}

} // namespace
} // namespace tessaly
