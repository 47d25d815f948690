#include "core/session/puzzle_file_commands.h"

#include "support/core_fakes.h"
#include "support/file_calls.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace tessaly {
namespace {

namespace fs = std::filesystem;
using Message = ScriptedPrompts::Message;

struct PuzzleFileCommandsTest : testing::Test, SessionScene {
    ~PuzzleFileCommandsTest() override { EXPECT_EQ(display.busyDepth, 0); }
    int number() const { return display.puzzle.PuzNum; }
};

TEST_F(PuzzleFileCommandsTest, LoadShowsTheFirstPuzzleAndRemembersTheFile) {
    const fs::path path = chosen = fileOfPuzzles("a.txt", 3);
    session.game.board = puzzleWithoutGivens();
    session.game.undoList.push({1, 1}, false, "");
    input.selectFirst();
    input.openPopupAtSelection();
    files.mnuload();
    EXPECT_FALSE(input.selection() || display.marker || display.popupShown);
    EXPECT_EQ(asked, std::vector<std::string>{"OPEN: Select a Puzzle file to open"});
    EXPECT_EQ(number(), 1);
    EXPECT_EQ(display.puzzle.PuzCount, 3);
    EXPECT_EQ(display.saveTarget, path);
    EXPECT_EQ(session.game.board, boardOf(records[0]));
    EXPECT_TRUE(session.game.undoList.empty());
    chosen.clear();
    files.mnuload();
    files.load(fileOfPuzzles("temporarypuzfile.txt", 1));
    EXPECT_EQ(display.puzzle.PuzPath.filename(), "temporarypuzfile.txt");
    EXPECT_EQ(session.recentFiles.paths(), std::vector<fs::path>{path});
    EXPECT_EQ(display.recent, std::vector<fs::path>{path}) << "the temporary file is none of them";
    EXPECT_TRUE(prompts.shown.empty());
}

TEST_F(PuzzleFileCommandsTest, AFileThatHoldsNoPuzzleIsRefusedAndNothingChanges) {
    files.load(fileOfPuzzles("a.txt", 2));
    session.game.place({1, 1}, "3");
    const Board before = session.game.board;
    for (const fs::path& path :
         {fileOf("empty.txt", ""), fileOf("short.txt", records[0].substr(0, 118) + "\r\n"),
          fileOf("header.txt", "EXX00" + records[0].substr(5)), folder.path(),
          session.ProgramFolder / "gone.txt"}) {
        files.load(path);
        EXPECT_EQ(lastMessage(),
                  (Message{"Error reading file:\r\n" + path.native(), "vbcritical+vbok"}));
        EXPECT_EQ(display.message, "Error reading p# 1");
        EXPECT_EQ(session.game.board, before);
        EXPECT_EQ(session.game.undoList.size(), 1u);
        EXPECT_EQ(display.recent.size(), 1u);
    }
}

TEST_F(PuzzleFileCommandsTest, SteppingWrapsAroundBothEndsOfWhatTheFileHoldsNow) {
    files.cmdarrow(1);
    files.goTo(1);
    files.mnudelete();
    EXPECT_EQ(number(), 0) << "no puzzle is shown";
    files.load(fileOfPuzzles("a.txt", 1));
    session.game.place({1, 5}, "4");
    files.cmdarrow(1);
    EXPECT_EQ(session.game.undoList.size(), 1u) << "the only puzzle is not read again";
    constexpr int Previous = -1;
    constexpr int Next = -2;
    struct Row {
        std::size_t count;
        int step; // or the number to go to
        int number;
    };
    for (const auto& [count, step, expected] :
         {Row{3, Previous, 3}, Row{3, Next, 1}, Row{3, 2, 2}, Row{3, 0, 2}, Row{3, 4, 2},
          Row{3, 3, 3}, Row{5, Next, 4}, Row{5, 5, 5}, Row{2, 3, 5}, Row{2, Previous, 2},
          Row{1, Next, 1}}) {
        fileOfPuzzles("a.txt", count);
        step >= 0 ? files.goTo(step) : files.cmdarrow(step == Previous ? 0 : 1);
        EXPECT_EQ(number(), expected) << count << ", " << step;
    }
    EXPECT_TRUE(prompts.shown.empty());
}

TEST_F(PuzzleFileCommandsTest, WhatCannotBeReadIsSteppedOverAndNamed) {
    const fs::path path = fileOf("a.txt", "bad\r\n" + records[0] + "\r\nbad\r\n" + records[1]);
    const auto expect = [this](int shown, const char* message) {
        EXPECT_EQ(number(), shown);
        EXPECT_EQ(display.message, message);
    };
    files.load(path);
    expect(2, "Error reading p# 1");
    files.cmdarrow(1);
    expect(4, "Error reading p# 3");
    files.cmdarrow(1);
    expect(2, "Error reading p# 1");
    files.cmdarrow(0);
    expect(4, "Error reading p# 1");
    files.goTo(3);
    expect(4, "Error reading p# 3");
    files.goTo(5);
    expect(4, "There is no puzzle 5 among the 4");
    prompts.answers = {answer::Yes};
    files.mnudelete();
    expect(2, "Error reading p# 1");
    EXPECT_EQ(prompts.shown.size(), 2u);
}

TEST_F(PuzzleFileCommandsTest, AFileThatIsEmptyOrGoneIsSaidAndTheBoardStays) {
    const fs::path path = fileOfPuzzles("a.txt", 3);
    files.load(path, 3);
    const Board before = session.game.board;
    fileOf("a.txt", "");
    for (const int item : {0, 1}) {
        files.cmdarrow(item);
        EXPECT_EQ(display.message, "Error reading p# 1");
    }
    EXPECT_TRUE(prompts.shown.empty());
    fs::remove(path);
    files.cmdarrow(0);
    ASSERT_EQ(prompts.shown.size(), 1u);
    EXPECT_NE(lastMessage().text.find(path), std::string::npos);
    EXPECT_EQ(session.game.board, before);
    EXPECT_EQ(number(), 3);
}

TEST_F(PuzzleFileCommandsTest, TheWindowLivesWhileALargeFileIsReadOrCopied) {
    std::string content;
    while (content.size() < 500'000)
        content += records[content.size() % 7] + "\r\n";
    const fs::path path = fileOf("large.txt", content);
    int turns = 0;
    display.onYield = [&] {
        ++turns;
        EXPECT_GT(display.busyDepth, 0);
        EXPECT_TRUE(session.busy.refuses(prompts)) << "silently";
    };
    files.load(path);
    EXPECT_GE(turns, 5);
    EXPECT_TRUE(prompts.shown.empty());
    prompts.answers = {answer::Yes};
    turns = 0;
    files.mnudelete();
    EXPECT_GE(turns, 5);
    EXPECT_EQ(test::contentOf(path), content.substr(RecordLength + 2));
    EXPECT_FALSE(session.busy.isBusy());
}

TEST_F(PuzzleFileCommandsTest, SavingAppendsThePlayAndShowsTheCopy) {
    files.mnusavex();
    EXPECT_TRUE(asked.empty()) << "there is no puzzle";
    session.game.board = boardOf(records[0]); // which stands in no file
    session.game.place({1, 5}, "6");
    files.mnusavex();
    EXPECT_TRUE(prompts.shown.empty()) << "no file was chosen";
    chosen = session.ProgramFolder / "new.txt";
    files.mnusavex();
    EXPECT_EQ(asked.back(), "SAVE: Select an output Puzzle file");
    EXPECT_EQ(lastMessage(),
              (Message{"Puzzle#1 added to file " + chosen.native(), "vbok+vbinformation"}));
    EXPECT_EQ(display.saveTarget, chosen);
    EXPECT_EQ(session.game.board.CellNum[1][5], "6");
    files.mnusaveto();
    EXPECT_EQ(lastMessage().text, "Puzzle#2 added to file " + chosen.native());
    EXPECT_EQ(number(), 2);
    const std::string saved = PuzzleRecord(session.game.board) + "\r\n";
    EXPECT_EQ(test::contentOf(chosen), saved + saved);

    fs::remove(chosen);
    prompts.answers = {answer::No, answer::Yes};
    files.mnusaveto();
    EXPECT_EQ(lastMessage().text, "File not found:\r\n" + chosen.native() + "\r\nMake it anew?");
    EXPECT_FALSE(FileExists(chosen));
    files.mnusaveto();
    EXPECT_EQ(test::contentOf(chosen), saved);
}

TEST_F(PuzzleFileCommandsTest, AFailedSaveIsSaidAndKeepsThePlay) {
    files.load(fileOfPuzzles("a.txt", 1));
    session.game.place({1, 5}, "4");
    const Board before = session.game.board;
    chosen = session.ProgramFolder / "no/such/folder.txt";
    files.mnusavex();
    EXPECT_EQ(lastMessage(),
              (Message{chosen.native() + ": cannot be written: No such file or directory",
                       "vbok+vbcritical"}));
    EXPECT_EQ(session.game.board, before);
    EXPECT_EQ(session.game.undoList.size(), 1u);
    EXPECT_NE(display.saveTarget, chosen);

    chosen = session.ProgramFolder / "new.txt";
    bool saved = false;
    const test::FileCalls calls([&](std::string_view name, int) {
        saved = saved || name == "fsync";
        return saved && name == "pread" ? EIO : 0;
    });
    files.mnusavex();
    EXPECT_EQ(prompts.shown.at(prompts.shown.size() - 2).text,
              "Puzzle#1 added to file " + chosen.native());
    EXPECT_EQ(lastMessage().text, chosen.native() + ": cannot be read: Input/output error");
    EXPECT_EQ(display.saveTarget, chosen);
}

TEST_F(PuzzleFileCommandsTest, DeleteAsksRemovesThePuzzleAndShowsTheFirst) {
    const fs::path path = fileOfPuzzles("a.txt", 3);
    const std::string content = test::contentOf(path);
    files.load(path, 2);
    for (const int no : {answer::No, answer::None}) {
        prompts.answers = {no};
        files.mnudelete();
        EXPECT_EQ(lastMessage(), (Message{"Delete current puzzle from file?",
                                          "vbyesno+vbquestion+vbdefaultbutton2"}));
        EXPECT_EQ(test::contentOf(path), content);
    }
    prompts.answers = {answer::Yes};
    files.mnudelete();
    EXPECT_EQ(lastMessage(), (Message{"Done", "vbinformation+vbok"}));
    EXPECT_EQ(test::contentOf(path), records[0] + "\r\n" + records[2] + "\r\n");
    EXPECT_EQ(number(), 1);
    EXPECT_EQ(display.puzzle.PuzCount, 2);

    fileOf("a.txt", records[2] + "\r\n" + records[0] + "\r\n");
    prompts.answers = {answer::Yes};
    files.mnudelete();
    EXPECT_NE(lastMessage().text.find("nothing was deleted"), std::string::npos)
        << "another puzzle than the one shown";
    EXPECT_EQ(test::contentOf(path), records[2] + "\r\n" + records[0] + "\r\n");
}

TEST_F(PuzzleFileCommandsTest, DeletingTheOnlyPuzzleLeavesAnEmptyFile) {
    const fs::path path = fileOfPuzzles("temporarypuzfile.txt", 1);
    files.load(path);
    prompts.answers = {answer::Yes};
    files.mnudelete();
    EXPECT_EQ(test::contentOf(path), "");
    EXPECT_EQ(display.message, "Error reading p# 1");
    EXPECT_EQ(lastMessage().text, "Done");
    EXPECT_EQ(number(), 0);
    EXPECT_FALSE(session.game.hasPuzzle()) << "the board is empty";
}

TEST_F(PuzzleFileCommandsTest, RecentFilesOpenUnlessTheyAreGone) {
    const fs::path first = fileOfPuzzles("a.txt", 1);
    const fs::path second = fileOfPuzzles("b.txt", 2);
    files.load(first);
    files.load(second);
    files.oldfiles_Click(1);
    EXPECT_EQ(display.puzzle.PuzPath, first);
    EXPECT_EQ(display.recent, (std::vector<fs::path>{second, first})) << "each keeps its place";
    fs::remove(second);
    files.oldfiles_Click(0);
    EXPECT_EQ(lastMessage(), (Message{"File not found:\r\n" + second.native(), "vbcritical+vbok"}));
    fileOf("b.txt", "no puzzle\r\n");
    files.oldfiles_Click(0);
    EXPECT_EQ(lastMessage(),
              (Message{"Error reading file:\r\n" + second.native(), "vbcritical+vbok"}));
    EXPECT_EQ(display.saveTarget, first);
    EXPECT_EQ(display.puzzle.PuzPath, first);
}

TEST_F(PuzzleFileCommandsTest, ReopeningFallsBackToTheFirstPuzzleOrTheEmptyBoard) {
    const fs::path path = fileOfPuzzles("a.txt", 3);
    files.reopen(path, 2);
    EXPECT_EQ(number(), 2);
    EXPECT_EQ(display.saveTarget, path);
    files.reopen(path, 4);
    EXPECT_EQ(number(), 1);
    EXPECT_TRUE(display.recent.empty());
    for (const fs::path& none :
         {fs::path("  "), fileOfPuzzles("temporarypuzfile.txt", 1),
          session.ProgramFolder / "gone.txt", fileOf("broken.txt", "no puzzle\r\n")}) {
        files.reopen(path, 1);
        files.reopen(none, 1);
        EXPECT_EQ(number(), 0) << none;
        EXPECT_EQ(display.saveTarget, "");
        EXPECT_EQ(display.message, "");
    }
    fileOfPuzzles("a.txt", 2);
    const test::FileCalls calls(test::failing("pread", EIO));
    files.reopen(path, 1);
    EXPECT_EQ(number(), 0) << "it cannot be read";
    EXPECT_TRUE(prompts.shown.empty());
}

} // namespace
} // namespace tessaly
