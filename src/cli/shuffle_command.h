#pragma once

#include "cli/command.h"
#include "core/solver/library_tools.h"

#include <cstdint>
#include <optional>

namespace tessaly {

/// "shuffle": puts the puzzles of a file into random order, each once.
class ShuffleCommand : public Command {
public:
    CLI::App& addTo(CLI::App& program) override;
    int run(const Console& console) override;

private:
    ToolFiles m_files;
    std::optional<std::uint64_t> m_seed;
};

} // namespace tessaly
