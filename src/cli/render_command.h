#pragma once

#include "cli/command.h"

#include <string>

namespace tessaly {

/// "render": a picture of one puzzle.
class RenderCommand : public Command {
public:
    CLI::App& addTo(CLI::App& program) override;
    int run(const Console& console) override;

private:
    std::string m_file;
    int m_number = 1;
    std::string m_output;
    bool m_solution = false;
    double m_scale = 1;
    std::string m_scheme;
};

} // namespace tessaly
