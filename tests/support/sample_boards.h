#pragma once

#include "core/board/board.h"
#include "core/solver/chance.h"
#include "core/solver/search_fill.h"

namespace tessaly {

/// A search fill that knows all arrangements.
const SearchFill& completeFill();

/// A source that draws this number of 0 to 99 first.
Chance chanceOf(std::uint32_t number);

/// What a sample board is like before anything has been solved on it.
enum class Sample {
    Puzzle,         ///< the rim and the ten cells of the removal plan are given
    RandomGivens,   ///< any cells are given, few or nearly all
    WrongGivens,    ///< as RandomGivens, with a few numbers that are wrong
    EmptiedHexagon, ///< as Puzzle, with a whole hexagon emptied
    RandomTexts,    ///< any texts of the digits 0 to 6, ascending or not
    HalfTexts,      ///< a solution in which some cells hold any texts
};
inline constexpr int SampleKinds = 6;

/// A board of a kind; every other one has a blank hexagon and every fourth a skipped one.
Board sampleBoard(Sample kind, Chance& chance);

} // namespace tessaly
