#pragma once

#include "cli/program.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <functional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace tessaly::test {

/// What a command line did.
struct CommandResult {
    int status = 0;
    std::string out;
    std::string err;
};

/// How a command line is run.
struct CommandSetting {
    bool errIsTerminal = false;
    std::function<bool()> wasInterrupted = {};
};

/// Runs "tessaly-cli" with these arguments in this process. `more` are the subcommands besides
/// those that every build has.
inline CommandResult runCommand(const std::vector<std::string>& arguments,
                                const CommandSetting& setting = {},
                                std::vector<Subcommand> more = {}) {
    std::vector<const char*> argv{"tessaly-cli"};
    for (const std::string& argument : arguments)
        argv.push_back(argument.c_str());
    std::ostringstream out;
    std::ostringstream err;
    const int status = runProgram(static_cast<int>(argv.size()), argv.data(),
                                  {out, err, setting.errIsTerminal, setting.wasInterrupted},
                                  allCommands(std::move(more)));
    return {status, out.str(), err.str()};
}

/// Command lines beside files of their own.
class CommandLineTest : public testing::Test {
protected:
    /// `line` is parted at its blanks.
    static CommandResult run(const std::string& line, const CommandSetting& setting = {}) {
        std::istringstream words(line);
        return runCommand({std::istream_iterator<std::string>(words), {}}, setting);
    }
    /// That a command line fails, naming something on its one line.
    static void expectRefused(const std::string& line, int status, const std::string& named) {
        const CommandResult result = run(line);
        EXPECT_EQ(result.status, status) << line;
        EXPECT_EQ(result.out, "") << line;
        EXPECT_EQ(linesOf(result.err).size(), 1U) << result.err;
        EXPECT_TRUE(result.err.starts_with("tessaly-cli: ") &&
                    result.err.find(named) != std::string::npos)
            << line << " says " << result.err;
    }

    TemporaryFolder folder;
    const std::string file = folder / "puzzles.txt";
    const std::string other = folder / "other.txt";
};

} // namespace tessaly::test
