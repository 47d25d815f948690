#pragma once

#include "core/board/board.h"

namespace tessaly {

/// Puts the hint number of a puzzle at the hint position of its blank hexagon and makes it a given;
/// nothing when there is no blank hexagon or no hint. Developers' tools read a record like this,
/// although the number was found for the neighbour of the blank hexagon that has that position.
void plantHint(Board& board);

} // namespace tessaly
