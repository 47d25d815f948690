// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "board/board.h"

#include <string>
#include <string_view>
#include <vector>

/// The boards that the manual explains the puzzle with.
namespace tessaly::manual {

/// Puzzle 1 of the easy and puzzle 3 of the hard ones that the game is shipped with.
inline constexpr std::string_view FirstPuzzle =
    "E0700TRV531RV14535RV431VU342Q4S15624QUS26TURSVQ536142T2136U36215412VT35364125Q45263R653TQ153"
    "2T623VQU43261TU264QU3143VRU";
inline constexpr std::string_view CornerPuzzle =
    "H1233UVS124SV45211UR634RS156T5R41366QTS52526413132456T6325Q43621545RQ36RQUTVS256143V5S1TR4Q3"
    "5V213UTV21624US542VS1461SUR";

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
