#include "core/session/maintenance_commands.h"

#include "core/session/developer_commands.h"
#include "core/solver/deduction.h"
#include "support/core_fakes.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tessaly {
namespace {

struct DevelopersTest : testing::Test, SessionScene {
    std::ptrdiff_t lineCount(std::string_view name) const {
        const std::string content = test::contentOf(folder / name);
        return std::count(content.begin(), content.end(), '\n');
    }
    std::string said() { return prompts.shown.empty() ? std::string() : lastMessage().text; }

    Board& board = session.game.board;
    MaintenanceCommands maintenance{session, display, prompts, Chance(3)};
    DeveloperCommands developer{session, display, prompts};
};

TEST_F(DevelopersTest, FilesGrowAreProvedAndMixed) {
    fileOfPuzzles("addnew.txt", 40);
    session.puzzle.PuzNum = 2;
    for (const int runs : {1, 2}) {
        maintenance.FlipandAdd();
        EXPECT_EQ(said(), "done");
        EXPECT_EQ(lineCount("addnewr.txt"), runs * 8 * 40) << "appended";
    }
    EXPECT_NE(test::contentOf(folder / "addnewr.txt")
                  .find(mirroredTopBottom(records[0], TopBottomHeader::Subtracts)),
              std::string::npos);
    EXPECT_EQ(display.progressPath, session.ProgramFolder / "addnew.txt");
    EXPECT_TRUE(display.progressEnded);
    EXPECT_EQ(display.puzzle.PuzNum, 2) << "the puzzle in play is named again";

    maintenance.Verify();
    EXPECT_EQ(said(), std::to_string(lineCount("addnewrv.txt")) + " solved of 640\r\ndone");

    std::filesystem::rename(folder / "addnewr.txt", folder / "puzzles20k.txt");
    maintenance.Randomize();
    EXPECT_EQ(said(), "done");
    EXPECT_EQ(lineCount("puzzles20u.txt"), 8 * 40) << "each once";
    EXPECT_EQ(display.busyDepth, 0);
}

TEST_F(DevelopersTest, WhatGoesWrongIsToldAndAStoppedRunIsSilent) {
    maintenance.Randomize();
    EXPECT_EQ(said().find((session.ProgramFolder / "puzzles20k.txt").native() + ": "), 0u);
    EXPECT_EQ(lastMessage().style, "vbok+vbcritical");
    prompts.shown.clear();
    fileOfPuzzles("addnew.txt", 40);
    display.onProgress = [this] {
        EXPECT_TRUE(session.busy.refuses(prompts));
        maintenance.stop();
    };
    maintenance.FlipandAdd();
    EXPECT_TRUE(prompts.shown.empty());
    EXPECT_EQ(folder.names(), std::set<std::string>{"addnew.txt"});
    EXPECT_FALSE(session.busy.isBusy());
}

TEST_F(DevelopersTest, AutoSolveHardTellsTheHintAndSolvesWhenAsked) {
    board = boardOf(sampleRecords("hard.txt").front());
    // A hint that fits the cell where it is planted.
    board.HintNum = board.SolNum[{board.BlankHex, board.HintCell}].front() - '0';
    const Board before = board;
    developer.autoSolveHard(false);
    const std::string hint = std::to_string(board.BlankHex) +
                             ", Pos=" + std::to_string(board.HintCell) +
                             ", number=" + std::to_string(board.HintNum);
    EXPECT_EQ(said(), "AutosolveHard, fixed, Cell=" + hint);
    EXPECT_EQ(board, before);
    developer.autoSolveHard(true);
    EXPECT_EQ(prompts.shown.size(), 2u) << "no error";
    EXPECT_EQ(board.CellNum, board.SolNum);
    EXPECT_GT(display.yields, 0);
    for (const Board& unsolved : {puzzleWithoutGivens(), boardOf(recordOfTheRim(records[0]))}) {
        board = unsolved;
        developer.autoSolveHard(true);
        EXPECT_EQ(said(), "Error");
    }
}

TEST_F(DevelopersTest, TheBoardIsCheckedAndSolvedStepByStep) {
    board = boardOf(records[0]);
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

    board.CellNum = board.SolNum;
    developer.checkCells();
    EXPECT_EQ(said(), "done");
    board.CellNum[3][5] = "";
    board.CellNum[12][1] = board.CellNum[12][2];
    board.CellNum[19][6] = "12";
    developer.checkCells();
    EXPECT_EQ(said(), "Error in cell 035\r\nError in cell 120");
    board = puzzleWithoutGivens();
    developer.checkCells();
    EXPECT_TRUE(said().ends_with("Error in cell 026\r\nand 102 more")) << said();
    board.BlankHex = 12;
    board.HintCell = 4;
    EXPECT_EQ(developerText(board), "12,4," + std::to_string(board.HintNum));
}

TEST_F(DevelopersTest, AValueIsSetByHand) {
    board = boardOf(records[0]);
    const auto answer = [this](const char* line) {
        prompts.lines = {line};
        developer.setManualValue();
    };
    for (const auto& [line, entry] : {std::pair("105 4", "4"), {"105 1 3 5", "135"}, {"105", ""}}) {
        answer(line);
        EXPECT_EQ(board.CellNum[10][5], entry);
    }
    EXPECT_EQ(display.drawn, (std::vector<int>{10, 10, 10}));
    answer("");
    EXPECT_TRUE(prompts.shown.empty());
    for (const char* wrong :
         {"205 4", "107 4", "15 4", "105 7", "105 1234561", "100 4", "005 4", "1x5 4", "x"}) {
        answer(wrong);
        EXPECT_EQ(said(), std::string("No cell and entry: ") + wrong);
    }
    session.game.undo();
    EXPECT_EQ(board.CellNum[10][5], "135");
}

} // namespace
} // namespace tessaly
