#pragma once

#include "core/base/outcome.h"
#include "core/board/board.h"
#include "core/files/file_descriptor.h"
#include "core/solver/chance.h"
#include "core/solver/puzzle_variants.h"

#include <filesystem>
#include <functional>
#include <string>

/// What makes a library of many puzzles out of a few, proves it and mixes it. Each tool reads a
/// puzzle file and writes another, all of it or, when a record is broken, nothing.

namespace tessaly {

/// Puts the hint number of a puzzle at the hint position of its blank hexagon and makes it a given;
/// nothing when there is no blank hexagon or no hint. Developers' tools read a record like this,
/// although the number was found for the neighbour of the blank hexagon that has that position.
void plantHint(Board& board);

/// Told after each record how many were read; false ends the run, with `StoppedProblem`.
using KeepGoing = std::function<bool(int records)>;

inline constexpr const char* StoppedProblem = "stopped; nothing was written";

/// The file that a tool reads and the one that it writes.
struct ToolFiles {
    std::filesystem::path input;
    std::filesystem::path output;
};

/// Writes the eight variants of every puzzle.
Outcome writeVariants(const std::filesystem::path& input, TopBottomHeader header,
                      const ContentSink& sink, const KeepGoing& keepGoing = {});

/// Writes the lines in random order, each only once.
Outcome writeShuffled(const std::filesystem::path& input, Chance& chance, const ContentSink& sink,
                      const KeepGoing& keepGoing = {});

/// Appends the eight variants of every puzzle.
Outcome expandPuzzles(const ToolFiles& files, TopBottomHeader header,
                      const KeepGoing& keepGoing = {});

/// How many puzzles were tried, and how many of them the rules solve.
struct VerifyCount {
    int tried = 0;
    int solved = 0;
};

/// Appends those puzzles that the deduction rules solve, the hint of hard ones in place.
Outcome verifyPuzzles(const ToolFiles& files, VerifyCount& count, const KeepGoing& keepGoing = {});

/// Gives the output the lines in random order, each only once. The files may be the same.
Outcome shufflePuzzles(const ToolFiles& files, Chance& chance, const KeepGoing& keepGoing = {});

} // namespace tessaly
