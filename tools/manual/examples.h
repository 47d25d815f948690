#pragma once

#include "core/board/board.h"

#include <string>
#include <string_view>
#include <vector>

/// The boards that the manual explains the puzzle with.
namespace tessaly::manual {

/// Two of the puzzles that the game is shipped with, an easy and a hard one, and their numbers.
inline constexpr int FirstNumber = 78;
inline constexpr std::string_view FirstPuzzle =
    "E1300RTU361TU12633UT261VR315T2V13542VQS54164352364152Q5264S3"
    "5261415TR6365T213VUSRQTU436RQ2Q465326QUT36132TU613UR4254QVS";
inline constexpr int CornerNumber = 137;
inline constexpr std::string_view CornerPuzzle =
    "H1246TSQ562TV21355TV312QS562T1625343QTU26634251516324U21V3T2"
    "3465132QU64VUQRST624153Q345VR2U346116STU25314VR452VQ3463RUQ";

/// A puzzle with its givens. The blank hexagon is empty: the player does not see it.
Board givensOf(std::string_view record);
/// A puzzle with all of its numbers.
Board solutionOf(std::string_view record);

/// A rule at work on a board as it comes about while a puzzle is solved.
struct Example {
    /// Which of the rules 1 to 4.
    int rule;
    /// The board before the rule is applied.
    Board board;
    /// The hexagons that the manual shows.
    std::vector<int> hexagons;
    /// The cells that the rule looks at.
    std::vector<CellId> reasons;
    /// The cells that it settles, and the number that belongs there.
    std::vector<CellId> settled;
    std::string number;
};

/// One example for each rule, in order.
std::vector<Example> examples();

} // namespace tessaly::manual
