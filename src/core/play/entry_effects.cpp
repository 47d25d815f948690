#include "core/play/entry_effects.h"

#include "core/board/tables.h"
#include "core/play/pencil_marks.h"

namespace tessaly {
namespace {

bool isNumber(const std::string& entry) {
    return isPlaced(entry) && entry >= "1";
}

bool changesPartner(const Board& board, CellId cell, CellId partner, const std::string& entry) {
    if (!partner || board.isBlank(partner.hexagon) || board.FixedCell[partner])
        return false;
    const std::string& before = board.CellNum[partner];
    return isNumber(entry) ? before != entry
                           : entry.empty() && isPlaced(before) && before == board.CellNum[cell];
}

} // namespace

std::vector<CellChange> effectsOf(const Board& board, const PlaySwitches& switches, CellId cell,
                                  const std::string& entry) {
    std::vector<CellChange> effects;
    const CellId partner = SideLink[cell];
    if (switches.fillBothSides && changesPartner(board, cell, partner, entry))
        effects.push_back({partner, entry});
    if (!switches.strikeMarks || !isNumber(entry))
        return effects;
    for (CellId other : AllCells) {
        if (other == cell || other == partner ||
            (other.hexagon != cell.hexagon && other.hexagon != partner.hexagon))
            continue;
        std::string left = withoutMark(board.CellNum[other], entry.front());
        if (left != board.CellNum[other])
            effects.push_back({other, std::move(left)});
    }
    return effects;
}

} // namespace tessaly
