#pragma once

#include "core/board/board.h"
#include "core/board/digit_set.h"
#include "core/board/tables.h"

#include <array>

namespace tessaly {

/// What steps have said that the cells of the blank hexagon must hold, by position 1..6; 0 where
/// none has. Nothing of it is ever entered, so whoever follows the steps keeps it.
using WithheldDigits = std::array<int, CellCount + 1>;

/// What a player can know of a board: the placed numbers on both sides of each side. Pencil marks,
/// the solution and what stands in the blank hexagon are not looked at; what touches that is as
/// good as seen in it.
class PlayerView {
public:
    explicit PlayerView(const Board& board, const WithheldDigits& withheld = {});

    bool isInBlank(CellId cell) const { return cell.hexagon == m_blankHex; }
    /// Whether the cell itself holds its number (in the blank hexagon: was said to).
    bool isShown(CellId cell) const { return !m_shown[cell].empty(); }
    /// The number of a cell, on this side or across it; none in an open one.
    DigitSet known(CellId cell) const { return m_shown[whereShown(cell)]; }
    bool isOpen(CellId cell) const { return known(cell).empty(); }
    /// The cell to look at for a number that is known: this one, or the one across its side.
    CellId whereShown(CellId cell) const {
        return isShown(cell) || !SideLink[cell] ? cell : SideLink[cell];
    }
    /// The numbers known in a hexagon; none in no hexagon.
    DigitSet placed(int hexagon) const { return m_placed[static_cast<std::size_t>(hexagon)]; }
    /// What a cell may hold: its number, or what its two hexagons leave.
    DigitSet candidates(CellId cell) const {
        return isOpen(cell)
                   ? DigitSet::all() - placed(cell.hexagon) - placed(SideLink[cell].hexagon)
                   : known(cell);
    }
    /// Where a number that is placed in a hexagon is shown; no cell when it is not placed.
    CellId holderOf(int digit, int hexagon) const;

private:
    int m_blankHex;
    Grid<DigitSet> m_shown;
    std::array<DigitSet, HexagonCount + 1> m_placed{};
};

} // namespace tessaly
