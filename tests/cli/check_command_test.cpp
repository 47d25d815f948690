#include "support/command_line.h"
#include "support/sample_puzzles.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

using test::CommandResult;
using test::put;
using test::runCommand;

TEST(CheckCommand, ALineForEachFindingASummaryAndAStatus) {
    const test::TemporaryFolder folder;
    const std::string path = folder / "puzzles.txt";
    const std::string easy = sampleRecords("easy.txt")[0] + "\r\n";
    const std::string hard = sampleRecords("hard.txt")[0] + "\r\n";

    put(path, easy + hard + "\r\n\r\n");
    const CommandResult sound = runCommand({"check", path});
    EXPECT_EQ(sound.status, exit_status::Done);
    EXPECT_EQ(sound.out, path + ": 2 puzzles checked, 0 findings\n");

    put(path, easy + "\r\n" + easy.substr(0, 100) + "\r\nX" + hard.substr(1) +
                  std::string(300'000, '1') + "\r\n" + hard);
    const CommandResult broken = runCommand({"check", path});
    EXPECT_EQ(broken.status, exit_status::Failed);
    EXPECT_EQ(broken.err, "");
    EXPECT_EQ(broken.out, path + ": line 2: the record has 0 characters instead of 119\n" + path +
                              ": line 3: the record has 100 characters instead of 119\n" + path +
                              ": line 4: the record begins with neither \"E\" nor \"H\"\n" + path +
                              ": line 4: an easy puzzle has a hint in its header\n" + path +
                              ": line 5: the line is longer than any record\n" + path +
                              ": 6 puzzles checked, 5 findings\n");
}

TEST(CommandLine, AnInterruptedCommandEndsWhereItIsAndSaysSoByItsStatus) {
    const test::TemporaryFolder folder;
    const std::string path = folder / "puzzles.txt";
    const std::string easy = sampleRecords("easy.txt")[0] + "\r\n";
    put(path, easy + easy);
    const test::CommandSetting interrupted{.errIsTerminal = false,
                                           .wasInterrupted = [] { return true; }};
    const CommandResult checked = runCommand({"check", path}, interrupted);
    EXPECT_EQ(checked.status, exit_status::Interrupted);
    EXPECT_EQ(checked.out, path + ": 1 puzzles checked, 0 findings\n");
    const CommandResult solved = runCommand({"solve", path}, interrupted);
    EXPECT_EQ(solved.status, exit_status::Interrupted);
    EXPECT_TRUE(test::isOneLine(solved.out)) << solved.out;
    const CommandResult measured = runCommand({"bench", "--seconds", "0.001"}, interrupted);
    EXPECT_EQ(measured.status, exit_status::Interrupted);
    EXPECT_TRUE(measured.out.starts_with("signature ") && test::isOneLine(measured.out));
}

} // namespace
} // namespace tessaly
