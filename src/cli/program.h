// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/console.h"

namespace tessaly {

/// Carries out a whole command line ("tessaly-cli" and its arguments); the exit status.
int runProgram(int argc, const char* const* argv, const Console& console);

} // namespace tessaly
