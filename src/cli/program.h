#pragma once

#include "cli/commands.h"

#include <vector>

namespace tessaly {

/// Everything that the command line can do: what each build can, and `more`, in the order in which
/// it is told.
std::vector<Subcommand> allCommands(std::vector<Subcommand> more = {});

/// "tessaly-cli" with these subcommands.
CommandSyntax programSyntax(const std::vector<Subcommand>& commands);

/// Carries out a whole command line ("tessaly-cli" and its arguments); the exit status.
int runProgram(int argc, const char* const* argv, const Console& console,
               const std::vector<Subcommand>& commands = allCommands());

} // namespace tessaly
