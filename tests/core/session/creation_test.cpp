#include "core/files/locked_file.h"
#include "core/session/creation_commands.h"
#include "core/session/multiple_creation.h"
#include "support/core_fakes.h"
#include "support/sample_boards.h"

#include <set>

namespace tessaly::creation_test {

struct CreationTest : testing::Test, SessionScene, CreationOrderChoice {
    CreationTest() {
        EXPECT_TRUE(Set6Combos(TESSALY_DATA "/hexabinx.txt", session.arrangements).ok());
        single.emplace(session, files, display, Chance(7));
        prepare(Chance(11));
    }
    ~CreationTest() override { EXPECT_FALSE(session.busy.isBusy()); }

    void prepare(Chance chance) {
        creation.emplace(session, files, display, prompts, *this, chance);
    }
    std::optional<CreationOrder> choose() override { return order; }
    void run(int count, DifficultyChoice difficulty = std::nullopt, int answer = answer::Yes) {
        order = {out, difficulty, count};
        prompts.answers = {answer};
        creation->run();
    }
    std::string created() { return single->cmdcreate(), seen(); }
    /// The records that are on the disk.
    std::vector<std::string> made() const { return recordsOf(out); }
    std::size_t differentMade() const {
        const std::vector<std::string> all = made();
        return std::set(all.begin(), all.end()).size();
    }

