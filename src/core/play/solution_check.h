#pragma once

#include "core/board/board.h"

namespace tessaly {

/// Whether a hexagon holds a number twice (or a 0, which belongs nowhere).
bool holdsWrongNumbers(const Board& board, int hexagon);

/// The first hexagon that holds wrong numbers; 0 when none does.
int firstWrongHexagon(const Board& board);

/// Whether every cell holds one number and it is the cell's solution, wherever there is one.
bool isSolved(const Board& board);

} // namespace tessaly
