// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cli/program.h"

namespace tessaly {

/// The subcommands that draw; none in a build without Qt.
Commands drawingCommands();

} // namespace tessaly
