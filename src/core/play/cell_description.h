#pragma once

#include "core/board/board.h"

#include <string>
#include <string_view>

namespace tessaly {

/// The board in words, for whoever hears it instead of seeing it.

/// Where in its hexagon a cell lies: "top", "lower left".
std::string_view placeInWords(int position);
/// "hexagon 3, top".
std::string cellInWords(CellId cell);
/// What the cell holds: "empty", "4", "given 4", "marks 1 3 5", or "withheld" in the blank hexagon.
std::string entryInWords(const Board& board, CellId cell);
/// What lies across the cell's side: "across: hexagon 1, bottom, empty", or "at the edge".
std::string neighbourInWords(const Board& board, CellId cell);

} // namespace tessaly
