#pragma once

#include "core/base/command_line.h"

#include <filesystem>
#include <iosfwd>
#include <optional>

namespace tessaly {

/// What the game is asked for on its command line. Empty texts were not given.
struct GameOptions {
    /// The puzzle file to open in the place of the remembered one.
    std::filesystem::path file;
    /// The number of the puzzle in the file, from 1; 0 was not given.
    int puzzle = 0;
    std::filesystem::path folder;
    /// Where to write the picture of the window as it first appears, and end.
    std::filesystem::path screenshot;
    /// Whether nothing is kept in the play book, nor read from it.
    bool noBook = false;
    bool developer = false;
};

/// The options, or the exit status when the command line says all that there is to do (--help,
/// --version) or is wrong; what is to be told goes to `out` or `err`.
struct GameCommandLine {
    GameOptions options;
    std::optional<int> exitStatus;
};

/// "tessaly" and what it takes; what is parsed goes into `options`.
CommandSyntax gameSyntax(GameOptions& options);

GameCommandLine parseGameOptions(int argc, const char* const* argv, std::ostream& out,
                                 std::ostream& err);

} // namespace tessaly
