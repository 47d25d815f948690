#include "support/plain_rules.h"

#include "core/board/tables.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace tessaly::plain {
namespace {

bool isSettled(const std::string& entry) {
    return entry.length() == 1;
}

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
        if (cell.hexagon == board.SkipHex || !across)
            continue;
        if (!isSettled(board.CellNum[cell]) && isSettled(board.CellNum[across])) {
            board.CellNum[cell] = board.CellNum[across];
            ++counter;
        }
    }
}

void GetCandidates(Board& board, std::int32_t& counter) {
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon) {
        if (hexagon == board.SkipHex)
            continue;
        const std::string base = Without("123456", board.PlacedNumbers(hexagon));
        for (int position = 1; position <= CellCount; ++position) {
            std::string& entry = board.CellNum[{hexagon, position}];
            const CellId across = SideLink[{hexagon, position}];
            if (isSettled(entry) || !across)
                continue;
            if (isSettled(board.CellNum[across])) {
                entry = board.CellNum[across];
                ++counter;
                continue;
            }
            const std::string fresh = Without(base, board.PlacedNumbers(across.hexagon));
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
        if (std::any_of(cells.begin(), cells.end(),
                        [&board](CellId cell) { return cell.hexagon == board.BlankHex; }))
            continue;
        if (std::all_of(cells.begin(), cells.end(),
                        [&board](CellId cell) { return isSettled(board.CellNum[cell]); }))
            continue;
        std::map<char, std::vector<CellId>> places;
        for (CellId cell : cells)
            for (char c : board.CellNum[cell])
                if (c >= '1' && c <= '6')
                    places[c].push_back(cell);
        if (places.size() != 3)
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
    return std::all_of(AllCells.begin(), AllCells.end(),
                       [&board](CellId cell) { return isSettled(board.CellNum[cell]); })
               ? 0
               : 1;
}

void SolveBasic(Board& board, bool useXcells, std::int32_t& counter) {
    counter = 0;
    FixNeighbours(board, counter);
    GetCandidates(board, counter);
    while (counter != -1) {
        FixSingles(board, counter);
        if (useXcells)
            FixXcellPairs(board, counter);
        FixNeighbours(board, counter);
        if (counter == 0)
            return;
        counter = 0;
        FixNeighbours(board, counter);
        GetCandidates(board, counter);
    }
}

int CheckHexagons(const Board& board, int leftOut) {
    int settledCount = 0;
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon) {
        if (hexagon == leftOut)
            continue;
        std::string seen;
        for (int position = 1; position <= CellCount; ++position) {
            const std::string& entry = board.CellNum[{hexagon, position}];
            if (entry.empty())
                return -1;
            if (!isSettled(entry))
                continue;
            if (seen.find(entry) != std::string::npos)
                return -1;
            seen += entry;
            ++settledCount;
        }
    }
    return settledCount == 108 ? 99 : 0;
}

} // namespace tessaly::plain
