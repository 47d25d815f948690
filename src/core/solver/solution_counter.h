#pragma once

#include "core/board/board.h"

#include <cstdint>

namespace tessaly {

/// How far a count goes.
struct CountLimits {
    /// As soon as so many solutions are found, the count ends.
    int solutions = 2;
    /// After so many guesses it gives up, so that no board takes for ever.
    std::int64_t guesses = 100'000;
};

struct SolutionCount {
    int found = 0;
    /// Whether `found` is the answer: all of the solutions, or as many as were asked for.
    bool isCertain = true;
};

/// Counts the solutions of a board by exhaustive search from its givens, those in the blank hexagon
/// left out; no deduction rule has a part in it.
SolutionCount countSolutions(const Board& board, const CountLimits& limits = {});

} // namespace tessaly
