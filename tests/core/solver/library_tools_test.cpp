#include "core/solver/library_tools.h"

#include "core/solver/deduction.h"
#include "support/full_disk.h"
#include "support/sample_puzzles.h"
#include "support/sample_records.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tessaly {
namespace {

using test::contentOf;
using test::put;

std::vector<std::string> linesOf(const std::filesystem::path& path) {
    std::vector<std::string> lines;
    std::istringstream content(contentOf(path));
    for (std::string line; std::getline(content, line);) {
        EXPECT_TRUE(line.ends_with('\r')) << line;
        lines.push_back(line.substr(0, line.size() - 1));
    }
    return lines;
}

std::string textOf(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines)
        text += line + "\r\n";
    return text;
}

class LibraryToolsTest : public testing::Test {
protected:
    using ToolRun = std::function<Outcome(const KeepGoing&)>;

    std::vector<ToolRun> allTools() {
        return {
            [this](const KeepGoing& keepGoing) {
                return expandPuzzles(files, OutputMode::Replace, TopBottomHeader::Follows,
                                     keepGoing);
            },
            [this](const KeepGoing& keepGoing) {
                return expandPuzzles(files, OutputMode::Append, TopBottomHeader::Subtracts,
                                     keepGoing);
            },
            [this](const KeepGoing& keepGoing) { return verifyPuzzles(files, count, keepGoing); },
            [this](const KeepGoing& keepGoing) { return shufflePuzzles(files, chance, keepGoing); },
        };
    }

    test::TemporaryFolder folder;
    ToolFiles files{folder / "in.txt", folder / "out.txt"};
    std::vector<std::string> puzzles = sampleRecords("hard.txt");
    Chance chance{5};
    VerifyCount count;
};

TEST_F(LibraryToolsTest, ExpandingWritesTheVariantsOfEveryPuzzleInOrder) {
    put(files.input, "\xEF\xBB\xBF" + puzzles[0] + "\n" + puzzles[1] + "\r\n\r\n  ");
    ASSERT_TRUE(expandPuzzles(files, OutputMode::Replace, TopBottomHeader::Follows).ok());
    std::vector<std::string> expected;
    for (const std::string& puzzle : {puzzles[0], puzzles[1]})
        for (const std::string& variant : variantsOf(puzzle, TopBottomHeader::Follows))
            expected.push_back(variant);
    EXPECT_EQ(linesOf(files.output), expected);
    ASSERT_TRUE(expandPuzzles(files, OutputMode::Replace, TopBottomHeader::Follows).ok());
    EXPECT_EQ(linesOf(files.output).size(), 16u);
}

TEST_F(LibraryToolsTest, AppendingEndsTheLastLineAndTakesThePlaceOfBlankOnes) {
    put(files.input, puzzles[0]);
    for (const char* tail : {"", "\r", "\r\n", "\r\n\r\n  \n"}) {
        put(files.output, puzzles[1] + tail);
        ASSERT_TRUE(expandPuzzles(files, OutputMode::Append, TopBottomHeader::Follows).ok());
        const std::vector<std::string> lines = linesOf(files.output);
        ASSERT_EQ(lines.size(), 9u);
        EXPECT_EQ(lines[0], puzzles[1]);
        EXPECT_EQ(lines[1], puzzles[0]);
    }
}

TEST_F(LibraryToolsTest, VerifyingKeepsWhatDeductionSolves) {
    const std::vector<std::string> easy = sampleRecords("easy.txt");
    std::vector<std::string> hopeless{easy[0], puzzles[0]};
    for (std::string& record : hopeless)
        for (std::size_t i = 5; i < record.size(); ++i)
            record[i] = record[i] < 'Q' ? record[i] : static_cast<char>(record[i] - 32);
    std::vector<std::string> all{easy[0], hopeless[0], hopeless[1]};
    all.insert(all.end(), puzzles.begin(), puzzles.end());
    std::vector<std::string> solved;
    for (const std::string& record : all) {
        Board board = boardOf(record);
        plantHint(board);
        SolveByDeduction(board);
        if (CheckHexagons(board, board.BlankHex) == SettledAndSound)
            solved.push_back(record);
    }
    put(files.input, textOf(all));
    put(files.output, puzzles[3]);
    ASSERT_TRUE(verifyPuzzles(files, count).ok());
    EXPECT_EQ(count.tried, static_cast<int>(all.size()));
    EXPECT_EQ(count.solved, static_cast<int>(solved.size()));
    EXPECT_EQ(solved.front(), easy[0]);
    EXPECT_EQ(std::count(solved.begin(), solved.end(), hopeless[0]), 0);
    solved.insert(solved.begin(), puzzles[3]);
    EXPECT_EQ(linesOf(files.output), solved);
}

