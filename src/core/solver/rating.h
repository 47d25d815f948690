#pragma once

#include "core/board/board.h"
#include "core/solver/next_step.h"

#include <array>
#include <optional>
#include <string>

namespace tessaly {

inline constexpr int MostStars = 5;

/// How hard a puzzle is for a person, measured on the way that the steps lead (see next_step.h).
struct Rating {
    /// The sum over the steps, those across a side left out, of how hard the reason is to see, the
    /// more the fewer sides can be settled at that moment.
    int score = 0;
    /// 1 to 5: which fifth of the created puzzles of its difficulty has such scores.
    int stars = 0;
    /// How many steps have each reason, in the order of `Reasons`.
    std::array<int, Reasons.size()> steps{};

    friend bool operator==(const Rating&, const Rating&) = default;
};

/// "4 of 5 stars", and a line for each reason that is needed, with how often it is.
std::string inWords(const Rating& rating);

/// Rates a puzzle from its givens; nothing when the steps do not lead to its solution.
std::optional<Rating> ratePuzzle(Board board);

/// A range of stars.
struct StarRange {
    int least = 1;
    int most = MostStars;

    bool isEverything() const { return least <= 1 && most >= MostStars; }
    bool contains(int stars) const { return stars >= least && stars <= most; }
};

} // namespace tessaly
