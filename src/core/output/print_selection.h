#pragma once

#include "core/base/outcome.h"
#include "core/board/difficulty.h"
#include "core/output/number_list.h"
#include "core/solver/rating.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tessaly {

/// A puzzle that is to be printed.
struct PrintedPuzzle {
    /// The name of its file, without the folder.
    std::string file;
    int number = 1;
    /// 0 where nobody asked, or where the steps do not lead to the solution.
    int stars = 0;
    /// As it stands in the file.
    std::string record = {};
};

/// Which puzzles of some files are printed, and in which order.
struct PrintSelection {
    /// The same of each file; nothing for all.
    std::optional<NumberList> numbers = {};
    /// Only those of one difficulty.
    DifficultyChoice difficulty = {};
    StarRange stars = {};
    /// The easiest first, by difficulty and stars, instead of the order of the files.
    bool byStars = false;
    /// Whether stars are wanted although nothing is chosen by them.
    bool isRated = false;

    bool needsRating() const { return isRated || byStars || !stars.isEverything(); }
};

/// Called for every puzzle that is read; when it answers false the reading ends.
using GoOnReading = std::function<bool()>;

/// Reads the puzzles to print into memory, so that they are those of one moment. Fails when a
/// number is not in a file, when a chosen line is no puzzle, and when none is left.
Outcome selectPuzzles(const std::vector<std::filesystem::path>& files,
                      const PrintSelection& selection, std::vector<PrintedPuzzle>& puzzles,
                      const GoOnReading& goOn = {});

} // namespace tessaly
