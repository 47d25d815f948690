#include "core/session/maintenance_commands.h"

#include "core/board/tables.h"
#include "core/session/developer_commands.h"
#include "core/solver/deduction.h"

#include "support/core_fakes.h"
#include "support/sample_boards.h"

namespace tessaly::developers_test {

struct DevelopersTest : testing::Test, SessionScene {
    ~DevelopersTest() override { EXPECT_FALSE(session.busy.isBusy() || display.busyDepth > 0); }

    std::size_t lineCount(std::string_view name) const {
        return linesOf(contentOf(folder / name)).size();
    }

    Board& board = session.game.board;
    MaintenanceCommands maintenance{session, display, prompts, Chance(3)};
    DeveloperCommands developer{session, display, prompts};
};

TEST_F(DevelopersTest, FilesGrowAreProvedAndMixed) {
    fileOfPuzzles("addnew.txt", 40);
    session.puzzle.PuzNum = 2;
    for (const std::size_t runs : {1U, 2U}) {
        maintenance.FlipandAdd();
        EXPECT_EQ(prompts.told(), "|done [vbok]");
        EXPECT_EQ(lineCount("addnewr.txt"), runs * 8 * 40) << "appended";
    }
    const std::string mirrored = mirroredTopBottom(records[0], TopBottomHeader::Subtracts);
    EXPECT_NE(contentOf(folder / "addnewr.txt").find(mirrored), std::string::npos);
    EXPECT_EQ(display.puzzle.PuzNum, 2) << "the puzzle in play is named again";

    maintenance.Verify();
    EXPECT_TRUE(prompts.told().starts_with("|" + std::to_string(lineCount("addnewrv.txt")) +
                                           " solved of 640\r\n(hardly any hard"));
    std::filesystem::rename(folder / "addnewr.txt", folder / "puzzles20k.txt");
    maintenance.Randomize();
    EXPECT_EQ(prompts.told(), "|done [vbok]");
    EXPECT_EQ(lineCount("puzzles20u.txt"), 8 * 40) << "each once";

    std::filesystem::remove(folder / "addnew.txt");
    maintenance.FlipandAdd();
    maintenance.Verify();
    EXPECT_TRUE(seen().ends_with("|addnew.txt: cannot be read: No such file or directory "
                                 "[vbok+vbcritical]|addnewr.txt: cannot be read: No such file or "
                                 "directory [vbok+vbcritical]"));
    fileOfPuzzles("puzzles20k.txt", 40);
    display.onProgress = [this] {
        EXPECT_TRUE(session.busy.refuses(prompts));
        maintenance.stop();
    };
    maintenance.Randomize();
    EXPECT_EQ(prompts.told(), "") << "nobody who stops it is told so";
    EXPECT_EQ(lineCount("puzzles20u.txt"), 8 * 40);
}

TEST_F(DevelopersTest, AutoSolveHardTellsTheHintAndSolvesWhenAsked) {
    board = boardOf(sampleRecords("hard.txt").front());
    // A hint that fits the cell where it is planted.
    board.HintNum = board.SolNum[{board.BlankHex, board.HintCell}].front() - '0';
    const Board before = board;
    const std::string hint = "|AutosolveHard, fixed, Cell=" + std::to_string(board.BlankHex) +
                             ", Pos=" + std::to_string(board.HintCell) +
                             ", number=" + std::to_string(board.HintNum) + " [vbok]";
    developer.autoSolveHard(false);
    EXPECT_EQ(board, before);
    developer.autoSolveHard(true);
    EXPECT_EQ(prompts.told(), hint + hint) << "no error";
    EXPECT_EQ(board.CellNum, board.SolNum);
    EXPECT_GT(display.yields, 0);
    for (const Board& unsolved : {puzzleWithoutGivens(), boardOf(recordOfTheRim(records[0]))}) {
        board = unsolved;
        developer.autoSolveHard(true);
        EXPECT_TRUE(prompts.told().ends_with("|Error [vbok]"));
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
    EXPECT_TRUE(prompts.told().ends_with("|All Done [vbok]"));
    const auto checked = [this] { return developer.checkCells(), prompts.told(); };
    board.CellNum = board.SolNum;
    EXPECT_EQ(checked(), "|done [vbok]");
    board.CellNum[3][5] = "";
    board.CellNum[12][1] = board.CellNum[12][2];
    board.CellNum[19][6] = "12";
    EXPECT_EQ(checked(), "|Error in cell 035\r\nError in cell 120 [vbok]");
    board = puzzleWithoutGivens();
    EXPECT_TRUE(checked().ends_with("Error in cell 026\r\nand 102 more [vbok]"));
    board.BlankHex = 12;
    board.HintCell = 4;
    EXPECT_EQ(developerText(board), "12,4," + std::to_string(board.HintNum));
}

TEST_F(DevelopersTest, AValueIsSetByHand) {
    board = boardOf(records[0]);
    const auto answer = [this](const char* line) {
        prompts.lines = {line};
        developer.setManualValue();
        return prompts.told();
    };
    for (const auto& [line, entry] :
         {std::pair("105 4", "4"), {"105 1 3 5", "135"}, {"105", ""}, {"", ""}}) {
        EXPECT_EQ(answer(line), "");
        EXPECT_EQ(board.CellNum[10][5], entry);
    }
    EXPECT_EQ(display.drawn, (std::vector<int>{10, 10, 10}));
    for (const char* wrong : {"205 4", "107 4", "15 4", "105 7", "105 1234561", "100 4", "1x5 4"})
        EXPECT_EQ(answer(wrong),
                  std::string("|No cell and entry: ") + wrong + " [vbok+vbcritical]");
    session.game.undo();
    EXPECT_EQ(board.CellNum[10][5], "135");
}

using Messages = std::vector<std::string>;

/// Writes down everything that it is told.
struct Recorder : SolverObserver {
    void message(const std::string& text) override { messages.push_back(text); }
    void redraw() override { ++redraws; }
    void yield() override {}

    Messages messages;
    int redraws = 0;
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
    }
}

TEST(DebugSolve, FixesAndNamesThePairsThatTheQuietRuleFixes) {
    Chance chance(2);
    Recorder recorder;
    std::int32_t told = 0, silent = 0;
    for (int i = 0; i < 300; ++i) {
        Board board = sampleBoard(static_cast<Sample>(i % SampleKinds), chance);
        GetCandidates(board, silent);
        Board quiet = board;
        FixXcellPairsVerbose(board, told = 0, recorder);
        FixXcellPairs(quiet, silent = 0);
        EXPECT_TRUE(board.CellNum == quiet.CellNum && told == silent);
    }
    recorder = {};
    Board board;
    for (std::size_t i = 0; i < 6; ++i)
        board.CellNum[XcellTable[8][i]] = i == 3 || i == 4 ? "13" : "12";
    FixXcellPairsVerbose(board, told, recorder);
    EXPECT_EQ(recorder.messages,
              (Messages{"3 pairs in xcell 8", "fix pair 3 at 074", "fix pair 3 at 101"}));
    EXPECT_EQ(recorder.redraws, XcellCount);
}

} // namespace tessaly::developers_test
