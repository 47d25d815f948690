#pragma once

#include "core/board/board.h"

#include <optional>
#include <vector>

namespace tessaly {

/// Placed numbers that cannot be right.
struct Mistake {
    enum class Kind {
        Twice,  ///< a hexagon would hold a number twice
        Differ, ///< the two cells of a side hold different numbers
        Wrong,  ///< a number is not the solution's
    };

    Kind kind = Kind::Twice;
    /// The cells that hold the numbers: two, or the one that is wrong.
    std::vector<CellId> cells;
    /// The hexagon that would hold a number twice; else that of the first cell.
    int hexagon = 0;
};

/// The first place where placed numbers break a rule, seen as a player sees the board: what
/// touches the blank hexagon counts for it.
std::optional<Mistake> findBrokenRule(const Board& board);

/// The same, and where no rule is broken the first number that is not the solution's.
std::optional<Mistake> findMistake(const Board& board);

} // namespace tessaly
