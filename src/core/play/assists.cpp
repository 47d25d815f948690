#include "core/play/assists.h"

#include "core/board/tables.h"

#include <algorithm>

namespace tessaly {
namespace {

constexpr std::string_view AllDigits = "123456";

void clearMarks(Board& board, int hexagon) {
    for (int position = 1; position <= CellCount; ++position) {
        std::string& entry = board.CellNum[{hexagon, position}];
        if (entry.size() > 1)
            entry.clear();
    }
}

/// Cell by cell, so that later cells of the hexagon see the marks of earlier ones.
void writeCandidates(Board& board, const Grid<bool>& touched, int hexagon) {
    clearMarks(board, hexagon);
    for (int position = 1; position <= CellCount; ++position) {
        const CellId cell{hexagon, position};
        board.CellNum[cell] = CandidateText(board, touched, cell);
    }
}

bool hasSolution(const std::string& solution) {
    return !solution.empty() && solution > "0";
}

} // namespace

std::string CountedNumbers(const Board& board, const Grid<bool>& touched, int hexagon) {
    std::string counted;
    for (int position = 1; position <= CellCount; ++position) {
        const CellId cell{hexagon, position};
        if (isPlaced(board.CellNum[cell]) && (board.FixedCell[cell] || touched[cell]))
            counted += board.CellNum[cell];
    }
    return counted;
}

std::string CandidateText(const Board& board, const Grid<bool>& touched, CellId cell) {
    const std::string& entry = board.CellNum[cell];
    if (cell.hexagon == board.SkipHex)
        return {};
    if (isPlaced(entry) && (board.FixedCell[cell] || touched[cell]))
        return entry;
    std::string candidates = Without(AllDigits, CountedNumbers(board, touched, cell.hexagon));
    if (candidates.size() == 1)
        return entry;
    const CellId partner = SideLink[cell];
    // A partner that is withheld counts as open, and so do all numbers beside it.
    if (!partner || board.isBlank(partner.hexagon))
        return candidates;
    if (isPlaced(board.CellNum[partner]))
        return board.CellNum[partner];
    std::string inBoth = Without(candidates, CountedNumbers(board, touched, partner.hexagon));
    return inBoth != entry ? inBoth : candidates;
}

Single SingleCandidate(const Board& board, int hexagon) {
    if (!isHexagon(hexagon) || hexagon == board.SkipHex)
        return {};
    const std::string missing = Without(AllDigits, board.PlacedNumbers(hexagon));
    if (missing.size() != 1)
        return {};
    for (int position = 1; position <= CellCount; ++position)
        if (const CellId cell{hexagon, position}; !isPlaced(board.CellNum[cell]))
            return {cell, missing};
    return {};
}

void fillPencilMarks(Board& board, const Grid<bool>& touched) {
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon)
        writeCandidates(board, touched, hexagon);
}

void clearPencilMarks(Board& board) {
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon)
        clearMarks(board, hexagon);
}

Board withCandidates(Board board, const Grid<bool>& touched, int hexagon) {
    writeCandidates(board, touched, hexagon);
    return board;
}

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
