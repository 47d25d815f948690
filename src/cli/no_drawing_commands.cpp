// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "cli/drawing_commands.h"

namespace tessaly {

Commands drawingCommands() {
    return {};
}

} // namespace tessaly
