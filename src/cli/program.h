#pragma once

#include "cli/command.h"
#include "cli/console.h"

#include <memory>
#include <vector>

namespace tessaly {

using Commands = std::vector<std::unique_ptr<Command>>;

/// The subcommands that every build has, in the order in which they are told.
Commands allCommands();

/// Says what the program is, its subcommands aside; `program` is fresh.
void describeProgram(CLI::App& program);

/// Carries out a whole command line ("tessaly-cli" and its arguments); the exit status. `more` are
/// the subcommands besides `allCommands`.
int runProgram(int argc, const char* const* argv, const Console& console, Commands more = {});

} // namespace tessaly
