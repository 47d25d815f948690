// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "board/board.h"

namespace tessaly {

/// The first hexagon that holds a number twice (or a 0, which belongs nowhere); 0 when none does.
int firstWrongHexagon(const Board& board);

/// Whether every cell holds one number and it is the cell's solution, wherever there is one.
bool isSolved(const Board& board);

} // namespace tessaly
