#pragma once

#include "core/board/board.h"
#include "core/session/program_folder.h"

#include <string>
#include <string_view>
#include <vector>

/// The boards that the manual explains the puzzle with.
namespace tessaly::manual {

/// Two of the puzzles that the game is shipped with, an easy and a hard one, and their numbers.
inline constexpr int FirstNumber = ManualPuzzle;
inline constexpr std::string_view FirstPuzzle =
    "E1500UVT213VQ35422VU413ST216U5Q32464SRQ56146253216435T6325Q2"
    "4561345QV3225S614V32145S546QRVQUSTR13TVU26125TS342UQ6546RQS";
inline constexpr int CornerNumber = 175;
inline constexpr std::string_view CornerPuzzle =
    "H1253UTS621SV14526UT231UQ243V4215362UTS614561S2531246V3251T1"
    "3625426SQ45USTQRVR45136U164SR1U64R314RSV54235VQ435RV1521STV";

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
