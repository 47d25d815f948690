#include "core/play/highlights.h"

#include "core/board/tables.h"
#include "core/solver/player_view.h"

namespace tessaly {
namespace {

/// Whether the player sees a number in the cell.
bool showsNumber(const Board& board, CellId cell) {
    return cell && !board.isBlank(cell.hexagon) && isPlaced(board.CellNum[cell]);
}

bool standsTwice(const Board& board, CellId cell) {
    if (!showsNumber(board, cell))
        return false;
    for (int position = 1; position <= CellCount; ++position)
        if (position != cell.position &&
            board.CellNum[CellId{cell.hexagon, position}] == board.CellNum[cell])
            return true;
    return false;
}

bool differsAcross(const Board& board, CellId cell) {
    const CellId across = SideLink[cell];
    return showsNumber(board, cell) && showsNumber(board, across) &&
           board.CellNum[cell] != board.CellNum[across];
}

void addImpossibleMarks(const Board& board, std::vector<Highlights::Mark>& impossible) {
    const PlayerView view(board);
    for (CellId cell : AllCells) {
        const std::string& entry = board.CellNum[cell];
        if (board.isBlank(cell.hexagon) || entry.empty() || isPlaced(entry))
            continue;
        const DigitSet possible = view.candidates(cell);
        for (char digit : entry)
            if (digit >= '1' && !possible.contains(digit - '0'))
                impossible.push_back({cell, digit});
    }
}

} // namespace

bool breaksARule(const Board& board, CellId cell) {
    return standsTwice(board, cell) || differsAcross(board, cell);
}

Highlights highlightsOf(const Board& board, const PlaySwitches& switches, CellId looked,
                        char digit) {
    Highlights found;
    for (CellId cell : {looked, looked ? SideLink[looked] : CellId{}})
        if (cell && !board.isBlank(cell.hexagon))
            found.looked.push_back(cell);
    for (CellId cell : AllCells) {
        if (board.isBlank(cell.hexagon))
            continue;
        if (switches.showEqualNumbers && digit != 0 &&
            board.CellNum[cell].find(digit) != std::string::npos)
            found.equal.push_back(cell);
        if (!switches.showBrokenRules)
            continue;
        if (standsTwice(board, cell))
            found.repeated.push_back(cell);
        if (cell.hexagon < SideLink[cell].hexagon && differsAcross(board, cell))
            found.differing.push_back(cell);
    }
    if (switches.fadeImpossibleMarks)
        addImpossibleMarks(board, found.impossible);
    return found;
}

} // namespace tessaly
