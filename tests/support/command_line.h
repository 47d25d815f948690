#pragma once

#include "cli/program.h"
#include "support/temporary_folder.h"

#include <functional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace tessaly {

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

/// Command lines beside files of their own.
struct CommandLineTest : testing::Test {
    /// Runs "tessaly-cli" in this process; `line` is parted at its blanks.
    CommandResult run(const std::string& line, const CommandSetting& setting = {}) const {
        std::istringstream stream("tessaly-cli " + line);
        const std::vector<std::string> words(std::istream_iterator<std::string>(stream), {});
        std::vector<const char*> argv;
        argv.reserve(words.size());
        for (const std::string& word : words)
            argv.push_back(word.c_str());
        std::ostringstream out, err;
        const int status =
            runProgram(static_cast<int>(argv.size()), argv.data(),
                       {out, err, setting.errIsTerminal, setting.wasInterrupted},
                       allCommands(otherCommands ? otherCommands() : std::vector<Subcommand>()));
        return {status, out.str(), err.str()};
    }
    /// That a command line fails, naming something on its one line.
    void expectRefused(const std::string& line, int status, const std::string& named) const {
        const CommandResult result = run(line);
        EXPECT_EQ(result.status, status) << line;
        EXPECT_EQ(result.out, "") << line;
        EXPECT_EQ(linesOf(result.err).size(), 1U) << result.err;
        EXPECT_TRUE(result.err.starts_with("tessaly-cli: ") &&
                    result.err.find(named) != std::string::npos)
            << line << " says " << result.err;
    }

    /// What makes the subcommands besides those that every build has.
    std::function<std::vector<Subcommand>()> otherCommands;
    TemporaryFolder folder;
    const std::string file = folder / "puzzles.txt";
    const std::string other = folder / "other.txt";
};

} // namespace tessaly
