#pragma once

#include "cli/command.h"
#include "cli/console.h"
#include "core/solver/library_tools.h"

#include <cstdint>
#include <optional>

namespace CLI {
class App;
}

namespace tessaly {

/// Adds what every subcommand takes that makes one puzzle file out of another.
void addToolFiles(CLI::App& command, ToolFiles& files);

/// Runs a tool with a progress bar; the exit status.
int runLibraryTool(const Console& console, const ToolFiles& files,
                   const std::function<Outcome(const KeepGoing&)>& tool);

/// "shuffle": puts the puzzles of a file into random order, each once.
class ShuffleCommand : public Command {
public:
    CLI::App& addTo(CLI::App& program) override;
    int run(const Console& console) override;

private:
    ToolFiles m_files;
    std::optional<std::uint64_t> m_seed;
};

/// "variants": multiplies the puzzles of a file by mirroring and turning them.
class VariantsCommand : public Command {
public:
    CLI::App& addTo(CLI::App& program) override;
    int run(const Console& console) override;

private:
    ToolFiles m_files;
};

} // namespace tessaly
