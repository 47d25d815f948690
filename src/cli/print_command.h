#pragma once

#include "cli/command.h"
#include "core/output/booklet.h"

#include <optional>
#include <string>

namespace tessaly {

/// "print": puzzles of a file and their solutions as a PDF file.
class PrintCommand : public Command {
public:
    CLI::App& addTo(CLI::App& program) override;
    int run(const Console& console) override;

private:
    std::string m_file;
    int m_from = 1;
    std::optional<int> m_to;
    int m_perPage = PrintRange::UsualPuzzlesPerPage;
    bool m_noSolutions = false;
    std::string m_paper = "a4";
    std::string m_output;
};

} // namespace tessaly
