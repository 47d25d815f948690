#include "cli/drawing_commands.h"

#include "cli/print_command.h"
#include "cli/render_command.h"

namespace tessaly {

Commands drawingCommands() {
    Commands commands;
    commands.push_back(std::make_unique<RenderCommand>());
    commands.push_back(std::make_unique<PrintCommand>());
    return commands;
}

} // namespace tessaly
