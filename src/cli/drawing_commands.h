#pragma once

#include "cli/program.h"

namespace tessaly {

/// The subcommands that draw; none in a build without Qt.
Commands drawingCommands();

} // namespace tessaly
