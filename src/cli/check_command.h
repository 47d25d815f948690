#pragma once

#include "cli/command.h"

#include <string>

namespace tessaly {

/// "check": tells what is wrong with the puzzles of a file.
class CheckCommand : public Command {
public:
    CLI::App& addTo(CLI::App& program) override;
    int run(const Console& console) override;

private:
    std::string m_file;
};

} // namespace tessaly
