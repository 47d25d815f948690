#include "cli/drawing_commands.h"

namespace tessaly {

Commands drawingCommands() {
    return {};
}

} // namespace tessaly
