#include "core/session/game_options.h"

#include "core/base/product.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <limits>

namespace tessaly {
namespace {

constexpr int WrongUsage = 2;

int tell(const CLI::App& app, const CLI::ParseError& said, std::ostream& out, std::ostream& err) {
    const bool isFault = said.get_exit_code() != 0;
    if (!isFault)
        return app.exit(said, out, err);
    err << "tessaly: " << said.what() << " (try --help)\n";
    return WrongUsage;
}

} // namespace

void describeGame(CLI::App& app, GameOptions& options) {
    app.name("tessaly");
    app.description("A logic puzzle of nineteen hexagons.");
    app.footer("Example: tessaly easy.txt --puzzle 12");
    app.set_version_flag("--version", std::string(Product::Name) + " " + Product::Version);
    app.add_option("FILE", options.file, "The puzzle file to open, instead of the last one")
        ->type_name("");
    app.add_option("--puzzle", options.puzzle, "The number of the puzzle in the file")
        ->check(CLI::Range(1, std::numeric_limits<int>::max()).description(""))
        ->type_name("N");
    app.add_option("--folder", options.folder, "The folder with the program's data files")
        ->type_name("DIR");
    app.add_option("--screenshot", options.screenshot,
                   "Write a picture (PNG) of the window as it first appears, and end")
        ->type_name("OUT.png");
    app.add_flag("--developer", options.developer, "Show the developer's buttons");
}

GameCommandLine parseGameOptions(int argc, const char* const* argv, std::ostream& out,
                                 std::ostream& err) {
    GameCommandLine line;
    CLI::App app;
    describeGame(app, line.options);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& said) {
        line.exitStatus = tell(app, said, out, err);
    }
    return line;
}

} // namespace tessaly
