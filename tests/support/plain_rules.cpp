#include "support/plain_rules.h"

#include "core/board/tables.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace tessaly::plain {
namespace {

void settle(Board& board, CellId cell, char digit, std::int32_t& counter) {
    if (board.CellNum[cell].length() <= 1)
        return;
    board.CellNum[cell] = std::string(1, digit);
    ++counter;
}

} // namespace

void FixNeighbours(Board& board, std::int32_t& counter) {
    for (CellId cell : AllCells) {
        const CellId across = SideLink[cell];
        if (cell.hexagon == board.SkipHex || !across || isPlaced(board.CellNum[cell]) ||
            !isPlaced(board.CellNum[across]))
            continue;
        board.CellNum[cell] = board.CellNum[across];
        ++counter;
    }
}

void GetCandidates(Board& board, std::int32_t& counter) {
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon) {
        const std::string base = Without("123456", board.PlacedNumbers(hexagon));
        for (int position = 1; position <= CellCount; ++position) {
            std::string& entry = board.CellNum[{hexagon, position}];
            const CellId across = SideLink[{hexagon, position}];
            if (hexagon == board.SkipHex || isPlaced(entry) || !across)
                continue;
            const std::string fresh = isPlaced(board.CellNum[across])
                                          ? board.CellNum[across]
                                          : Without(base, board.PlacedNumbers(across.hexagon));
            if (fresh == entry)
                continue;
            entry = fresh;
            if (fresh.empty()) {
                counter = -1;
                return;
            }
            ++counter;
        }
    }
}

void FixSingles(Board& board, std::int32_t& counter) {
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon) {
        if (hexagon == board.SkipHex)
            continue;
        std::map<char, std::vector<CellId>> places;
        for (int position = 1; position <= CellCount; ++position) {
            const std::string& entry = board.CellNum[{hexagon, position}];
            for (char c : std::set<char>(entry.begin(), entry.end()))
                places[c].push_back({hexagon, position});
        }
        for (const auto& [digit, named] : places)
            if (digit != '0' && named.size() == 1)
                settle(board, named.front(), digit, counter);
    }
}

void FixXcellPairs(Board& board, std::int32_t& counter) {
    for (std::size_t xcell = 1; xcell <= XcellCount; ++xcell) {
        const XcellCells& cells = XcellTable[xcell];
        std::map<char, std::vector<CellId>> places;
        bool isSettled = true, isBlank = false;
        for (CellId cell : cells) {
            isSettled = isSettled && isPlaced(board.CellNum[cell]);
            isBlank = isBlank || cell.hexagon == board.BlankHex;
            for (char c : board.CellNum[cell])
                if (c != '0')
                    places[c].push_back(cell);
        }
        if (isSettled || isBlank || places.size() != 3)
            continue;
        for (const auto& [digit, named] : places)
            for (CellId cell : named)
                if (named.size() == 2)
                    settle(board, cell, digit, counter);
    }
}

int SolveByDeduction(Board& board) {
    std::int32_t counter = 1;
    while (counter != 0) {
        counter = 0;
        FixNeighbours(board, counter);
        GetCandidates(board, counter);
        FixSingles(board, counter);
        FixXcellPairs(board, counter);
        FixNeighbours(board, counter);
    }
    return std::ranges::all_of(AllCells, [&](CellId cell) { return isPlaced(board.CellNum[cell]); })
               ? 0
               : 1;
}

void SolveBasic(Board& board, bool useXcells, std::int32_t& counter) {
    do {
        counter = 0;
        FixNeighbours(board, counter);
        GetCandidates(board, counter);
        if (counter == -1)
            return;
        FixSingles(board, counter);
        if (useXcells)
            FixXcellPairs(board, counter);
        FixNeighbours(board, counter);
    } while (counter != 0);
}

int CheckHexagons(const Board& board, int leftOut) {
    std::size_t settledCount = 0;
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon) {
        if (hexagon == leftOut)
            continue;
        const auto& entries = board.CellNum[hexagon];
        const std::string settled = board.PlacedNumbers(hexagon);
        if (std::count(entries.begin() + 1, entries.end(), "") > 0 ||
            std::set<char>(settled.begin(), settled.end()).size() < settled.size())
            return -1;
        settledCount += settled.size();
    }
    return settledCount == 108 ? 99 : 0;
}

} // namespace tessaly::plain
