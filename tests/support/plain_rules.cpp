#include "support/plain_rules.h"

#include "core/board/tables.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace tessaly::plain {
namespace {

bool isSettled(const std::string& entry) {
    return entry.length() == 1;
}

std::string twoDigits(int number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
}

CellId cellAt(const std::string& text, std::size_t at) {
    return {std::stoi(text.substr(at, 2)), std::stoi(text.substr(at + 2, 2))};
}

/// One item for each digit that occurs: " 3  0305 0802".
std::vector<std::string> workList(const Board& board, const XcellCells& cells) {
    std::array<std::string, 7> places;
    for (CellId cell : cells)
        for (char c : board.CellNum[cell])
            if (c >= '1' && c <= '6')
                places[static_cast<std::size_t>(c - '0')] +=
                    " " + twoDigits(cell.hexagon) + twoDigits(cell.position);
    std::vector<std::string> items;
    for (std::size_t digit = 1; digit <= 6; ++digit)
        if (!places[digit].empty())
            items.push_back(" " + std::to_string(digit) + " " + places[digit]);
    return items;
}

void applyItem(Board& board, const std::string& item, std::int32_t& counter) {
    constexpr std::size_t LengthWithTwoCells = 13;
    if (item.length() != LengthWithTwoCells)
        return;
    const std::string digit = std::to_string(std::stoi(item.substr(0, 2)));
    for (CellId cell : {cellAt(item, 4), cellAt(item, 9)})
        if (board.CellNum[cell].length() > 1) {
            board.CellNum[cell] = digit;
            ++counter;
        }
}

void onePass(Board& board, std::int32_t& counter) {
    FixNeighbours(board, counter);
    GetCandidates(board, counter);
    FixSingles(board, counter);
    FixXcellPairs(board, counter);
    FixNeighbours(board, counter);
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
        auto& cells = board.CellNum[hexagon];
        std::array<std::ptrdiff_t, 7> counts{};
        for (char digit = '1'; digit <= '6'; ++digit)
            counts[static_cast<std::size_t>(digit - '0')] =
                std::count_if(cells.begin() + 1, cells.end(), [digit](const std::string& entry) {
                    return entry.find(digit) != std::string::npos;
                });
        for (char digit = '1'; digit <= '6'; ++digit) {
            if (counts[static_cast<std::size_t>(digit - '0')] != 1)
                continue;
            for (std::size_t position = 1; position <= 6; ++position)
                if (cells[position].length() > 1 &&
                    cells[position].find(digit) != std::string::npos) {
                    cells[position] = std::string(1, digit);
                    ++counter;
                }
        }
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
        const std::vector<std::string> items = workList(board, cells);
        if (items.size() != 3)
            continue;
        for (const std::string& item : items)
            applyItem(board, item, counter);
    }
}

int SolveByDeduction(Board& board) {
    std::int32_t counter = 0;
    onePass(board, counter);
    while (counter != 0) {
        counter = 0;
        onePass(board, counter);
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
