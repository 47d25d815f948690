#pragma once

#include "core/board/board.h"

#include <string>
#include <string_view>
#include <vector>

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
/// All cells of a hexagon: "hexagon 3: upper left 5, top empty, ...".
std::string hexagonInWords(const Board& board, int hexagon);
/// The numbers that a hexagon lacks: "missing 1 4", or "missing nothing".
std::string missingInWords(const Board& board, int hexagon);
/// What changed cells hold now; the one that the player is at is not named, and of many cells only
/// the count is told. "" for none.
std::string changesInWords(const Board& board, const std::vector<CellId>& changed, CellId at);

} // namespace tessaly
