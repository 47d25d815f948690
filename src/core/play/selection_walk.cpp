#include "core/play/selection_walk.h"

#include "core/play/board_geometry.h"

#include <cmath>
#include <limits>
#include <tuple>

namespace tessaly {
namespace {

/// How much a step aside weighs against a step ahead: large enough to keep to a line of cells.
constexpr double AsideWeight = 2.0;

/// Cells whose centres differ by less than this in height stand in one line, in board units.
constexpr double SameLine = 4.0;

bool comesBefore(CellId a, CellId b) {
    const Point first = numberCentre(a);
    const Point second = numberCentre(b);
    if (std::abs(first.y - second.y) > SameLine)
        return first.y < second.y;
    return first.x < second.x;
}

template <class Better>
CellId bestSelectable(const Game& game, Better better) {
    CellId best;
    for (CellId cell : AllCells)
        if (game.isSelectable(cell) && (!best || better(cell, best)))
            best = cell;
    return best;
}

/// The cost of going from one cell to another in a direction; infinite when it lies the other way.
double stepCost(CellId from, CellId to, int columns, int rows) {
    const Point start = numberCentre(from);
    const Point end = numberCentre(to);
    const double dx = end.x - start.x;
    const double dy = end.y - start.y;
    const double ahead = dx * columns + dy * rows;
    const double aside = std::abs(dx * rows) + std::abs(dy * columns);
    if (ahead < SameLine)
        return std::numeric_limits<double>::infinity();
    return ahead + AsideWeight * aside;
}

} // namespace

CellId firstSelectable(const Game& game) {
    return bestSelectable(game, comesBefore);
}

CellId lastSelectable(const Game& game) {
    return bestSelectable(game, [](CellId a, CellId b) { return comesBefore(b, a); });
}

CellId cellBeside(const Game& game, CellId from, int columns, int rows) {
    if (!game.isSelectable(from))
        return columns + rows > 0 ? firstSelectable(game) : lastSelectable(game);
    const CellId nearest = bestSelectable(game, [&](CellId a, CellId b) {
        return stepCost(from, a, columns, rows) < stepCost(from, b, columns, rows);
    });
    return std::isinf(stepCost(from, nearest, columns, rows)) ? from : nearest;
}

} // namespace tessaly
