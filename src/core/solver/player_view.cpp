#include "core/solver/player_view.h"

namespace tessaly {

PlayerView::PlayerView(const Board& board, const WithheldDigits& withheld)
    : m_blankHex(board.BlankHex) {
    for (CellId cell : AllCells)
        if (!isInBlank(cell) && isPlaced(board.CellNum[cell]))
            m_shown[cell] = DigitSet::fromText(board.CellNum[cell]);
    for (int position = 1; position <= CellCount && isHexagon(m_blankHex); ++position)
        if (const int digit = withheld[static_cast<std::size_t>(position)];
            digit != 0 && isOpen({m_blankHex, position}))
            m_shown[{m_blankHex, position}] = DigitSet::of(digit);
    for (CellId cell : AllCells) {
        DigitSet& placed = m_placed[static_cast<std::size_t>(cell.hexagon)];
        placed = placed | known(cell);
    }
}

CellId PlayerView::holderOf(int digit, int hexagon) const {
    for (int position = 1; position <= CellCount && placed(hexagon).contains(digit); ++position)
        if (const CellId cell{hexagon, position}; known(cell).contains(digit))
            return whereShown(cell);
    return {};
}

} // namespace tessaly
