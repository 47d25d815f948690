#pragma once

#include "cli/console.h"
#include "core/base/command_line.h"
#include "core/output/number_list.h"
#include "core/solver/rating.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tessaly {

/// A subcommand: what it takes, and what it does with that; the answer is the exit status.
struct Subcommand {
    CommandSyntax syntax;
    std::function<int(const Console&)> run;
};

/// The positional "FILE", where "-" stands for standard input.
Option puzzleFile(std::filesystem::path& target);
/// The same for one or more of them.
Option puzzleFiles(std::vector<std::filesystem::path>& targets);
/// The option "--output", where "-" stands for standard output as its absence does: an empty path.
Option outputFile(std::string description, std::filesystem::path& target);

/// An option that takes a list of puzzles.
Option numberList(const std::string& names, std::string value, std::string description,
                  std::optional<NumberList>& target);

/// The option "--stars", "3" or "4-5".
Option starsOption(std::string description, std::optional<StarRange>& target);

/// Makes puzzles, to standard output or appended to a file.
Subcommand createCommand();
/// Shows how far the rules solve the puzzles of a file.
Subcommand solveCommand();
/// Tells why each number of one puzzle must be where it is.
Subcommand explainCommand();
/// Tells what is wrong with the puzzles of a file.
Subcommand checkCommand();
/// Shows how hard the puzzles of a file are.
Subcommand rateCommand();
/// Multiplies the puzzles of a file by mirroring and turning them.
Subcommand variantsCommand();
/// Puts the puzzles of a file into random order, each once.
Subcommand shuffleCommand();
/// A number that stands for all that the engine does, and how fast it does it.
Subcommand benchCommand();
/// A picture of one puzzle.
Subcommand renderCommand();
/// Puzzles of a file and their solutions as a PDF file.
Subcommand printCommand();

/// Those of them that draw; none in a build without Qt.
std::vector<Subcommand> drawingCommands();

} // namespace tessaly
