#include "core/session/multiple_creation.h"

#include "core/board/puzzle_record.h"
#include "core/files/file_access.h"
#include "support/core_fakes.h"
#include "support/sample_puzzles.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <set>

namespace tessaly {
namespace {

struct ScriptedOrder : CreationOrderChoice {
    std::optional<CreationOrder> choose() override { return order; }
    std::optional<CreationOrder> order;
};

class MultipleCreationTest : public testing::Test {
protected:
    MultipleCreationTest() {
        session.ProgramFolder = folder.path().string() + "/";
        EXPECT_TRUE(Set6Combos(TESSALY_DATA "/hexabinx.txt", session.arrangements).ok());
        creation.emplace(session, files, display, prompts, orders, Chance(11));
    }

    void order(int count, DifficultyChoice difficulty = std::nullopt) {
        orders.order = {folder / "out.txt", difficulty, count};
        prompts.answers = {answer::Yes, answer::Ok};
    }
    std::vector<std::string> records() {
        std::vector<std::string> lines;
        const std::string content = test::contentOf(folder / "out.txt");
        for (std::size_t at = 0; at < content.size(); at += RecordLength + 2) {
            lines.push_back(content.substr(at, RecordLength));
            EXPECT_EQ(content.substr(at + RecordLength, 2), "\r\n");
        }
        return lines;
    }

    test::TemporaryFolder folder;
    Session session;
    RecordingDisplay display;
    ScriptedPrompts prompts;
    ScriptedFileChoice choice;
    ScriptedOrder orders;
    PlayCommands play{session.game, session.appearance, display, prompts};
    BoardInput input{session.game, session.busy, play, display};
    PuzzleFileCommands files{session, input, display, prompts, choice.choice()};
    std::optional<MultipleCreation> creation;
};

TEST_F(MultipleCreationTest, AsksThenAppendsExactlyAsManyDifferentPuzzles) {
    ASSERT_TRUE(replaceFile(folder / "out.txt", sampleRecords("easy.txt").front()).ok());
    order(60);
    creation->run();
    const std::vector<std::string> made = records();
    EXPECT_EQ(made.size(), 61u);
    EXPECT_EQ(std::set<std::string>(made.begin(), made.end()).size(), 61u);
    int hard = 0;
    for (const std::string& record : made)
        hard += boardOf(record).difficulty == Difficulty::Hard ? 1 : 0;
    EXPECT_GT(hard, 10);
    EXPECT_LT(hard, 50);

    const std::string path = folder / "out.txt";
    EXPECT_EQ(prompts.shown[0].text,
              "Create Multiple Puzzles:\r\nOutput File: " + path +
                  "\r\nDifficulty Level: Random\r\nNumber of Puzzles:60\r\n\r\n"
                  "Creating Multiple Puzzle will take time...\r\nProceed?");
    EXPECT_EQ(prompts.shown[0].style, "vbinformation+vbyesno");
    EXPECT_EQ(prompts.shown[1].text, "60 Puzzles added to file:\r\n" + path);
    EXPECT_EQ(display.message, "60 Puzles Created");
    EXPECT_EQ(display.progressPath, path);
    EXPECT_EQ(display.progress.made, 60);
    EXPECT_TRUE(display.progressEnded);
    EXPECT_FALSE(session.busy.isBusy());
}

TEST_F(MultipleCreationTest, NothingIsMadeWithoutAnOrderOrAConfirmation) {
    creation->run();
    EXPECT_TRUE(prompts.shown.empty());
    order(3);
    prompts.answers = {answer::No};
    creation->run();
    EXPECT_FALSE(FileExists(folder / "out.txt"));
}

TEST_F(MultipleCreationTest, EachCountIsOnTheDisk) {
    order(40, Difficulty::Easy);
    bool sawBusy = false;
    display.onProgress = [&] {
        EXPECT_EQ(records().size(), static_cast<std::size_t>(display.progress.made));
        sawBusy = sawBusy || session.busy.creating;
    };
    creation->run();
    EXPECT_TRUE(sawBusy);
    for (const std::string& record : records())
        EXPECT_EQ(record.front(), 'E');
}

TEST_F(MultipleCreationTest, ThePuzzleInPlayKeepsWhatWasEntered) {
    const std::string path = folder / "out.txt";
    ASSERT_TRUE(replaceFile(path, sampleRecords("easy.txt").front() + "\r\n").ok());
    files.load(path);
    session.game.place({1, 5}, "4");
    const Board before = session.game.board;
    order(2);
    creation->run();
    EXPECT_EQ(session.game.board, before);
    EXPECT_EQ(session.game.undoList.size(), 1u);
    EXPECT_EQ(display.puzzle.PuzNum, 1);
    EXPECT_EQ(display.puzzle.PuzCount, 3) << "the file has grown";
}

TEST_F(MultipleCreationTest, APuzzleThatAnotherProgramReplacedIsShownAsItIsNow) {
    const std::vector<std::string> samples = sampleRecords("easy.txt");
    const std::string path = folder / "mine.txt";
    ASSERT_TRUE(replaceFile(path, samples[0] + "\r\n").ok());
    files.load(path);
    session.game.place({1, 5}, "4");
    display.onProgress = [&] { EXPECT_TRUE(replaceFile(path, samples[1] + "\r\n").ok()); };
    order(1);
    creation->run();
    EXPECT_EQ(session.game.board, boardOf(samples[1]));
    EXPECT_TRUE(session.game.undoList.empty());
}

TEST_F(MultipleCreationTest, StoppingLeavesWholeRecordsAndAsksNothing) {
    order(1'000'000);
    prompts.answers = {answer::Yes};
    display.onProgress = [this] { creation->stop(); };
    creation->run();
    EXPECT_GE(records().size(), 1u);
    EXPECT_EQ(prompts.shown.size(), 1u);
}

TEST_F(MultipleCreationTest, AFileThatCannotBeWrittenIsSaid) {
    order(5);
    orders.order->path = "/no/such/folder/out.txt";
    prompts.answers = {answer::Yes, answer::Ok, answer::Ok};
    creation->run();
    ASSERT_EQ(prompts.shown.size(), 3u);
    EXPECT_EQ(prompts.shown[1].style, "vbok+vbcritical");
    EXPECT_NE(prompts.shown[1].text.find("/no/such/folder/out.txt"), std::string::npos);
    EXPECT_EQ(prompts.shown[2].text, "0 Puzzles added to file:\r\n/no/such/folder/out.txt");
}

} // namespace
} // namespace tessaly
