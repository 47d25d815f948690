#include "core/solver/library_tools.h"

#include "core/solver/deduction.h"
#include "support/plain_rules.h"
#include "support/sample_puzzles.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>

namespace tessaly {
namespace {

using test::contentOf;
using test::put;

std::string textOf(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines)
        text += line + "\r\n";
    return text;
}

class LibraryToolsTest : public testing::Test {
protected:
    using ToolRun = std::function<Outcome(const KeepGoing&)>;

    Outcome expand(const KeepGoing& goOn = {}) {
        return expandPuzzles(files, TopBottomHeader::Follows, goOn);
    }

    test::TemporaryFolder folder;
    ToolFiles files{folder / "in.txt", folder / "out.txt"};
    std::vector<std::string> puzzles = sampleRecords("hard.txt");
    Chance chance{5};
    VerifyCount count;
    const std::vector<ToolRun> allTools{
        [this](const KeepGoing& goOn) { return expand(goOn); },
        [this](const KeepGoing& goOn) { return verifyPuzzles(files, count, goOn); },
        [this](const KeepGoing& goOn) { return shufflePuzzles(files, chance, goOn); },
    };
};

TEST_F(LibraryToolsTest, ExpandingWritesTheVariantsOfEveryPuzzleInOrder) {
    put(files.input, "\xEF\xBB\xBF" + puzzles[0] + "\n" + puzzles[1] + "\r\n\r\n  ");
    std::string expected;
    for (const std::string& puzzle : {puzzles[0], puzzles[1]})
        for (const std::string& variant : variantsOf(puzzle, TopBottomHeader::Follows))
            expected += variant + "\r\n";
    put(files.output, puzzles[2] + "\r\n\r\n  \n");
    ASSERT_TRUE(expand().ok());
    EXPECT_EQ(contentOf(files.output), puzzles[2] + "\r\n" + expected);
}

TEST_F(LibraryToolsTest, VerifyingKeepsWhatDeductionSolves) {
    const std::string easy = sampleRecords("easy.txt").front();
    std::vector<std::string> solved{puzzles[3], easy};
    std::vector<std::string> all{easy, recordOfTheRim(easy), recordOfTheRim(puzzles[0]),
                                 givenWhere(easy, [](CellId) { return false; })};
    for (const std::string& record : puzzles) {
        all.push_back(record);
        Board board = boardOf(record);
        plantHint(board);
        plain::SolveByDeduction(board);
        if (plain::CheckHexagons(board, board.BlankHex) == SettledAndSound)
            solved.push_back(record);
    }
    put(files.input, textOf(all));
    put(files.output, puzzles[3]);
    ASSERT_TRUE(verifyPuzzles(files, count).ok());
    EXPECT_EQ(count.tried, static_cast<int>(all.size()));
    EXPECT_EQ(count.solved, static_cast<int>(solved.size()) - 1);
    EXPECT_EQ(contentOf(files.output), textOf(solved));
}

TEST_F(LibraryToolsTest, ARunThatFailsOrIsStoppedIsSaidAndWritesNothing) {
    const std::string start = textOf({puzzles[0], puzzles[1]});
    const std::string thirdLine = files.input.string() + ": line 3: ";
    const KeepGoing untilThree = [](int records) { return records < 3; };
    for (const auto& [input, problem] : std::map<std::string, std::string>{
             {start + "nonsense\r\n" + puzzles[2], thirdLine + "the record has 8 characters"},
             {start + "\r\n" + puzzles[2], thirdLine + "the record has 0 characters"},
             {start + std::string(9000, '1'), thirdLine + "the line is longer"},
             {textOf(puzzles), StoppedProblem}})
        for (const ToolRun& tool : allTools)
            for (const std::string before : {"old", ""}) {
                put(files.input, input);
                put(files.output, before);
                EXPECT_TRUE(tool(untilThree).problem.starts_with(problem)) << problem;
                EXPECT_EQ(contentOf(files.output), before);
                EXPECT_EQ(folder.names(), (std::set<std::string>{"in.txt", "out.txt"}));
            }
    for (auto* missing : {&files.input, &files.output}) {
        *missing += "/none.txt";
        for (const ToolRun& tool : allTools)
            EXPECT_TRUE(tool({}).problem.starts_with(missing->string()));
    }
}

} // namespace
} // namespace tessaly