TEST_F(LibraryToolsTest, ShufflingKeepsEveryLineOnceInAnOrderOfTheSeed) {
    std::vector<std::string> doubled = puzzles;
    doubled.insert(doubled.end(), puzzles.begin(), puzzles.end());
    doubled[2] += ":" + std::string(114, ' ');
    put(files.input, textOf(doubled));
    const auto shuffledWith = [&](std::uint64_t seed) {
        Chance seeded(seed);
        EXPECT_TRUE(shufflePuzzles(files, seeded).ok());
        return linesOf(files.output);
    };
    std::vector<std::string> shuffled = shuffledWith(1);
    EXPECT_EQ(shuffledWith(1), shuffled);
    EXPECT_NE(shuffledWith(2), shuffled);
    std::vector<std::string> expected = puzzles;
    expected.push_back(doubled[2]);
    std::sort(expected.begin(), expected.end());
    std::sort(shuffled.begin(), shuffled.end());
    EXPECT_EQ(shuffled, expected);

    files.output = files.input;
    EXPECT_EQ(shuffledWith(1).size(), expected.size()) << "onto itself";
}

TEST_F(LibraryToolsTest, ABrokenRecordIsNamedAndNothingIsWritten) {
    for (const auto& [broken, problem] :
         std::vector<std::pair<std::string, std::string>>{{"nonsense", "has 8 characters"},
                                                          {"", "has 0 characters"},
                                                          {std::string(9000, '1'), "is longer"}}) {
        put(files.input, puzzles[0] + "\r\n" + puzzles[1] + "\r\n" + broken + "\r\n" + puzzles[2]);
        for (const ToolRun& tool : allTools())
            for (const char* before : {"old", static_cast<const char*>(nullptr)}) {
                std::filesystem::remove(files.output);
                if (before != nullptr)
                    put(files.output, before);
                const Outcome outcome = tool({});
                EXPECT_EQ(outcome.problem.find(files.input.native() + ": line 3: "), 0u)
                    << outcome.problem;
                EXPECT_NE(outcome.problem.find(problem), std::string::npos) << outcome.problem;
                EXPECT_EQ(contentOf(files.output), before != nullptr ? before : "");
                EXPECT_EQ(folder.names().size(), before != nullptr ? 2u : 1u) << "left behind";
            }
    }
}

TEST_F(LibraryToolsTest, AMissingInputOrAnOutputThatIsNoFileIsNamed) {
    for (const ToolRun& tool : allTools()) {
        EXPECT_NE(tool({}).problem.find(files.input), std::string::npos);
        EXPECT_TRUE(folder.names().empty());
    }
    put(files.input, textOf(puzzles));
    files.output = folder / "nowhere/out.txt";
    for (const ToolRun& tool : allTools())
        EXPECT_NE(tool({}).problem.find(files.output), std::string::npos);
}

TEST_F(LibraryToolsTest, ADiskThatFillsInTheMiddleOfAnOutputLeavesTheOldOne) {
    // More than is written at a time.
    put(files.input, test::recordFile(2500));
    put(files.output, "old");
    const std::vector<ToolRun> tools = allTools();
    for (const std::size_t writing : {0, 1, 3}) {
        const test::FullDisk disk(200'000);
        EXPECT_EQ(tools[writing]({}).problem,
                  files.output.native() + ": cannot be written: File too large");
        EXPECT_EQ(contentOf(files.output), "old");
        EXPECT_EQ(folder.names().size(), 2u);
    }
    EXPECT_EQ(tools[3]({}).problem, "");
    std::vector<std::string> shuffled = linesOf(files.output);
    std::vector<std::string> lines = linesOf(files.input);
    std::sort(shuffled.begin(), shuffled.end());
    std::sort(lines.begin(), lines.end());
    EXPECT_TRUE(shuffled == lines);
}

TEST_F(LibraryToolsTest, ARunThatIsStoppedWritesNothing) {
    put(files.input, textOf(puzzles));
    put(files.output, "old");
    for (const ToolRun& tool : allTools()) {
        int calls = 0;
        const Outcome outcome = tool([&](int records) {
            EXPECT_EQ(records, ++calls);
            return records < 3;
        });
        EXPECT_EQ(outcome.problem, StoppedProblem);
        EXPECT_EQ(calls, 3);
        EXPECT_EQ(contentOf(files.output), "old");
    }
}

} // namespace
} // namespace tessaly
