#pragma once

#include "core/board/difficulty.h"
#include "core/solver/rating.h"
#include "core/solver/search_fill.h"

#include <cstdint>
#include <functional>
#include <string>

namespace tessaly {

/// A seed stands for an endless series of puzzles; the same seed for the same series, however many
/// threads work on it.
struct PuzzleSeries {
    DifficultyChoice difficulty;
    std::uint64_t seed = 0;
    /// Only puzzles of these stars.
    StarRange stars = {};

    /// The record of puzzle `index`, from 0.
    std::string record(std::uint64_t index, const SearchFill& fill) const;
};

/// Makes the records of a series from that of puzzle `first` on, on `jobs` threads, and hands them
/// out in order, on the thread that called, until `take` answers false.
void makeSeries(const PuzzleSeries& series, std::uint64_t first, int jobs, const SearchFill& fill,
                const std::function<bool(const std::string& record)>& take);

} // namespace tessaly
