#pragma once

#include "cli/console.h"
#include "core/solver/library_tools.h"

namespace CLI {
class App;
}

namespace tessaly {

/// Adds what every subcommand takes that makes one puzzle file out of another.
void addToolFiles(CLI::App& command, ToolFiles& files);

/// Runs a tool with a progress bar; the exit status.
int runLibraryTool(const Console& console, const ToolFiles& files,
                   const std::function<Outcome(const KeepGoing&)>& tool);

} // namespace tessaly
