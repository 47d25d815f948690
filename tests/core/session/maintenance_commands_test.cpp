#include "core/session/maintenance_commands.h"

#include "core/session/developer_commands.h"
#include "core/solver/deduction.h"
#include "support/core_fakes.h"
#include "support/sample_puzzles.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tessaly {
namespace {

class MaintenanceCommandsTest : public testing::Test {
protected:
    MaintenanceCommandsTest() { session.ProgramFolder = folder.path().string() + "/"; }

    void putPuzzles(std::string_view name, const std::vector<std::string>& records) {
        std::string text;
        for (const std::string& record : records)
            text += record + "\r\n";
        test::put(folder / name, text);
    }
    std::ptrdiff_t lineCount(std::string_view name) {
        const std::string content = test::contentOf(folder / name);
        return std::count(content.begin(), content.end(), '\n');
    }
    std::string said() { return prompts.shown.empty() ? std::string() : prompts.shown.back().text; }

    test::TemporaryFolder folder;
    Session session;
    RecordingDisplay display;
    ScriptedPrompts prompts;
    MaintenanceCommands commands{session, display, prompts, Chance(3)};
    DeveloperCommands developer{session, display, prompts};
};

TEST_F(MaintenanceCommandsTest, GrowProveAndMixALibrary) {
    const std::vector<std::string> easy = sampleRecords("easy.txt");
    putPuzzles("addnew.txt", easy);
    commands.FlipandAdd();
    EXPECT_EQ(said(), "done");
    EXPECT_EQ(lineCount("addnewr.txt"), 8 * 40);
    const std::string content = test::contentOf(folder / "addnewr.txt");
    EXPECT_NE(content.find(mirroredTopBottom(easy[0], TopBottomHeader::Subtracts)),
              std::string::npos);
    commands.FlipandAdd();
    EXPECT_EQ(lineCount("addnewr.txt"), 16 * 40) << "appended";
    EXPECT_EQ(display.progressPath, session.ProgramFolder / "addnew.txt");
    EXPECT_TRUE(display.progressEnded);
    EXPECT_GT(display.yields, 0);

    commands.Verify();
    const auto solved = lineCount("addnewrv.txt");
    EXPECT_EQ(said(), std::to_string(solved) + " solved of 640\r\ndone");
    EXPECT_GE(solved, 7 * 80) << "a header that is not true costs one in eight at most";

    std::filesystem::rename(folder / "addnewr.txt", folder / "puzzles20k.txt");
    session.puzzle.PuzNum = 2;
    commands.Randomize();
    EXPECT_EQ(said(), "done");
    EXPECT_EQ(display.puzzle.PuzNum, 2) << "the puzzle in play is named again";
    EXPECT_EQ(lineCount("puzzles20u.txt"), 8 * 40) << "each once";
    EXPECT_EQ(display.busyDepth, 0);
}

TEST_F(MaintenanceCommandsTest, WhatGoesWrongIsToldAndAStoppedRunIsSilent) {
    commands.Randomize();
    EXPECT_EQ(said().find((session.ProgramFolder / "puzzles20k.txt").native() + ": "), 0u)
        << said();
    EXPECT_EQ(prompts.shown.back().style, "vbok+vbcritical");
    prompts.shown.clear();

    putPuzzles("addnew.txt", sampleRecords("easy.txt"));
    display.onProgress = [this] {
        EXPECT_TRUE(session.busy.refuses(prompts));
        commands.stop();
    };
    commands.FlipandAdd();
    EXPECT_TRUE(prompts.shown.empty());
    EXPECT_EQ(folder.names(), std::set<std::string>{"addnew.txt"});
    EXPECT_FALSE(session.busy.isBusy());
}

TEST_F(MaintenanceCommandsTest, AutoSolveHardTellsTheHintAndSolvesWhenAsked) {
    Board& board = session.game.board;
    board = boardOf(sampleRecords("hard.txt").front());
    // A hint that fits the cell where it is planted.
    board.HintNum = board.SolNum[{board.BlankHex, board.HintCell}].front() - '0';
    const Board before = board;
    developer.autoSolveHard(false);
    EXPECT_EQ(said(), "AutosolveHard, fixed, Cell=" + std::to_string(board.BlankHex) +
                          ", Pos=" + std::to_string(board.HintCell) +
                          ", number=" + std::to_string(board.HintNum));
    EXPECT_EQ(board, before);
    developer.autoSolveHard(true);
    EXPECT_EQ(prompts.shown.size(), 2u) << "no error";
    EXPECT_EQ(board.CellNum, board.SolNum);
    EXPECT_GT(display.yields, 0);

    board = puzzleWithoutGivens();
    developer.autoSolveHard(true);
    EXPECT_EQ(said(), "Error");
}

TEST_F(MaintenanceCommandsTest, SolveLoopTellsEmptyCellsAndRepeatedNumbers) {
    Board& board = session.game.board;
    board = boardOf(sampleRecords("easy.txt").front());
    board.CellNum = board.SolNum;
    developer.checkCells();
    EXPECT_EQ(said(), "done");
    EXPECT_EQ(display.boardsDrawn, 1);
    board.CellNum[3][5] = "";
    board.CellNum[12][1] = board.CellNum[12][2];
    board.CellNum[19][6] = "12";
    developer.checkCells();
    EXPECT_EQ(said(), "Error in cell 035\r\nError in cell 120");
    board = puzzleWithoutGivens();
    developer.checkCells();
    EXPECT_TRUE(said().ends_with("Error in cell 026\r\nand 102 more")) << said();
}

TEST_F(MaintenanceCommandsTest, TheRulesRunOnTheBoardInPlayStepByStep) {
    Board& board = session.game.board;
    board = boardOf(sampleRecords("easy.txt").front());
    EXPECT_EQ(developerText(board), std::to_string(board.BlankHex) + "," +
                                        std::to_string(board.HintCell) + "," +
                                        std::to_string(board.HintNum));
    Board expected = board;
    std::int32_t counter = 0;
    FixXcellPairs(expected, counter);
    developer.applyXcellRule();
    EXPECT_EQ(board.CellNum, expected.CellNum);
    SolveByDeduction(expected);
    developer.solveInSteps(false);
    EXPECT_EQ(board.CellNum, expected.CellNum);
    EXPECT_EQ(said(), "All Done");
    EXPECT_GT(display.boardsDrawn, 0);
    EXPECT_FALSE(session.busy.isBusy());
}

TEST_F(MaintenanceCommandsTest, AValueIsSetByHand) {
    Board& board = session.game.board;
    board = boardOf(sampleRecords("easy.txt").front());
    const auto answer = [&](const char* line) {
        prompts.lines = {line};
        developer.setManualValue();
    };
    answer("105 4");
    EXPECT_EQ(board.CellNum[10][5], "4");
    answer("105 1 3 5");
    EXPECT_EQ(board.CellNum[10][5], "135");
    answer("105");
    EXPECT_EQ(board.CellNum[10][5], "");
    EXPECT_EQ(display.drawn, (std::vector<int>{10, 10, 10}));
    const Board before = board;
    answer("");
    EXPECT_TRUE(prompts.shown.empty());
    for (const char* wrong :
         {"205 4", "107 4", "15 4", "105 7", "105 1234561", "100 4", "005 4", "1x5 4", "x"}) {
        answer(wrong);
        EXPECT_EQ(said(), std::string("No cell and entry: ") + wrong);
    }
    EXPECT_EQ(board, before);
    session.game.undo();
    EXPECT_EQ(board.CellNum[10][5], "135");
}

} // namespace
} // namespace tessaly
