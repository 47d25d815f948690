// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/command.h"
#include "cli/console.h"

#include <memory>
#include <vector>

namespace tessaly {

/// All subcommands, in the order in which they are told.
std::vector<std::unique_ptr<Command>> allCommands();

/// Says what the program is, its subcommands aside; `program` is fresh.
void describeProgram(CLI::App& program);

/// Carries out a whole command line ("tessaly-cli" and its arguments); the exit status.
int runProgram(int argc, const char* const* argv, const Console& console);

} // namespace tessaly
