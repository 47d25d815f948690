#include "core/session/developer_commands.h"

#include "core/board/tables.h"
#include "core/solver/deduction.h"
#include "support/sample_boards.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace tessaly {
namespace {

/// Writes down everything that it is told.
struct Recorder : SolverObserver {
    std::vector<std::string> messages;
    int redraws = 0;
    int yields = 0;

    void message(const std::string& text) override { messages.push_back(text); }
    void redraw() override { ++redraws; }
    void yield() override { ++yields; }
};

TEST(DebugSolve, AnnouncesItsStepsInOrder) {
    Chance chance(1);
    Board board = filledBoard(chance);
    Recorder recorder;
    DebugSolve(board, true, recorder);
    EXPECT_EQ(recorder.messages,
              (std::vector<std::string>{
                  "Fill Fixed Neibours", "Fixed Neibours Done, get candidates",
                  "Candidates Done, fix singles", "Fix Singles", "Singles Fixed, fix neighbours",
                  "Neighbours Fixed, chech xpairs", "Xpairs done, loop back", "All Done"}));
    EXPECT_EQ(recorder.redraws, 6);
    EXPECT_EQ(recorder.yields, 1);
}

TEST(DebugSolve, SolvesWhatSolveByDeductionSolves) {
    Chance chance(2);
    for (int i = 0; i < 200; ++i) {
        Board board = sampleBoard(Sample::Puzzle, chance);
        board.SkipHex = NoHexagon;
        Board solved = board;
        Recorder recorder;
        DebugSolve(board, false, recorder);
        SolveByDeduction(solved);
        EXPECT_EQ(board.CellNum, solved.CellNum);
        EXPECT_EQ(recorder.messages, std::vector<std::string>{"All Done"});
        EXPECT_EQ(recorder.redraws, 5 * recorder.yields + 1);
    }
}

TEST(DebugSolve, StopsAtAContradiction) {
    Board board;
    // Hexagons 1 and 3 meet at side 4 of hexagon 1 and hold all six digits between them.
    board.CellNum[1] = {"", "1", "2", "3", "16", "", ""};
    board.CellNum[3] = {"", "", "4", "5", "6", "", ""};
    Recorder recorder;
    DebugSolve(board, true, recorder);
    EXPECT_EQ(recorder.messages, (std::vector<std::string>{
                                     "Fill Fixed Neibours", "Fixed Neibours Done, get candidates",
                                     "Candidates Done, fix singles", "All Done"}));
    EXPECT_EQ(recorder.redraws, 3);
}

TEST(DebugSolve, TheVerboseXcellRuleDoesWhatTheQuietOneDoes) {
    Chance chance(4);
    for (int i = 0; i < 1000; ++i) {
        Board verbose = sampleBoard(static_cast<Sample>(i % SampleKinds), chance);
        std::int32_t verboseCounter = 0;
        GetCandidates(verbose, verboseCounter);
        Board quiet = verbose;
        std::int32_t counter = verboseCounter;
        Recorder recorder;
        FixXcellPairsVerbose(verbose, verboseCounter, recorder);
        const std::int32_t before = counter;
        FixXcellPairs(quiet, counter);
        EXPECT_EQ(verbose.CellNum, quiet.CellNum);
        EXPECT_EQ(verboseCounter, counter);
        EXPECT_EQ(recorder.redraws, XcellCount);
        EXPECT_EQ(std::count_if(recorder.messages.begin(), recorder.messages.end(),
                                [](const auto& text) { return text.starts_with("fix pair "); }),
                  counter - before);
    }
}

TEST(DebugSolve, TheVerboseXcellRuleNamesXcellAndCell) {
    Board board;
    const std::array<const char*, 6> texts{"12", "12", "12", "13", "13", "12"};
    for (std::size_t i = 0; i < texts.size(); ++i)
        board.CellNum[XcellTable[8][i]] = texts[i];
    std::int32_t counter = 0;
    Recorder recorder;
    FixXcellPairsVerbose(board, counter, recorder);
    EXPECT_EQ(
        recorder.messages,
        (std::vector<std::string>{"3 pairs in xcell 8", "fix pair 3 at 074", "fix pair 3 at 101"}));
}

} // namespace
} // namespace tessaly
