#include "core/board/puzzle_record.h"
#include "support/command_line.h"
#include "support/file_calls.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <streambuf>

namespace tessaly {
namespace {

using test::CommandResult;
using test::contentOf;
using test::isOneLine;
using test::linesOf;
using test::put;
using test::runCommand;
using test::TemporaryFolder;

using Lines = std::vector<std::string>;

CommandResult create(int count, const Lines& more = {}, const test::CommandSetting& setting = {}) {
    Lines arguments{"create", "--difficulty", "random", "--count", std::to_string(count)};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return runCommand(arguments, setting);
}

/// How many whole, different records a text consists of; -1 when there is anything else in it.
int differentRecords(const std::string& text) {
    const Lines lines = linesOf(text, "\r\n");
    const bool areWhole = text.empty() || text.ends_with("\r\n");
    const bool areRecords = std::all_of(lines.begin(), lines.end(), [](const std::string& line) {
        Board board;
        return line.size() == RecordLength && readRecord(line, board).ok();
    });
    const std::set<std::string> different(lines.begin(), lines.end());
    return areWhole && areRecords && different.size() == lines.size()
               ? static_cast<int>(lines.size())
               : -1;
}

TEST(CreateCommand, ASeedGivesTheSameBytesWhateverTheNumberOfJobs) {
    const std::string one = create(150, {"--seed", "5", "--jobs", "1"}).out;
    EXPECT_EQ(differentRecords(one), 150);
    EXPECT_EQ(create(150, {"--seed", "5", "--jobs", "2"}).out, one);
    EXPECT_EQ(create(150, {"--seed", "5", "--jobs", "7"}).out, one);
    EXPECT_EQ(create(150, {"--seed", "5"}).out, one);
    EXPECT_EQ(create(40, {"--seed", "5"}).out, one.substr(0, one.size() * 40 / 150));
    EXPECT_NE(create(40, {"--seed", "6"}).out, create(40, {"--seed", "5"}).out);
    EXPECT_NE(create(1).out, create(1).out) << "without a seed, chance decides";
}

TEST(CreateCommand, TheDifficultyIsTheOneAskedFor) {
    for (const DifficultyEntry& entry : Difficulties) {
        const std::string name = entry.letter == 'E' ? "easy" : "hard";
        const CommandResult made = runCommand({"create", "--difficulty", name, "--count", "20"});
        for (const std::string& record : linesOf(made.out, "\r\n"))
            EXPECT_EQ(record.front(), entry.letter);
    }
    const std::string both = create(60, {"--seed", "1"}).out;
    EXPECT_GT(std::count(both.begin(), both.end(), 'E'), 10);
    EXPECT_GT(std::count(both.begin(), both.end(), 'H'), 10);
}

TEST(CreateCommand, AppendsToAFileWithoutRepeatingWhatItHolds) {
    const TemporaryFolder folder;
    const std::filesystem::path path = folder / "mine.txt";
    const std::string records = create(30, {"--seed", "1"}).out;
    put(path, records.substr(0, records.size() - 2));
    const CommandResult again = create(20, {"--seed", "1", "--output", path});
    EXPECT_EQ(again.status, exit_status::Done);
    EXPECT_EQ(again.out + again.err, "");
    EXPECT_EQ(contentOf(path), create(50, {"--seed", "1"}).out);
    EXPECT_EQ(differentRecords(contentOf(path)), 50);

    put(path, "no record at all\n" + std::string(100'000, 'x'));
    EXPECT_EQ(create(1, {"--output", path}).status, exit_status::Done);
    EXPECT_TRUE(contentOf(path).starts_with("no record at all\nxxx"));
    EXPECT_EQ(differentRecords(contentOf(path).substr(100'000 + 19)), 1);
}

TEST(CreateCommand, AnUnwritableOutputIsNamedOnOneLine) {
    const TemporaryFolder folder;
    for (const std::string& path :
         {std::string(folder / "none/mine.txt"), std::string(folder.path()),
          std::string("/dev/full"), folder.path().string() + "/"}) {
        const CommandResult result = create(1, {"--output", path});
        EXPECT_EQ(result.status, exit_status::Failed);
        EXPECT_TRUE(isOneLine(result.err) && result.err.starts_with("tessaly-cli: " + path))
            << result.err;
    }
    EXPECT_TRUE(folder.names().empty());
    const std::string path = folder / "mine.txt";
    put(path, "kept\n");
    const test::FileCalls calls(test::failing("pread", EIO));
    const CommandResult unread = create(1, {"--output", path});
    EXPECT_EQ(unread.status, exit_status::Failed) << "what it holds is not to be repeated";
    EXPECT_EQ(unread.err, "tessaly-cli: " + path + ": cannot be read: Input/output error\n");
    EXPECT_EQ(contentOf(path), "kept\n");
}

TEST(CreateCommand, AStopLeavesWholeRecords) {
    const TemporaryFolder folder;
    const std::string path = folder / "mine.txt";
    for (const Lines& more : {Lines{}, Lines{"--jobs", "3"}, Lines{"--output", path}}) {
        int asked = 0;
        const CommandResult result =
            create(1'000'000, more, {false, [&asked] { return ++asked == 70; }});
        EXPECT_EQ(result.status, exit_status::Interrupted);
        EXPECT_EQ(result.err, "tessaly-cli: interrupted after 70 puzzles\n");
        EXPECT_EQ(differentRecords(more.size() == 2 && more[0] == "--output" ? contentOf(path)
                                                                             : result.out),
                  70);
    }
}

TEST(CreateCommand, ATerminalGetsAProgressBarThatIsGoneInTheEnd) {
    const CommandResult result = create(30, {"--seed", "5"}, {true, {}});
    EXPECT_NE(result.err.find("] 1 of 30, "), std::string::npos) << result.err;
    EXPECT_TRUE(result.err.ends_with("\r\x1B[K"));
    EXPECT_EQ(result.err.find('\n'), std::string::npos);
    EXPECT_EQ(result.out, create(30, {"--seed", "5"}).out);
}

} // namespace
} // namespace tessaly
