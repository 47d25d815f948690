#pragma once

#include "core/board/board.h"
#include "core/play/play_switches.h"

#include <string>
#include <vector>

namespace tessaly {

struct CellChange {
    CellId cell;
    std::string entry;
};

/// What an entry into a cell changes in other cells, as the player has switched it on. The partner
/// across the side takes a number, whatever it held, and is emptied with it when both held the
/// same; the other marks of both hexagons lose it. Neither givens nor the blank hexagon change.
std::vector<CellChange> effectsOf(const Board& board, const PlaySwitches& switches, CellId cell,
                                  const std::string& entry);

} // namespace tessaly
