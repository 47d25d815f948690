#include "core/play/solution_check.h"

#include <algorithm>

namespace tessaly {
namespace {

bool hasSolution(const std::string& solution) {
    return !solution.empty() && solution > "0";
}

} // namespace

bool holdsWrongNumbers(const Board& board, int hexagon) {
    std::string placed = board.PlacedNumbers(hexagon);
    for (char digit = '1'; digit <= '6'; ++digit)
        if (const auto at = placed.find(digit); at != std::string::npos)
            placed.erase(at, 1);
    return !placed.empty();
}

int firstWrongHexagon(const Board& board) {
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon)
        if (holdsWrongNumbers(board, hexagon))
            return hexagon;
    return 0;
}

bool isSolved(const Board& board) {
    return std::all_of(AllCells.begin(), AllCells.end(), [&board](CellId cell) {
        const std::string& solution = board.SolNum[cell];
        const std::string& entry = board.CellNum[cell];
        return isPlaced(entry) && (!hasSolution(solution) || entry == solution);
    });
}

} // namespace tessaly
