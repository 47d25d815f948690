#include "core/session/game_options.h"

namespace tessaly {

CommandSyntax gameSyntax(GameOptions& options) {
    return {
        .name = "tessaly",
        .description = "A logic puzzle of nineteen hexagons.",
        .footer = "Example: tessaly easy.txt --puzzle 12",
        .options = {
            positional("FILE", "The puzzle file to open, instead of the last one", options.file),
            number("--puzzle", "N", "The number of the puzzle in the file", options.puzzle, 1),
            text("--folder", "DIR", "The folder with the program's data files", options.folder),
            text("--screenshot", "OUT.png",
                 "Write a picture (PNG) of the window as it first appears, and end",
                 options.screenshot),
            flag("--no-book", "Keep nothing of what is played, and show nothing that was kept",
                 options.noBook),
            flag("--developer", "Show the developer's buttons", options.developer)}};
}

GameCommandLine parseGameOptions(int argc, const char* const* argv, std::ostream& out,
                                 std::ostream& err) {
    GameCommandLine line;
    line.exitStatus = parseCommandLine(gameSyntax(line.options), argc, argv, out, err).exitStatus;
    return line;
}

} // namespace tessaly
