#pragma once

#include "core/base/yield.h"
#include "core/board/board.h"

#include <cstdint>

namespace tessaly {

/// The rules and solving loops on a board's `CellNum`. A text of one character is a settled cell,
/// two or more are candidates, an empty text is a contradiction. Entries may hold the digits 0 to 6
/// in any order. `SkipHex` and `BlankHex` of the board are left out as each rule says.
///
/// Every rule adds one to `counter` for each entry that it changes.

/// Rule 1: an open cell takes the settled number across its side.
void FixNeighbours(Board& board, std::int32_t& counter);

/// Rule 2: an open cell that has a cell across its side gets the digits settled in neither of the
/// two hexagons. The first cell that is left with none sets the counter to -1 and ends the rule.
void GetCandidates(Board& board, std::int32_t& counter);

/// Rule 3: a digit that has one cell left in a hexagon goes there.
void FixSingles(Board& board, std::int32_t& counter);

/// Rule 4: where the six cells of an xcell without a cell of the blank hexagon admit exactly three
/// digits, a digit that has two cells left goes into both.
void FixXcellPairs(Board& board, std::int32_t& counter);

/// Rules 1, 2, 3, 4, 1 until a pass leaves the counter at 0; 0 when every cell is settled then,
/// else 1. `yield` is called before each pass, with the board up to date.
int SolveByDeduction(Board& board, const Yield& yield = {});

/// Rules 1, 2, 3, (4 if `useXcells`), 1 until nothing changes or rule 2 meets a contradiction,
/// which leaves `counter` at -1, else at 0.
void SolveBasic(Board& board, bool useXcells, std::int32_t& counter, const Yield& yield = {});

/// What `CheckHexagons` answers.
inline constexpr int Contradictory = -1;
inline constexpr int Unsettled = 0;
inline constexpr int SettledAndSound = 99;

/// The consistency of a finished board: `Contradictory` when a cell is empty or a hexagon holds a
/// settled number twice, `SettledAndSound` when exactly 108 cells (18 hexagons) are settled, else
/// `Unsettled`. The hexagon `leftOut` is not looked at; `NoHexagon` leaves out none.
int CheckHexagons(const Board& board, int leftOut);

/// How many cells have two or more candidates.
int countOpenCells(const Board& board);

} // namespace tessaly
