#pragma once

#include "core/play/game.h"

namespace tessaly {

/// Walking over the board by keys. The walk passes over givens too, so that they can be heard; only
/// what is withheld is stepped over.

/// The first and the last cell that may be selected, in reading order: from the top, each line from
/// the left. No cell when there is none.
CellId firstSelectable(const Game& game);
CellId lastSelectable(const Game& game);

/// The nearest cell in a direction (`columns` -1 left, 1 right; `rows` -1 up, 1 down), or `from`
/// itself where there is none. From no cell the walk begins at the first or the last one that may
/// be selected.
CellId cellBeside(const Game& game, CellId from, int columns, int rows);

/// The same for hexagons, but for the blank one.
int hexagonBeside(const Board& board, int from, int columns, int rows);

} // namespace tessaly
