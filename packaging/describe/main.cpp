// Writes what an installation says about the two programs' command lines, made from the options
// that --help tells: describe PROGRAM man|bash|zsh|fish DATE APPENDIX

#include "cli/program.h"
#include "command_text.h"
#include "core/session/game_options.h"

#include <fstream>
#include <iostream>
#include <sstream>

namespace {

using namespace tessaly;

constexpr int GamesSection = 6;
constexpr int ProgramsSection = 1;

CommandText gameText() {
    GameOptions options;
    return describe(gameSyntax(options));
}

CommandText cliText() {
    return describe(programSyntax(allCommands(drawingCommands())));
}

std::string contentOf(const char* path) {
    std::ostringstream content;
    content << std::ifstream(path).rdbuf();
    return content.str();
}

} // namespace

// What it throws at build time, the build tells.
int main(int argc, char** argv) { // NOLINT(bugprone-exception-escape)
    if (argc != 5)
        return EXIT_FAILURE;
    const bool isGame = std::string_view(argv[1]) == "tessaly";
    const CommandText program = isGame ? gameText() : cliText();
    const std::string_view format = argv[2];
    if (format == "man")
        std::cout << manualPage(program, isGame ? GamesSection : ProgramsSection, argv[3],
                                contentOf(argv[4]));
    else if (format == "bash")
        std::cout << bashCompletion(program);
    else if (format == "zsh")
        std::cout << zshCompletion(program);
    else if (format == "fish")
        std::cout << fishCompletion(program);
    else
        return EXIT_FAILURE;
    return std::cout.flush() ? EXIT_SUCCESS : EXIT_FAILURE;
}
