#pragma once

#include "core/board/board.h"

#include <array>
#include <string>

namespace tessaly {

/// The numbers of a hexagon that count for pencil marks: placed ones of givens and of touched
/// cells, in cell order. A number that was loaded with a saved game and not touched since is open.
std::string CountedNumbers(const Board& board, const Grid<bool>& touched, int hexagon);

/// The numbers still possible for a cell by its own hexagon, its side partner and the partner's
/// hexagon, if that is not the blank one; the entry itself where the rules have nothing to say.
std::string CandidateText(const Board& board, const Grid<bool>& touched, CellId cell);

/// A cell and the number that belongs there; no cell when there is none.
struct Single {
    CellId cell;
    std::string number;
};

/// The first open cell of a hexagon that lacks exactly one number, with that number.
Single SingleCandidate(const Board& board, int hexagon);

/// Writes pencil marks into all cells of the board, replacing those that were there.
void fillPencilMarks(Board& board, const Grid<bool>& touched);

/// Empties all cells that hold pencil marks.
void clearPencilMarks(Board& board);

/// A copy of the board with the candidates of one hexagon over its entries.
Board withCandidates(Board board, const Grid<bool>& touched, int hexagon);

/// Whether a hexagon holds a number twice (or a 0, which belongs nowhere).
bool holdsWrongNumbers(const Board& board, int hexagon);

/// The first hexagon that holds wrong numbers; 0 when none does.
int firstWrongHexagon(const Board& board);

/// Whether every cell holds one number and it is the cell's solution, wherever there is one.
bool isSolved(const Board& board);

} // namespace tessaly
