#include "support/command_line.h"
#include "support/plain_rules.h"
#include "support/sample_puzzles.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tessaly {
namespace {

using test::CommandResult;
using test::linesOf;
using test::put;
using test::runCommand;
using test::TemporaryFolder;

/// What the plain reading of the rules makes of a record.
std::string plainAnswer(std::size_t number, const std::string& record, bool allRules) {
    Board board = boardOf(record);
    board.ResetToGivens();
    int result = 0;
    if (allRules) {
        result = plain::SolveByDeduction(board);
    } else {
        board.CellNum[board.BlankHex].fill("");
        board.BlankHex = NoHexagon;
        std::int32_t counter = 0;
        plain::SolveBasic(board, false, counter);
        result = static_cast<int>(std::count_if(AllCells.begin(), AllCells.end(), [&](CellId cell) {
            return board.CellNum[cell].size() > 1;
        }));
    }
    std::string line = std::to_string(number) + " " + std::to_string(result);
    for (CellId cell : AllCells)
        line += " " + (board.CellNum[cell].empty() ? "-" : board.CellNum[cell]);
    return line;
}

class SolveCommandTest : public testing::Test {
protected:
    /// The records of the sample files, hard ones with progress too, and boards that no rule can
    /// do much with: nothing given, a number given twice in a hexagon.
    static std::vector<std::string> records() {
        std::vector<std::string> records = sampleRecords("easy.txt");
        for (const std::string& record : sampleRecords("hard.txt"))
            records.push_back(record + ":" + std::string(BoardCellCount, '3'));
        records.push_back("E0700" + std::string(BoardCellCount, '0'));
        records.push_back("H0711" + std::string(BoardCellCount, '4'));
        records.push_back("H1211" + std::string(BoardCellCount, 'Q'));
        records.push_back("H1211QR" + std::string(BoardCellCount - 12, '1') + "SSSSSTTTTT");
        return records;
    }

    std::string file(const std::vector<std::string>& records) const {
        std::string text;
        for (const std::string& record : records)
            text += record + "\r\n";
        put(m_folder / "puzzles.txt", text);
        return m_folder / "puzzles.txt";
    }

private:
    TemporaryFolder m_folder;
};

TEST_F(SolveCommandTest, AnswersWhatThePlainReadingAnswers) {
    const std::vector<std::string> all = records();
    const std::string path = file(all);
    for (const bool allRules : {true, false}) {
        const CommandResult result =
            runCommand({"solve", path, "--rules", allRules ? "all" : "basic"});
        EXPECT_EQ(result.status, exit_status::Done);
        EXPECT_EQ(result.err, "");
        const std::vector<std::string> lines = linesOf(result.out);
        ASSERT_EQ(lines.size(), all.size());
        for (std::size_t i = 0; i < all.size(); ++i)
            EXPECT_EQ(lines[i], plainAnswer(i + 1, all[i], allRules));
    }
    EXPECT_EQ(runCommand({"solve", path}).out, runCommand({"solve", path, "--rules", "all"}).out);
}

TEST_F(SolveCommandTest, ANumberPicksOneRecord) {
    const std::vector<std::string> all = records();
    const std::string path = file(all);
    const CommandResult result = runCommand({"solve", path, "--number", "7"});
    EXPECT_EQ(result.out, plainAnswer(7, all[6], true) + "\n");
    EXPECT_EQ(result.status, exit_status::Done);
    const CommandResult none = runCommand({"solve", path, "--number", "1000"});
    EXPECT_EQ(none.status, exit_status::Failed);
    EXPECT_EQ(none.err, "tessaly-cli: " + path + ": line 1000: there is no such record\n");
}

TEST_F(SolveCommandTest, BrokenLinesAreNamedAndPassedOver) {
    const std::string good = sampleRecords("easy.txt").front();
    const std::string path =
        file({"", good.substr(1), good, std::string(5000, 'x'), "EX700" + good.substr(5),
              good.substr(0, 50) + "7" + good.substr(51), good, "", ""});
    const CommandResult result = runCommand({"solve", path});
    EXPECT_EQ(result.status, exit_status::Failed);
    EXPECT_EQ(result.out, plainAnswer(3, good, true) + "\n" + plainAnswer(7, good, true) + "\n");
    const std::string start = "tessaly-cli: " + path + ": line ";
    EXPECT_EQ(linesOf(result.err), (std::vector<std::string>{
                                       start + "1: the record has 0 characters instead of 119",
                                       start + "2: the record has 118 characters instead of 119",
                                       start + "4: the line is longer than any record",
                                       start + "5: character 2 of the header is no digit",
                                       start + "6: character 51 is no cell",
                                   }));
    EXPECT_EQ(runCommand({"solve", path, "--number", "3"}).status, exit_status::Done);
    EXPECT_EQ(runCommand({"solve", path, "--number", "4"}).status, exit_status::Failed);
}

TEST_F(SolveCommandTest, AFileThatCannotBeReadIsNamed) {
    for (const std::string command : {"solve", "check"})
        for (const std::string path : {"/nonexistent/puzzles.txt", "/", "/dev/zero"}) {
            const CommandResult result = runCommand({command, path});
            EXPECT_EQ(result.status, exit_status::Failed);
            EXPECT_TRUE(test::isOneLine(result.err) &&
                        result.err.starts_with("tessaly-cli: " + path + ": "))
                << result.err;
            EXPECT_EQ(result.out, "");
        }
}

} // namespace
} // namespace tessaly
