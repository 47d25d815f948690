#include "core/solver/planted_hint.h"

namespace tessaly {

void plantHint(Board& board) {
    const CellId cell{board.BlankHex, board.HintCell};
    if (!isHexagon(cell.hexagon) || cell.position < 1 || cell.position > CellCount)
        return;
    board.CellNum[cell] = std::to_string(board.HintNum);
    board.FixedCell[cell] = true;
    board.SkipHex = NoHexagon;
}

} // namespace tessaly
