#include "core/play/game.h"

#include "core/board/tables.h"
#include "core/play/assists.h"

namespace tessaly {

std::string NumText(int number) {
    return std::to_string(number);
}

bool Game::isReadable(CellId cell) const {
    return cell && !board.SolNum[cell].empty() && !board.isBlank(cell.hexagon);
}

bool Game::isSelectable(CellId cell) const {
    return isReadable(cell) && !board.FixedCell[cell];
}

void Game::startPuzzle() {
    TouchedCell = {};
    undoList.clear();
}

void Game::PushUndo(int hexagon, int position) {
    if (hexagon < 1 || position < 1)
        return;
    const CellId cell{hexagon, position};
    undoList.push(cell, false, board.CellNum[cell]);
    TouchedCell[cell] = true;
}

void Game::pushGrouped(CellId cell) {
    undoList.push(cell, true, board.CellNum[cell]);
}

void Game::place(CellId cell, const std::string& entry) {
    PushUndo(cell.hexagon, cell.position);
    board.CellNum[cell] = entry;
}

void Game::typeDigit(CellId cell, char digit) {
    std::string& entry = board.CellNum[cell];
    if (entry.size() >= LongestEntry || entry.find(digit) != std::string::npos)
        return;
    if (entry.empty())
        PushUndo(cell.hexagon, cell.position);
    entry += digit;
}

void Game::CopyAcrossSides(int& count) {
    for (CellId cell : AllCells) {
        const CellId partner = SideLink[cell];
        if (cell.hexagon == board.SkipHex || !partner || partner.hexagon == board.BlankHex)
            continue;
        if (!isPlaced(board.CellNum[partner]) || isPlaced(board.CellNum[cell]))
            continue;
        pushGrouped(cell);
        board.CellNum[cell] = board.CellNum[partner];
        TouchedCell[cell] = true;
        ++count;
    }
}

int Game::setSingles() {
    int count = 0;
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon) {
        const Single single = SingleCandidate(board, hexagon);
        if (!single.cell)
            continue;
        pushGrouped(single.cell);
        board.CellNum[single.cell] = single.number;
        ++count;
    }
    return count;
}

HexagonSet Game::undo() {
    HexagonSet changed;
    bool inRun = false;
    while (!undoList.empty()) {
        const UndoRecord record = undoList.newest();
        if (inRun && !record.grouped)
            break;
        board.CellNum[record.cell] = record.entryBefore;
        changed.set(static_cast<std::size_t>(record.cell.hexagon));
        undoList.removeNewest();
        if (!record.grouped)
            break;
        TouchedCell[record.cell] = false;
        inRun = true;
    }
    return changed;
}

void Game::reset() {
    board.ResetToGivens();
    startPuzzle();
}

} // namespace tessaly
