#include "cli/program.h"

#include "support/command_line.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

using test::CommandResult;
using test::isOneLine;
using test::linesOf;
using test::runCommand;

using Arguments = std::vector<std::string>;

TEST(Program, EveryCommandHelpsWithAnExampleThatCanBeRead) {
    const CommandResult all = runCommand({"--help"});
    EXPECT_EQ(all.status, exit_status::Done);
    for (const std::string name : {"create", "solve", "check", "variants", "shuffle", "bench"}) {
        EXPECT_NE(all.out.find("\n  " + name), std::string::npos) << name;
        const CommandResult help = runCommand({name, "--help"});
        EXPECT_EQ(help.status, exit_status::Done);
        EXPECT_NE(help.out.find("Example: tessaly-cli " + name), std::string::npos) << help.out;
        EXPECT_EQ(help.err, "");
    }
    EXPECT_EQ(runCommand({"--version"}).out, "Tessaly 1.0.0\n");
}

TEST(Program, WrongUsageIsOneLineAndStatusTwo) {
    struct Case {
        Arguments arguments;
        std::string named;
    };
    const Arguments create{"create", "--difficulty", "easy", "--count"};
    const auto with = [](Arguments arguments, const Arguments& more) {
        arguments.insert(arguments.end(), more.begin(), more.end());
        return arguments;
    };
    const std::vector<Case> cases{
        {{}, "subcommand"},
        {{"crate"}, "no subcommand crate"},
        {{"create"}, "--difficulty"},
        {{"create", "--difficulty", "easy"}, "--count"},
        {{"create", "--difficulty", "nasty", "--count", "1"}, "nasty"},
        {create, "--count"},
        {with(create, {"0"}), "--count"},
        {with(create, {"-3"}), "--count"},
        {with(create, {"10000001"}), "--count"},
        {with(create, {"99999999999999999999"}), "--count"},
        {with(create, {"2.5"}), "--count"},
        {with(create, {"many"}), "--count"},
        {with(create, {"1", "--jobs", "0"}), "--jobs"},
        {with(create, {"1", "--jobs", "257"}), "--jobs"},
        {with(create, {"1", "--seed", "-1"}), "--seed"},
        {with(create, {"1", "--seed", "18446744073709551616"}), "--seed"},
        {with(create, {"1", "--bogus"}), "--bogus"},
        {{"solve"}, "FILE"},
        {{"solve", "a.txt", "b.txt"}, "b.txt"},
        {{"solve", "a.txt", "--number", "0"}, "--number"},
        {{"solve", "a.txt", "--rules", "some"}, "some"},
        {{"check"}, "FILE"},
        {{"bench", "--seconds", "0"}, "--seconds"},
    };
    for (const Case& wrong : cases) {
        const CommandResult result = runCommand(wrong.arguments);
        EXPECT_EQ(result.status, exit_status::WrongUsage) << wrong.named;
        EXPECT_EQ(result.out, "");
        EXPECT_TRUE(isOneLine(result.err) && result.err.starts_with("tessaly-cli: ") &&
                    result.err.find(wrong.named) != std::string::npos)
            << result.err;
    }
}

TEST(Program, TheBenchShowsTheSignatureOfTheEngineAndRates) {
    const CommandResult result = runCommand({"bench", "--seconds", "0.001"});
    EXPECT_EQ(result.status, exit_status::Done);
    const std::vector<std::string> lines = linesOf(result.out);
    ASSERT_EQ(lines.size(), 6U) << result.out;
    // This number changes with every change of what the engine fills, solves, counts or creates.
    // Where that is meant, put the new one here and into the message of the commit.
    EXPECT_EQ(lines[0], "signature 17019943966383516668");
    for (std::size_t i = 1; i < lines.size(); ++i)
        EXPECT_TRUE(lines[i].ends_with(" a second")) << lines[i];
}

} // namespace
} // namespace tessaly