    std::filesystem::path out = session.ProgramFolder / "out.txt";
    std::optional<CreationOrder> order;
    std::optional<CreationCommands> single;
    std::optional<MultipleCreation> creation;
};

TEST_F(CreationTest, APuzzleGoesToTheFileInPlayAndIsShown) {
    files.load(fileOfPuzzles("mine.txt", 1));
    session.difficulty = std::nullopt;
    for (const char* shown : {"Easy", "Hard", "Random", "Easy", "Hard"}) {
        single->DifLab();
        EXPECT_EQ(nameOf(display.difficulty), shown);
    }
    display.onYield = [this] { EXPECT_EQ(display.message, "Creating Puzzle (Hard) ..."); };
    EXPECT_EQ(created(), "2/2 mine.txt: New Puzzle Created (Hard)");
    EXPECT_EQ(session.game.board.DifName(), "Hard");
    EXPECT_EQ(PuzzleRecord(session.game.board), display.puzzle.record);
    EXPECT_EQ(display.puzzle.record.size(), RecordLength);
}

TEST_F(CreationTest, WithoutAFileItGoesToTheTemporaryOneAndTheLabelKeepsRandom) {
    for (const std::string place : {"1/1", "2/2"}) {
        EXPECT_TRUE(created().starts_with(place + " temporarypuzfile.txt: New Puzzle Created ("));
        EXPECT_EQ(display.difficulty, std::nullopt);
    }
    session.puzzle = {"/no/such/folder/a.txt", 3, 5, "record"};
    session.difficulty = Difficulty::Easy;
    EXPECT_EQ(created(), "0/0 : New Puzzle Created (Easy)|The puzzle stands in no file:\r\n"
                         "/no/such/folder/a.txt: cannot be written: No such file or directory "
                         "[vbok+vbcritical]");
    EXPECT_TRUE(session.game.hasPuzzle()) << "it is played all the same";
}

TEST_F(CreationTest, ADayHasOnePuzzleOfEachDifficultyWhichIsKeptOnce) {
    using namespace std::chrono_literals;
    std::vector<std::string> shown;
    for (const auto& [day, difficulty, place] : {std::tuple(21d, Difficulty::Easy, "1/1"),
                                                 {21d, Difficulty::Hard, "2/2"},
                                                 {22d, Difficulty::Easy, "3/3"},
                                                 {21d, Difficulty::Easy, "1/3"}}) {
        session.difficulty = difficulty;
        single->mnutoday(2026y / 11 / day);
        const std::string name(nameOf(difficulty));
        EXPECT_EQ(seen(), place + (" today.txt: Today's Puzzle (" + name) + ")");
        EXPECT_EQ(session.game.board.DifName(), name);
        shown.push_back(display.puzzle.record);
    }
    EXPECT_EQ(shown[0], shown[3]);
    EXPECT_EQ(std::set(shown.begin(), shown.end()).size(), 3u);
    EXPECT_TRUE(created().starts_with("1/1 temporarypuzfile.txt: ")) << "the days stay as they are";
}

TEST_F(CreationTest, ManyAreAskedForThenAppendedAndAllDiffer) {
    fileOf("out.txt", records[0] + "\r\n\r\n  "); // blank lines behind it
    files.load(out);
    session.game.place({1, 5}, "4");
    const Board before = session.game.board;
    display.onProgress = [this] {
        EXPECT_EQ(std::ssize(made()), display.progress.made + 1) << "on the disk, then counted";
        EXPECT_TRUE(session.busy.creating);
    };
    run(60);
    EXPECT_EQ(differentMade(), 61u);
    EXPECT_EQ(seen(), "1/61 out.txt: 60 Puzles Created|Create Multiple Puzzles:\r\n"
                      "Output File: out.txt\r\nDifficulty Level: Random\r\n"
                      "Number of Puzzles:60\r\n\r\nCreating Multiple Puzzle will take time...\r\n"
                      "Proceed? [vbinformation+vbyesno]|60 Puzzles added to file:\r\nout.txt "
                      "[vbinformation+vbok]");
    EXPECT_TRUE(display.progressPath == out && display.progressEnded);
    EXPECT_EQ(session.game.board, before) << "what was entered is kept";
    EXPECT_EQ(session.game.undoList.size(), 1u);
}

TEST_F(CreationTest, OneInAHundredMoreIsHardThanEasy) {
    for (const auto& [number, letter] : {std::pair(0U, 'H'), {50U, 'H'}, {51U, 'E'}, {99U, 'E'}}) {
        prepare(chanceOf(number));
        run(1);
        EXPECT_EQ(made().back().front(), letter) << number;
    }
}

TEST_F(CreationTest, NoPuzzleIsMadeTwice) {
    // The arrangements of one filling, which has three puzzles.
    const Board board = boardOf(records[0]);
    session.arrangements = {};
    session.arrangements.wordCount = HexagonCount;
    for (CellId cell : AllCells)
        session.arrangements.words[static_cast<std::size_t>(cell.hexagon)] +=
            static_cast<char>(board.SolNum[cell].front() - '1' + 'A');
    prepare(Chance(11));
    run(3, Difficulty::Easy);
    EXPECT_EQ(differentMade(), 3u);
    EXPECT_EQ(made().front().front(), 'E');
}

TEST_F(CreationTest, NothingIsMadeUnaskedAndWhatAnotherProgramReplacedIsShown) {
    creation->run();
    EXPECT_EQ(prompts.told(), "") << "there is no order";
    run(1, std::nullopt, answer::No);
    EXPECT_FALSE(FileExists(out));
    files.load(fileOfPuzzles("mine.txt", 1));
    session.game.place({1, 5}, "4");
    display.onProgress = [this] { fileOf("mine.txt", records[1] + "\r\n"); };
    run(1);
    EXPECT_EQ(session.game.board, boardOf(records[1]));
    EXPECT_TRUE(session.game.undoList.empty());
}

TEST_F(CreationTest, AFileThatAnotherInstanceWritesIsWaitedForAndSaidSo) {
    fileOf("out.txt", "");
    std::optional<LockedFile> held(std::in_place);
    ASSERT_EQ(held->lock(out).problem, "");
    display.onYield = [&] {
        if (display.message == "Waiting for out.txt")
            held.reset();
    };
    run(2);
    EXPECT_FALSE(held.has_value());
    EXPECT_EQ(differentMade(), 2u);
}

TEST_F(CreationTest, AStopOrAFailureLeavesWholeRecords) {
    display.onProgress = [this] { creation->stop(); };
    run(1'000'000);
    EXPECT_GE(made().size(), 1u);
    EXPECT_EQ(prompts.shown.size(), 1u) << "there is no more to say";
    out = "/no/such/folder/out.txt";
    run(5);
    EXPECT_TRUE(prompts.told().ends_with("/out.txt: cannot be written: No such file or directory "
                                         "[vbok+vbcritical]"));
}

} // namespace tessaly::creation_test
