#include "core/board/board.h"

#include <algorithm>

namespace tessaly {

void Board::ResetToGivens() {
    for (CellId cell : AllCells) {
        if (FixedCell[cell])
            CellNum[cell] = SolNum[cell];
        else
            CellNum[cell].clear();
    }
}

std::string Board::PlacedNumbers(int hexagon) const {
    std::string placed;
    for (int position = 1; position <= CellCount; ++position) {
        const std::string& entry = CellNum[{hexagon, position}];
        if (isPlaced(entry))
            placed += entry;
    }
    return placed;
}

std::string Without(std::string_view text, std::string_view removed) {
    std::string kept(text);
    std::erase_if(kept, [removed](char c) { return removed.find(c) != std::string_view::npos; });
    return kept;
}

} // namespace tessaly
