#pragma once

#include "core/base/outcome.h"

#include <array>
#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace tessaly {

/// The ways to put 1 to 6 into the six cells of a hexagon.
inline constexpr int ArrangementCount = 720;

/// The arrangements as words, each with a weight for its letters. A fresh table holds no words.
struct ArrangementTable {
    static constexpr std::size_t Capacity = 750;

    /// Words 1..`wordCount`: cell k's digit is letter k, "A".."F" standing for 1..6, so that
    /// "ABCDEF" puts 1 into cell 1. Word 0 and those behind the last are empty.
    std::array<std::string, Capacity + 1> words;
    int wordCount = 0;
    /// How often each letter ("A" = 0) occurs in all words.
    std::array<int, 7> letterWeights{};
    /// The sum of its letters' weights for each word.
    std::array<int, Capacity + 1> scores{};
};

/// Fills the table from the first line of "hexabinx.txt": three characters for each arrangement,
/// each the character with code 10 * d1 + d2 + 25 for two consecutive digits d1 d2. A line that
/// does not hold every arrangement exactly once is refused with the reason (a search that draws
/// from the table relies on finding each of them); the table stays as it was.
Outcome readArrangements(std::string_view line, ArrangementTable& table);

/// Fills the table from the file at `path`. A problem names the file and what is wrong with it.
Outcome Set6Combos(const std::filesystem::path& path, ArrangementTable& table);

} // namespace tessaly
