#pragma once

#include "cli/command.h"

namespace tessaly {

/// "bench": a number that stands for all that the engine does, and how fast it does it.
class BenchCommand : public Command {
public:
    CLI::App& addTo(CLI::App& program) override;
    int run(const Console& console) override;

private:
    /// How long each rate is measured.
    double m_seconds = 1;
};

} // namespace tessaly
