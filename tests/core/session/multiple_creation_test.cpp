#include "core/session/multiple_creation.h"

#include "support/core_fakes.h"
#include "support/sample_boards.h"

#include <gtest/gtest.h>

#include <set>

namespace tessaly {
namespace {

using Message = ScriptedPrompts::Message;

struct MultipleCreationTest : testing::Test, SessionScene, CreationOrderChoice {
    MultipleCreationTest() {
        EXPECT_TRUE(Set6Combos(TESSALY_DATA "/hexabinx.txt", session.arrangements).ok());
        prepare(Chance(11));
    }
    void prepare(Chance chance) {
        creation.emplace(session, files, display, prompts, *this, chance);
    }
    std::optional<CreationOrder> choose() override { return order; }
    void run(int count, DifficultyChoice difficulty = std::nullopt) {
        order = {out, difficulty, count};
        prompts.answers = {answer::Yes};
        creation->run();
    }
    /// The records that are on the disk, each with its line end.
    std::vector<std::string> made() const {
        std::vector<std::string> lines;
        const std::string content = test::contentOf(out);
        for (std::size_t at = 0; at < content.size(); at += RecordLength + 2) {
            lines.push_back(content.substr(at, RecordLength));
            EXPECT_EQ(content.substr(at + RecordLength, 2), "\r\n");
        }
        return lines;
    }

    std::filesystem::path out = session.ProgramFolder / "out.txt";
    std::optional<CreationOrder> order;
    std::optional<MultipleCreation> creation;
};

TEST_F(MultipleCreationTest, AsksThenAppendsExactlyAsManyDifferentPuzzles) {
    fileOf("out.txt", records[0] + "\r\n\r\n  "); // blank lines behind it
    files.load(out);
    session.game.place({1, 5}, "4");
    const Board before = session.game.board;
    display.onProgress = [this] {
        EXPECT_EQ(std::ssize(made()), display.progress.made + 1) << "on the disk, then counted";
        EXPECT_TRUE(session.busy.creating);
    };
    run(60);
    const std::vector<std::string> all = made();
    EXPECT_EQ(std::set<std::string>(all.begin(), all.end()).size(), 61u);
    EXPECT_EQ(prompts.shown,
              (std::vector<Message>{
                  {"Create Multiple Puzzles:\r\nOutput File: " + out.native() +
                       "\r\nDifficulty Level: Random\r\nNumber of Puzzles:60\r\n\r\n"
                       "Creating Multiple Puzzle will take time...\r\nProceed?",
                   "vbinformation+vbyesno"},
                  {"60 Puzzles added to file:\r\n" + out.native(), "vbinformation+vbok"}}));
    EXPECT_EQ(display.message, "60 Puzles Created");
    EXPECT_EQ(display.progressPath, out);
    EXPECT_TRUE(display.progressEnded);
    EXPECT_FALSE(session.busy.isBusy());
    EXPECT_EQ(session.game.board, before) << "what was entered is kept";
    EXPECT_EQ(session.game.undoList.size(), 1u);
    EXPECT_EQ(display.puzzle.PuzCount, 61) << "the file has grown";
}

TEST_F(MultipleCreationTest, OneInAHundredMoreIsHardThanEasy) {
    for (const auto& [number, letter] : {std::pair(0U, 'H'), {50U, 'H'}, {51U, 'E'}, {99U, 'E'}}) {
        prepare(chanceOf(number));
        run(1);
        EXPECT_EQ(made().back().front(), letter) << number;
    }
}

TEST_F(MultipleCreationTest, NoPuzzleIsMadeTwice) {
    // The arrangements of one filling, which has three puzzles.
    const Board board = boardOf(records[0]);
    session.arrangements = {};
    session.arrangements.wordCount = HexagonCount;
    for (CellId cell : AllCells)
        session.arrangements.words[static_cast<std::size_t>(cell.hexagon)] +=
            static_cast<char>(board.SolNum[cell].front() - '1' + 'A');
    prepare(Chance(11));
    run(3, Difficulty::Easy);
    const std::vector<std::string> all = made();
    EXPECT_EQ(std::set<std::string>(all.begin(), all.end()).size(), 3u);
}

TEST_F(MultipleCreationTest, NothingIsMadeWithoutAnOrderOrAConfirmation) {
    creation->run();
    EXPECT_TRUE(prompts.shown.empty());
    order = {out, Difficulty::Easy, 3};
    prompts.answers = {answer::No};
    creation->run();
    EXPECT_FALSE(FileExists(out));
}

TEST_F(MultipleCreationTest, APuzzleThatAnotherProgramReplacedIsShownAsItIsNow) {
    files.load(fileOfPuzzles("mine.txt", 1));
    session.game.place({1, 5}, "4");
    display.onProgress = [this] { fileOf("mine.txt", records[1] + "\r\n"); };
    run(1, Difficulty::Easy);
    EXPECT_EQ(made().front().front(), 'E');
    EXPECT_EQ(session.game.board, boardOf(records[1]));
    EXPECT_TRUE(session.game.undoList.empty());
}

TEST_F(MultipleCreationTest, StoppingLeavesWholeRecordsAndAsksNothing) {
    display.onProgress = [this] { creation->stop(); };
    run(1'000'000);
    EXPECT_GE(made().size(), 1u);
    EXPECT_EQ(prompts.shown.size(), 1u);
}

TEST_F(MultipleCreationTest, AFileThatCannotBeWrittenIsSaid) {
    out = "/no/such/folder/out.txt";
    run(5);
    ASSERT_EQ(prompts.shown.size(), 3u);
    EXPECT_EQ(prompts.shown[1].style, "vbok+vbcritical");
    EXPECT_NE(prompts.shown[1].text.find(out), std::string::npos);
    EXPECT_EQ(prompts.shown[2].text, "0 Puzzles added to file:\r\n" + out.native());
}

} // namespace
} // namespace tessaly
