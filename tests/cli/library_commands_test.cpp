#include "support/command_line.h"
#include "support/sample_puzzles.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace tessaly {
namespace {

using test::CommandResult;
using test::contentOf;
using test::isOneLine;
using test::linesOf;
using test::put;
using test::runCommand;

class LibraryToolCommand : public testing::TestWithParam<const char*> {
protected:
    CommandResult run(const test::CommandSetting& setting = {}) {
        return runCommand({GetParam(), input, "--output", output}, setting);
    }

    test::TemporaryFolder folder;
    std::string input = folder / "in.txt";
    std::string output = folder / "out.txt";
    std::string record = sampleRecords("easy.txt").front();
};

TEST_P(LibraryToolCommand, WhatIsWrongIsOneLineAndTheOutputStaysAsItWas) {
    put(output, "old");
    const auto expectFailure = [this](const std::string& named) {
        const CommandResult result = run();
        EXPECT_EQ(result.status, exit_status::Failed);
        EXPECT_TRUE(isOneLine(result.err)) << result.err;
        EXPECT_EQ(result.err.find("tessaly-cli: " + named), 0u) << result.err;
        EXPECT_EQ(result.out, "");
    };
    expectFailure(input + ": ");
    put(input, record + "\r\n" + record.substr(1) + "\r\n" + record);
    expectFailure(input + ": line 2: ");
    EXPECT_EQ(contentOf(output), "old");
    put(input, record);
    output = folder / "nowhere/out.txt";
    expectFailure(output + ": ");
    EXPECT_EQ(runCommand({GetParam(), input}).status, exit_status::WrongUsage);
    EXPECT_EQ(folder.names(), (std::set<std::string>{"in.txt", "out.txt"}));
}

TEST_P(LibraryToolCommand, AnInterruptedRunWritesNothing) {
    put(input, record);
    const CommandResult result = run({false, [] { return true; }});
    EXPECT_EQ(result.status, exit_status::Interrupted);
    EXPECT_EQ(folder.names(), std::set<std::string>{"in.txt"});
}

TEST_P(LibraryToolCommand, AnEmptyFileGivesAnEmptyFile) {
    put(input, "");
    EXPECT_EQ(run().status, exit_status::Done);
    EXPECT_EQ(folder.names(), (std::set<std::string>{"in.txt", "out.txt"}));
    EXPECT_EQ(contentOf(output), "");
}

INSTANTIATE_TEST_SUITE_P(Tools, LibraryToolCommand, testing::Values("variants", "shuffle"));

TEST(LibraryCommandLine, EveryVariantOfNewPuzzlesPassesTheCheck) {
    const test::TemporaryFolder folder;
    const std::string made = folder / "made.txt";
    const std::string more = folder / "more.txt";
    const std::string mixed = folder / "mixed.txt";
    ASSERT_EQ(runCommand({"create", "--difficulty", "random", "--count", "40", "--seed", "7",
                          "--output", made})
                  .status,
              exit_status::Done);
    const CommandResult variants = runCommand({"variants", made, "--output", more});
    EXPECT_EQ(variants.status, exit_status::Done);
    EXPECT_EQ(variants.err + variants.out, "");
    const CommandResult check = runCommand({"check", more});
    EXPECT_EQ(check.status, exit_status::Done);
    EXPECT_EQ(check.out, more + ": 320 puzzles checked, 0 findings\n");

    put(made, contentOf(more) + contentOf(made));
    EXPECT_EQ(runCommand({"shuffle", made, "--output", mixed, "--seed", "3"}).status,
              exit_status::Done);
    std::vector<std::string> lines = linesOf(contentOf(mixed), "\r\n");
    std::vector<std::string> expected = linesOf(contentOf(more), "\r\n");
    EXPECT_NE(lines, expected);
    std::sort(lines.begin(), lines.end());
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(lines, expected);
    const std::string before = contentOf(mixed);
    ASSERT_EQ(runCommand({"shuffle", made, "--output", mixed, "--seed", "3"}).status,
              exit_status::Done);
    EXPECT_EQ(contentOf(mixed), before);
}

} // namespace
} // namespace tessaly
