#pragma once

#include "cli/command.h"

#include <string>

namespace tessaly {

/// "solve": shows how far the rules solve the puzzles of a file.
class SolveCommand : public Command {
public:
    CLI::App& addTo(CLI::App& program) override;
    int run(const Console& console) override;

private:
    std::string m_file;
    /// The only record to solve; 0 is all of them.
    int m_number = 0;
    std::string m_rules = "all";
};

} // namespace tessaly
