#include "support/plain_generator.h"

#include "core/board/tables.h"
#include "core/solver/packed_board.h"
#include "support/plain_rules.h"

#include <algorithm>
#include <vector>

namespace tessaly::plain {
namespace {

struct HintItem {
    CellId cell;
    std::string candidates;
};

/// Each entry of the plan as pairs of hexagon and position.
const std::vector<std::vector<CellId>>& plan() {
    static const std::vector<std::vector<CellId>> entries{
        {{7, 4}},  {{5, 5}},  {{8, 6}},         {{12, 3}},
        {{13, 1}}, {{15, 2}}, {{1, 5}, {5, 2}}, {{15, 5}, {19, 2}}};
    return entries;
}

void fillBoard(Board& board, Chance& chance, const SearchFill& fill) {
    HexagonWords cells{};
    while (!fill.fill(cells, chance).filled) {
    }
    board.SolNum = {};
    unpackChanges({}, cells, board.SolNum);
    board.CellNum = board.SolNum;
    for (CellId cell : AllCells)
        board.FixedCell[cell] = !SideLink[cell];
    for (const auto& entry : plan())
        for (CellId cell : entry)
            board.FixedCell[cell] = true;
}

bool hasOpenCell(const Board& board) {
    return std::any_of(AllCells.begin(), AllCells.end(),
                       [&board](CellId cell) { return board.CellNum[cell].length() > 1; });
}

void emptyHexagon(Board& board, int hexagon) {
    for (int position = 1; position <= CellCount; ++position)
        board.CellNum[{hexagon, position}] = "";
}

void solveFromGivensWithout(Board& board, int hexagon) {
    board.ResetToGivens();
    emptyHexagon(board, hexagon);
    std::int32_t counter = 0;
    SolveBasic(board, false, counter);
}

void finish(Board& board, int hexagon, Difficulty difficulty) {
    board.BlankHex = hexagon;
    board.difficulty = difficulty;
    for (int position = 1; position <= CellCount; ++position)
        board.FixedCell[{hexagon, position}] = true;
    board.ResetToGivens();
}

std::vector<HintItem> hintItems(const Board& board, int hexagon, Chance& chance) {
    std::vector<HintItem> items;
    for (int position = 1; position <= CellCount; ++position) {
        const CellId cell = SideLink[{hexagon, position}];
        if (cell && cell != CellId{1, 5} && cell != CellId{19, 2} &&
            board.CellNum[cell].length() > 1)
            items.push_back({cell, board.CellNum[cell]});
    }
    chance.shuffle(items);
    return items;
}

/// The digits of a hint cell that lead to a sound end.
std::string successes(Board& board, int hexagon, const HintItem& item) {
    const Grid<std::string> aside = board.CellNum;
    std::string found;
    for (char digit : item.candidates) {
        board.CellNum[item.cell] = std::string(1, digit);
        std::int32_t counter = 0;
        SolveBasic(board, true, counter);
        const int check = CheckHexagons(board, hexagon);
        board.CellNum = aside;
        if (check == 0)
            break;
        if (check == 99)
            found += digit;
    }
    return found;
}

bool findHint(Board& board, int hexagon, Chance& chance) {
    const std::vector<HintItem> items = hintItems(board, hexagon, chance);
    const Grid<std::string> aside = board.CellNum;
    for (const HintItem& item : items) {
        board.CellNum = aside;
        const std::string found = successes(board, hexagon, item);
        if (found.length() != 1 || found != board.SolNum[item.cell])
            continue;
        board.FixedCell[item.cell] = true;
        solveFromGivensWithout(board, hexagon);
        if (hasOpenCell(board)) {
            board.HintCell = item.cell.position;
            board.HintNum = std::stoi(found);
            return true;
        }
        board.FixedCell[item.cell] = false;
    }
    return false;
}

bool solvesWithout(Board& board, const std::vector<CellId>& cells) {
    for (CellId cell : cells) {
        board.CellNum[cell] = "";
        board.FixedCell[cell] = false;
    }
    const bool solved = SolveByDeduction(board) == 0;
    if (!solved)
        for (CellId cell : cells)
            board.FixedCell[cell] = true;
    board.ResetToGivens();
    return solved;
}

} // namespace

bool ChooseBlankHexagon(Board& board, Difficulty difficulty, Chance& chance) {
    board.SkipHex = NoHexagon;
    board.BlankHex = NoHexagon;
    board.HintCell = 0;
    board.HintNum = 0;
    std::vector<int> hexagons{7, 5, 8, 13, 15, 12};
    chance.shuffle(hexagons);
    for (int hexagon : hexagons) {
        solveFromGivensWithout(board, hexagon);
        const bool isEasy = !hasOpenCell(board);
        const bool fits =
            difficulty == Difficulty::Easy ? isEasy : !isEasy && findHint(board, hexagon, chance);
        if (fits) {
            finish(board, hexagon, difficulty);
            return true;
        }
    }
    board.ResetToGivens();
    return false;
}

void CreatePuzzle(Board& board, Difficulty difficulty, Chance& chance, const SearchFill& fill) {
    bool isMade = false;
    while (!isMade) {
        Chance own(chance.next());
        board.SkipHex = NoHexagon;
        board.BlankHex = NoHexagon;
        do {
            fillBoard(board, own, fill);
        } while (SolveByDeduction(board) == 1);
        board.ResetToGivens();
        for (const std::vector<CellId>& cells : plan())
            solvesWithout(board, cells);
        board.FixedCell[19][2] = false;
        board.FixedCell[1][5] = false;
        isMade = ChooseBlankHexagon(board, difficulty, own);
    }
}

} // namespace tessaly::plain
