#pragma once

#include "core/board/board.h"

#include <cstdint>

/// The rules, loops and checks of the engine read as plainly as possible, on texts: slow, and easy
/// to see right. A second opinion for the tests, and the yardstick of the benchmarks.
namespace tessaly::plain {

void FixNeighbours(Board& board, std::int32_t& counter);
void GetCandidates(Board& board, std::int32_t& counter);
void FixSingles(Board& board, std::int32_t& counter);
void FixXcellPairs(Board& board, std::int32_t& counter);
int SolveByDeduction(Board& board);
void SolveBasic(Board& board, bool useXcells, std::int32_t& counter);
int CheckHexagons(const Board& board, int leftOut);

} // namespace tessaly::plain
