#include "core/solver/deduction.h"
#include "support/command_line.h"
#include "support/sample_puzzles.h"

namespace tessaly {
namespace {

using test::CommandResult;
using test::linesOf;
using test::put;
using SolveCommand = test::CommandLineTest;
using CheckCommand = test::CommandLineTest;

const std::string Easy = sampleRecords("easy.txt").front();
const std::string Hard = sampleRecords("hard.txt").front();

std::string answer(int number, int result, const Board& board) {
    std::string line = std::to_string(number) + " " + std::to_string(result);
    for (CellId cell : AllCells)
        line += " " + (board.CellNum[cell].empty() ? "-" : board.CellNum[cell]);
    return line + "\n";
}

TEST_F(SolveCommand, AnswersForEveryRecordOrForOne) {
    const std::string open = "H1211" + std::string(BoardCellCount, '1');
    put(file, Easy + "\r\n" + Hard + ":" + std::string(BoardCellCount, '3') + "\r\n" + open);
    Board easy = boardOf(Easy), hard = boardOf(Hard), empty = boardOf(open);
    for (Board* board : {&easy, &hard, &empty})
        board->ResetToGivens();
    const int solved = SolveByDeduction(hard);
    const std::string second = answer(2, solved, hard);
    EXPECT_EQ(run("solve " + file).out, answer(1, SolveByDeduction(easy), easy) + second +
                                            answer(3, SolveByDeduction(empty), empty));
    EXPECT_EQ(run("solve " + file + " --rules ALL --number 02").out, second);

    Board basic = boardOf(Easy);
    basic.ResetToGivens();
    basic.CellNum[basic.BlankHex].fill("");
    basic.BlankHex = NoHexagon;
    std::int32_t counter = 0;
    SolveBasic(basic, false, counter);
    EXPECT_EQ(run("solve " + file + " --rules basic --number 1").out, answer(1, 0, basic));
    EXPECT_TRUE(run("solve " + file + " --rules basic --number 3").out.starts_with("3 84 "));
    expectRefused("solve " + file + " --number 1000", exit_status::Failed,
                  file + ": line 1000: there is no such record\n");
}

TEST_F(SolveCommand, BrokenLinesAreNamedAndPassedOver) {
    put(file, "\r\n" + Easy + "\r\n" + std::string(5000, 'x') + "\r\n" + Easy.substr(0, 50) + "7" +
                  Easy.substr(51) + "\r\n\r\n");
    const CommandResult result = run("solve " + file);
    EXPECT_EQ(result.status, exit_status::Failed);
    EXPECT_EQ(result.out, run("solve " + file + " --number 2").out);
    const std::string start = "tessaly-cli: " + file + ": line ";
    EXPECT_EQ(result.err, start + "1: the record has 0 characters instead of 119\n" + start +
                              "3: the line is longer than any record\n" + start +
                              "4: character 51 is no cell\n");
    EXPECT_EQ(run("solve " + file + " --number 3").status, exit_status::Failed);
}

TEST_F(CheckCommand, ALineForEachFindingASummaryAndAStatus) {
    put(file, Easy + "\r\n" + Hard + "\r\n\r\n\r\n");
    const CommandResult sound = run("check " + file);
    EXPECT_EQ(sound.status, exit_status::Done);
    EXPECT_EQ(sound.out, file + ": 2 puzzles checked, 0 findings\n");
    put(file, Easy + "\r\n\r\nX" + Easy.substr(1) + "\r\n" + std::string(300'000, '1') + "\r\n" +
                  Easy + ":1\r\n");
    const CommandResult broken = run("check " + file);
    EXPECT_EQ(broken.status, exit_status::Failed);
    EXPECT_EQ(broken.err, "");
    EXPECT_EQ(broken.out, file + ": line 2: the record has 0 characters instead of 119\n" + file +
                              ": line 3: the record begins with neither \"E\" nor \"H\"\n" + file +
                              ": line 4: the line is longer than any record\n" + file +
                              ": line 5: the same puzzle as line 1\n" + file +
                              ": 5 puzzles checked, 4 findings\n");
}

TEST_F(CheckCommand, AFileThatCannotBeReadIsNamed) {
    for (const std::string path : {"/nonexistent/puzzles.txt", "/", "/dev/zero"}) {
        expectRefused("solve " + path, exit_status::Failed, ": " + path + ": ");
        expectRefused("check " + path, exit_status::CannotCheck, ": " + path + ": ");
    }
}

} // namespace
} // namespace tessaly
