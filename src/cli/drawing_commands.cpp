#include "cli/commands.h"

namespace tessaly {

std::vector<Subcommand> drawingCommands() {
    return {renderCommand(), printCommand()};
}

} // namespace tessaly
