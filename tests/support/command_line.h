#pragma once

#include "cli/program.h"

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
    std::function<bool()> wasInterrupted;
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

/// The lines of a text without their ends; what follows the last line end is a line too, unless it
/// is empty.
inline std::vector<std::string> linesOf(const std::string& text, const std::string& end = "\n") {
    std::vector<std::string> lines;
    std::size_t start = 0;
    for (std::size_t at = 0; (at = text.find(end, start)) != std::string::npos;
         start = at + end.size())
        lines.push_back(text.substr(start, at - start));
    if (start < text.size())
        lines.push_back(text.substr(start));
    return lines;
}

/// Whether a text is one whole line.
inline bool isOneLine(const std::string& text) {
    return text.size() > 1 && text.find('\n') == text.size() - 1;
}

} // namespace tessaly::test
