#include "core/session/developer_commands.h"

#include "core/board/tables.h"
#include "core/solver/deduction.h"
#include "support/sample_boards.h"

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
    Board solved = sampleBoard(Sample::Puzzle, chance);
    solved.CellNum = solved.SolNum;
    // Hexagons 1 and 3 meet at side 4 of hexagon 1 and hold all six digits between them.
    Board contradictory;
    contradictory.CellNum[1] = {"", "1", "2", "3", "16", "", ""};
    contradictory.CellNum[3] = {"", "", "4", "5", "6", "", ""};
    const Messages whole{"Fill Fixed Neibours",           "Fixed Neibours Done, get candidates",
                         "Candidates Done, fix singles",  "Fix Singles",
                         "Singles Fixed, fix neighbours", "Neighbours Fixed, chech xpairs",
                         "Xpairs done, loop back",        "All Done"};
    for (auto& [board, steps, redraws] :
         {std::tuple(&solved, whole, 6),
          {&contradictory, {whole[0], whole[1], whole[2], whole[7]}, 3}}) {
        Recorder recorder;
        DebugSolve(*board, true, recorder);
        EXPECT_EQ(recorder.messages, steps);
        EXPECT_EQ(recorder.redraws, redraws);
        EXPECT_EQ(recorder.yields, 1);
    }
}

TEST(DebugSolve, DoesWhatTheQuietRulesDo) {
    Chance chance(2);
    Board start;
    for (std::size_t i = 0; i < 6; ++i)
        start.CellNum[XcellTable[8][i]] = i == 3 || i == 4 ? "13" : "12";
    const Messages told{"3 pairs in xcell 8", "fix pair 3 at 074", "fix pair 3 at 101"};
    for (int i = -1; i < 600; ++i) {
        std::int32_t counter = 0;
        if (i >= 0) {
            start = sampleBoard(static_cast<Sample>(i % SampleKinds), chance);
            GetCandidates(start, counter);
        }
        Board verbose = start, quiet = start;
        std::int32_t quietCounter = counter;
        Recorder recorder;
        FixXcellPairsVerbose(verbose, counter, recorder);
        FixXcellPairs(quiet, quietCounter);
        EXPECT_EQ(verbose.CellNum, quiet.CellNum);
        EXPECT_EQ(counter, quietCounter);
        EXPECT_EQ(recorder.redraws, XcellCount);
        EXPECT_TRUE(i >= 0 || recorder.messages == told);
        if (i % SampleKinds != static_cast<int>(Sample::Puzzle) || start.SkipHex != NoHexagon)
            continue;
        recorder = {};
        DebugSolve(verbose, false, recorder);
        SolveByDeduction(quiet);
        EXPECT_EQ(verbose.CellNum, quiet.CellNum);
        EXPECT_EQ(recorder.messages, Messages{"All Done"});
        EXPECT_EQ(recorder.redraws, 5 * recorder.yields + 1);
    }
}

} // namespace
} // namespace tessaly
