#pragma once

#include "core/board/board.h"
#include "core/solver/chance.h"
#include "core/solver/search_fill.h"

namespace tessaly::plain {

/// The generator read as plainly as possible, on texts and with the plain rules; it draws the same
/// numbers in the same order as the fast one.
void CreatePuzzle(Board& board, Difficulty difficulty, Chance& chance, const SearchFill& fill);
bool ChooseBlankHexagon(Board& board, Difficulty difficulty, Chance& chance);

} // namespace tessaly::plain
