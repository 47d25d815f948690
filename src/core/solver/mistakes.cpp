#include "core/solver/mistakes.h"

#include "core/solver/player_view.h"

namespace tessaly {
namespace {

std::optional<Mistake> differingSide(const PlayerView& view, const Board& board) {
    for (CellId cell : AllCells) {
        const CellId across = SideLink[cell];
        if (across.hexagon > cell.hexagon && view.isShown(cell) && view.isShown(across) &&
            board.CellNum[cell] != board.CellNum[across])
            return Mistake{Mistake::Kind::Differ, {cell, across}, cell.hexagon};
    }
    return std::nullopt;
}

std::optional<Mistake> numberTwice(const PlayerView& view) {
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon)
        for (int position = 1; position <= CellCount; ++position) {
            const CellId cell{hexagon, position};
            if (view.isOpen(cell))
                continue;
            const CellId holder = view.holderOf(view.known(cell).first(), hexagon);
            if (holder != view.whereShown(cell))
                return Mistake{Mistake::Kind::Twice, {holder, view.whereShown(cell)}, hexagon};
        }
    return std::nullopt;
}

} // namespace

std::optional<Mistake> findBrokenRule(const Board& board) {
    const PlayerView view(board);
    auto mistake = differingSide(view, board);
    return mistake ? mistake : numberTwice(view);
}

std::optional<Mistake> findMistake(const Board& board) {
    if (auto broken = findBrokenRule(board))
        return broken;
    const PlayerView view(board);
    for (CellId cell : AllCells)
        if (view.isShown(cell) && board.CellNum[cell] != board.SolNum[cell])
            return Mistake{Mistake::Kind::Wrong, {cell}, cell.hexagon};
    return std::nullopt;
}

} // namespace tessaly
