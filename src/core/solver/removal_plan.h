#pragma once

#include "core/board/vocabulary.h"

#include <array>
#include <span>

namespace tessaly {

/// Cells that lose their given together; the second is no cell when there is only one.
struct RemovalEntry {
    CellId first;
    CellId second;
};

/// The inner givens that the generator tries to do without, in this order.
inline constexpr std::array<RemovalEntry, 8> RemovalPlan{{
    {{7, 4}, {}},
    {{5, 5}, {}},
    {{8, 6}, {}},
    {{12, 3}, {}},
    {{13, 1}, {}},
    {{15, 2}, {}},
    {{1, 5}, {5, 2}},
    {{15, 5}, {19, 2}},
}};

/// The cells that are never given in a puzzle, and therefore never hold its hint either.
inline constexpr std::array<CellId, 2> NeverGiven{{{19, 2}, {1, 5}}};

/// The hexagons that may become the blank one.
inline constexpr std::array<int, 6> BlankHexagonChoices{7, 5, 8, 13, 15, 12};

} // namespace tessaly
