#include "core/session/puzzle_file_commands.h"

#include "support/core_fakes.h"
#include "support/file_calls.h"

#include <cerrno>

namespace tessaly::puzzle_file_commands_test {

namespace fs = std::filesystem;

struct PuzzleFileCommandsTest : testing::Test, SessionScene {
    PuzzleFileCommandsTest() { load(fileOfPuzzles("a.txt", 3)); }
    ~PuzzleFileCommandsTest() override { EXPECT_EQ(display.busyDepth, 0); }

    fs::path pathOf(const std::string& name) const { return session.ProgramFolder / name; }
    std::string contentOf(const std::string& name) const {
        return tessaly::contentOf(pathOf(name));
    }
    // Each does something and returns what is seen then.
    std::string load(const fs::path& path) { return files.load(path), seen(); }
    std::string step(int item) { return files.cmdarrow(item), seen(); }
    std::string goTo(int number) { return files.goTo(number), seen(); }
    std::string open(int item) { return files.oldfiles_Click(item), seen(); }
    std::string reopen(const fs::path& path, int number) {
        return files.reopen(path, number), seen();
    }
    std::string savex() { return files.mnusavex(), seen(); }
    std::string saveto(std::deque<int> answers = {}) {
        prompts.answers = std::move(answers);
        return files.mnusaveto(), seen();
    }
    std::string remove(int answer = answer::Yes) {
        prompts.answers = {answer};
        return files.mnudelete(), seen();
    }
    const std::string Asked =
        "|Delete current puzzle from file? [vbyesno+vbquestion+vbdefaultbutton2]";
    const std::string Done = "|Done [vbinformation+vbok]";
};

TEST_F(PuzzleFileCommandsTest, LoadShowsTheFirstPuzzleAndRemembersTheFile) {
    input.selectFirst();
    input.openPopupAtSelection();
    session.game.place({1, 5}, "4");
    chosen = fileOfPuzzles("b.txt", 2);
    files.mnuload();
    EXPECT_EQ(seen(), "1/2 b.txt: ");
    EXPECT_FALSE(display.popupShown);
    EXPECT_EQ(asked, std::vector<std::string>{"OPEN: Select a Puzzle file to open"});
    EXPECT_EQ(display.saveTarget, chosen);
    EXPECT_EQ(session.game.board, boardOf(records[0]));
    EXPECT_TRUE(session.game.undoList.empty());
    chosen.clear();
    files.mnuload();
    EXPECT_EQ(load(fileOfPuzzles("temporarypuzfile.txt", 1)), "1/1 temporarypuzfile.txt: ");
    EXPECT_EQ(display.recent, (std::vector{pathOf("b.txt"), pathOf("a.txt")}));
    EXPECT_EQ(session.recentFiles.paths(), display.recent);
}

TEST_F(PuzzleFileCommandsTest, NothingIsSavedToAnOwnFileNorUnaskedToOneWithoutAPuzzle) {
    fs::create_symlink(fileOf("all.col", "xp.col\r\n"), pathOf("link.txt"));
    fileOf("notes.txt", "eggs\r\n");
    for (const auto& [name, answered, accepted] : {std::tuple("link.txt", answer::Yes, false),
                                                   {"x/../tessaly.cfg", answer::Yes, false},
                                                   {"notes.txt", answer::No, false},
                                                   {"notes.txt", answer::Yes, true}}) {
        prompts.answers = {answered};
        chosen = pathOf(name);
        EXPECT_EQ(savex().starts_with("1/3 a.txt: |"), !accepted) << name;
        prompts.answers.clear();
    }
    EXPECT_EQ(contentOf("all.col"), "xp.col\r\n");
}

TEST_F(PuzzleFileCommandsTest, AFileThatHoldsNoPuzzleIsRefusedAndNothingChanges) {
    session.game.place({1, 1}, "3");
    const Board before = session.game.board;
    fileOf("empty.txt", "");
    fileOf("short.txt", records[0].substr(0, 118) + "\r\n");
    const std::pair<std::string, std::string> rows[] = {
        {"empty.txt", "there is no puzzle 1 among its 0"},
        {"short.txt", "line 1: the record has 118 characters instead of 119"},
        {"", "is a folder"},
        {"gone.txt", "cannot be read: No such file or directory"}};
    for (const auto& [name, why] : rows) {
        std::string end = "|Error reading file:\r\n";
        end.append(name).append("\r\n").append(why).append(" [vbcritical+vbok]");
        const std::string told = load(pathOf(name));
        EXPECT_TRUE(told.starts_with("1/3 a.txt: Error reading p# 1") && told.ends_with(end));
        EXPECT_EQ(session.game.board, before);
        EXPECT_EQ(session.game.undoList.size(), 1u);
        EXPECT_EQ(display.recent.size(), 1u);
    }
}

TEST_F(PuzzleFileCommandsTest, SteppingWrapsAroundBothEndsOfWhatTheFileHoldsNow) {
    constexpr int Previous = -1, Next = -2;
    // How many the file holds, the arrow or the number to go to, and the number shown.
    const std::tuple<std::size_t, int, int> rows[] = {
        {3, Previous, 3}, {3, Next, 1}, {3, 2, 2}, {3, 0, 2},        {3, 4, 2},   {3, 3, 3},
        {5, Next, 4},     {5, 5, 5},    {2, 3, 5}, {2, Previous, 2}, {1, Next, 1}};
    for (const auto& [count, step, expected] : rows) {
        fileOfPuzzles("a.txt", count);
        step >= 0 ? files.goTo(step) : files.cmdarrow(step == Previous ? 0 : 1);
        EXPECT_EQ(display.puzzle.PuzNum, expected) << count << ", " << step;
    }
    session.game.place({1, 5}, "4");
    step(1);
    EXPECT_EQ(session.game.undoList.size(), 1u) << "the only puzzle is not read again";
}

TEST_F(PuzzleFileCommandsTest, WhatCannotBeReadIsSteppedOverAndNamed) {
    const std::string content = "bad\r\n" + records[0] + "\r\nbad\r\n" + records[1];
    const std::string why = ": the record has 3 characters instead of 119";
    EXPECT_EQ(load(fileOf("a.txt", content)), "2/4 a.txt: Error reading p# 1" + why);
    EXPECT_EQ(step(1), "4/4 a.txt: Error reading p# 3" + why);
    EXPECT_EQ(step(1), "2/4 a.txt: Error reading p# 1" + why);
    EXPECT_EQ(step(0), "4/4 a.txt: Error reading p# 1" + why);
    EXPECT_EQ(goTo(5), "4/4 a.txt: There is no puzzle 5 among the 4");
    EXPECT_EQ(goTo(3), "3/4 a.txt: Error reading p# 3" + why);
    EXPECT_FALSE(session.game.hasPuzzle()) << "shown as what it is";
    EXPECT_EQ(saveto(), "3/4 a.txt: Error reading p# 3" + why);
    EXPECT_EQ(remove(), "2/3 a.txt: Error reading p# 1" + why + Asked + Done);
    EXPECT_EQ(contentOf("a.txt"), "bad\r\n" + records[0] + "\r\n" + records[1]);

    const Board before = session.game.board;
    fileOf("a.txt", "");
    EXPECT_EQ(step(1), "2/3 a.txt: Error reading p# 1");
    fs::remove(pathOf("a.txt"));
    EXPECT_EQ(step(0), "2/3 a.txt: Error reading p# 1|a.txt: cannot be read: No such file or "
                       "directory [vbok+vbcritical]");
    EXPECT_EQ(session.game.board, before);
}

TEST_F(PuzzleFileCommandsTest, TheWindowLivesWhileALargeFileIsReadOrCopied) {
    std::string content;
    while (content.size() < 500'000)
        content += records[content.size() % 7] + "\r\n";
    int turns = 0;
    display.onYield = [&] {
        ++turns;
        EXPECT_GT(display.busyDepth, 0);
        EXPECT_TRUE(session.busy.refuses(prompts)) << "silently";
    };
    EXPECT_EQ(load(fileOf("a.txt", content)), "1/4133 a.txt: ");
    EXPECT_GE(std::exchange(turns, 0), 5);
    EXPECT_EQ(remove(), "1/4132 a.txt: " + Asked + Done);
    EXPECT_GE(turns, 5);
    EXPECT_EQ(contentOf("a.txt"), content.substr(RecordLength + 2));
    EXPECT_FALSE(session.busy.isBusy());
}

TEST_F(PuzzleFileCommandsTest, SavingAppendsThePlayAndShowsTheCopy) {
    session.game.place({1, 5}, "6");
    EXPECT_EQ(savex(), "1/3 a.txt: ") << "no file was chosen";
    chosen = pathOf("new.txt");
    EXPECT_EQ(savex(), "1/1 new.txt: |Puzzle#1 added to file new.txt [vbok+vbinformation]");
    EXPECT_EQ(asked.back(), "SAVE: Select an output Puzzle file");
    EXPECT_EQ(display.saveTarget, chosen);
    EXPECT_EQ(session.game.board.CellNum[1][5], "6");
    EXPECT_EQ(saveto(), "2/2 new.txt: |Puzzle#2 added to file new.txt [vbok+vbinformation]");
    const std::string saved = PuzzleRecord(session.game.board) + "\r\n";
    EXPECT_EQ(contentOf("new.txt"), saved + saved);

    fs::remove(chosen);
    EXPECT_EQ(saveto({answer::No}), "2/2 new.txt: |File not found:\r\nnew.txt\r\nMake it anew? "
                                    "[vbyesno+vbquestion]");
    EXPECT_FALSE(FileExists(chosen));
    saveto({answer::Yes});
    EXPECT_EQ(contentOf("new.txt"), saved);
}

TEST_F(PuzzleFileCommandsTest, AFailedSaveIsSaidAndKeepsThePlay) {
    session.game.place({1, 5}, "4");
    const Board before = session.game.board;
    chosen = pathOf("no/such.txt");
    EXPECT_EQ(savex(), "1/3 a.txt: |no/such.txt: cannot be written: No such file or directory "
                       "[vbok+vbcritical]");
    EXPECT_EQ(session.game.board, before);
    EXPECT_EQ(display.saveTarget, pathOf("a.txt"));
    chosen = pathOf("new.txt");
    bool saved = false;
    const FileCalls calls([&](std::string_view name, int) {
        saved = saved || name == "fsync";
        return saved && name == "pread" ? EIO : 0;
    });
    EXPECT_EQ(savex(), "1/3 a.txt: Error reading p# 1|Puzzle#1 added to file new.txt "
                       "[vbok+vbinformation]|new.txt: cannot be read: Input/output error "
                       "[vbok+vbcritical]");
    EXPECT_EQ(display.saveTarget, chosen);
}

TEST_F(PuzzleFileCommandsTest, DeleteAsksRemovesThePuzzleAndShowsTheFirst) {
    const std::string content = contentOf("a.txt");
    files.goTo(2);
    for (const int no : {answer::No, answer::None}) {
        EXPECT_EQ(remove(no), "2/3 a.txt: " + Asked);
        EXPECT_EQ(contentOf("a.txt"), content);
    }
    EXPECT_EQ(remove(), "1/2 a.txt: " + Asked + Done);
    EXPECT_EQ(contentOf("a.txt"), records[0] + "\r\n" + records[2] + "\r\n");

    fileOf("a.txt", records[2] + "\r\n");
    EXPECT_NE(remove().find("nothing was deleted"), std::string::npos) << "another than is shown";
    EXPECT_EQ(contentOf("a.txt"), records[2] + "\r\n");
    files.goTo(1);
    EXPECT_EQ(remove(), "0/0 : Error reading p# 1" + Asked + Done);
    EXPECT_EQ(contentOf("a.txt"), "");
    EXPECT_FALSE(session.game.hasPuzzle()) << "the board is empty";
    files.mnudelete();
    files.mnusavex();
    files.goTo(1);
    EXPECT_EQ(step(1), "0/0 : Error reading p# 1") << "there is no puzzle";
    EXPECT_TRUE(asked.empty());
}

TEST_F(PuzzleFileCommandsTest, RecentFilesOpenUnlessTheyAreGone) {
    const fs::path path = pathOf("a.txt");
    EXPECT_EQ(reopen(path, 2), "2/3 a.txt: ");
    EXPECT_EQ(display.saveTarget, path);
    EXPECT_EQ(reopen(path, 4), "1/3 a.txt: ");
    load(fileOfPuzzles("b.txt", 2));
    EXPECT_EQ(open(1), "1/3 a.txt: ");
    fs::remove(pathOf("b.txt"));
    EXPECT_EQ(open(0), "1/3 a.txt: |File not found:\r\nb.txt [vbcritical+vbok]");
    for (const fs::path& none : {fs::path("  "), fileOfPuzzles("temporarypuzfile.txt", 1),
                                 pathOf("gone.txt"), fileOf("broken.txt", "no puzzle\r\n")}) {
        reopen(path, 1);
        EXPECT_EQ(reopen(none, 1), "0/0 : ") << none;
        EXPECT_EQ(display.saveTarget, "");
    }
    fileOfPuzzles("a.txt", 2);
    const FileCalls calls(failing("pread", EIO));
    EXPECT_EQ(reopen(path, 1), "0/0 : ") << "it cannot be read";
    EXPECT_EQ(display.recent.size(), 2u) << "it is not added";
}

} // namespace tessaly::puzzle_file_commands_test
