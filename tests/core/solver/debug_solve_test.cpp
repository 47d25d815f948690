#include "core/session/developer_commands.h"

#include "core/board/tables.h"
#include "core/solver/deduction.h"
#include "support/sample_boards.h"
#include "support/sample_puzzles.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

using Messages = std::vector<std::string>;

/// Writes down everything that it is told.
struct Recorder : SolverObserver {
    Messages messages;
    int redraws = 0;
    int yields = 0;

    void message(const std::string& text) override { messages.push_back(text); }
    void redraw() override { ++redraws; }
    void yield() override { ++yields; }
};

TEST(DebugSolve, AnnouncesItsStepsInOrderAndStopsAtAContradiction) {
    Chance chance(1);
    const Messages whole{"Fill Fixed Neibours",           "Fixed Neibours Done, get candidates",
                         "Candidates Done, fix singles",  "Fix Singles",
                         "Singles Fixed, fix neighbours", "Neighbours Fixed, chech xpairs",
                         "Xpairs done, loop back",        "All Done"};
    for (const auto& [start, steps, redraws] :
         {std::tuple(filledBoard(chance), whole, 6),
          {contradictoryBoard(), {whole[0], whole[1], whole[2], whole[7]}, 3}}) {
        Board board = start;
        Recorder recorder;
        DebugSolve(board, true, recorder);
        EXPECT_EQ(recorder.messages, steps);
        EXPECT_EQ(recorder.redraws, redraws);
        EXPECT_EQ(recorder.yields, 1);
    }
}

TEST(DebugSolve, SolvesWhatSolveByDeductionSolves) {
    Chance chance(2);
    for (int i = 0; i < 100; ++i) {
        Board board = sampleBoard(Sample::Puzzle, chance);
        board.SkipHex = NoHexagon;
        Board solved = board;
        Recorder recorder;
        DebugSolve(board, false, recorder);
        SolveByDeduction(solved);
        EXPECT_EQ(board.CellNum, solved.CellNum);
        EXPECT_EQ(recorder.messages, Messages{"All Done"});
        EXPECT_EQ(recorder.redraws, 5 * recorder.yields + 1);
    }
}

TEST(DebugSolve, TheVerboseXcellRuleDoesWhatTheQuietOneDoesAndTellsOfIt) {
    Chance chance(4);
    for (int i = 0; i < 600; ++i) {
        Board verbose = sampleBoard(static_cast<Sample>(i % SampleKinds), chance);
        std::int32_t verboseCounter = 0;
        GetCandidates(verbose, verboseCounter);
        Board quiet = verbose;
        std::int32_t counter = verboseCounter;
        Recorder recorder;
        FixXcellPairsVerbose(verbose, verboseCounter, recorder);
        FixXcellPairs(quiet, counter);
        EXPECT_EQ(verbose.CellNum, quiet.CellNum);
        EXPECT_EQ(verboseCounter, counter);
        EXPECT_EQ(recorder.redraws, XcellCount);
    }
    Board board;
    const std::array<const char*, 6> texts{"12", "12", "12", "13", "13", "12"};
    for (std::size_t i = 0; i < texts.size(); ++i)
        board.CellNum[XcellTable[8][i]] = texts[i];
    std::int32_t counter = 0;
    Recorder recorder;
    FixXcellPairsVerbose(board, counter, recorder);
    EXPECT_EQ(recorder.messages,
              (Messages{"3 pairs in xcell 8", "fix pair 3 at 074", "fix pair 3 at 101"}));
}

} // namespace
} // namespace tessaly
