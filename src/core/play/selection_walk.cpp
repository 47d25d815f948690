#include "core/play/selection_walk.h"

#include "core/play/board_geometry.h"

#include <cmath>
#include <limits>
#include <tuple>

namespace tessaly {
namespace {

/// How much a step aside weighs against a step ahead: large enough to keep to a line of cells, and
/// so small that the next column of hexagons, half a hexagon up or down, is not jumped over.
constexpr double AsideWeight = 2.0;
constexpr double AsideWeightOfHexagons = 1.5;

/// Cells whose centres differ by less than this in height stand in one line, in board units.
constexpr double SameLine = 4.0;

bool comesBefore(CellId a, CellId b) {
    const Point first = numberCentre(a);
    const Point second = numberCentre(b);
    if (std::abs(first.y - second.y) > SameLine)
        return first.y < second.y;
    return first.x < second.x;
}

template <class Wanted, class Better>
CellId bestCell(Wanted isWanted, Better better) {
    CellId best;
    for (CellId cell : AllCells)
        if (isWanted(cell) && (!best || better(cell, best)))
            best = cell;
    return best;
}

template <class Better>
CellId bestSelectable(const Game& game, Better better) {
    return bestCell([&game](CellId cell) { return game.isSelectable(cell); }, better);
}

/// The cost of going from one point to another in a direction; infinite when it lies the other way.
double stepCost(Point start, Point end, int columns, int rows, double asideWeight = AsideWeight) {
    const double dx = end.x - start.x;
    const double dy = end.y - start.y;
    const double ahead = dx * columns + dy * rows;
    const double aside = std::abs(dx * rows) + std::abs(dy * columns);
    if (ahead < SameLine)
        return std::numeric_limits<double>::infinity();
    return ahead + asideWeight * aside;
}

} // namespace

CellId firstSelectable(const Game& game) {
    return bestSelectable(game, comesBefore);
}

CellId lastSelectable(const Game& game) {
    return bestSelectable(game, [](CellId a, CellId b) { return comesBefore(b, a); });
}

CellId cellBeside(const Game& game, CellId from, int columns, int rows) {
    if (!game.isReadable(from))
        return columns + rows > 0 ? firstSelectable(game) : lastSelectable(game);
    const auto cost = [&](CellId to) {
        return stepCost(numberCentre(from), numberCentre(to), columns, rows);
    };
    const CellId nearest = bestCell([&game](CellId cell) { return game.isReadable(cell); },
                                    [&](CellId a, CellId b) { return cost(a) < cost(b); });
    return std::isinf(cost(nearest)) ? from : nearest;
}

int hexagonBeside(const Board& board, int from, int columns, int rows) {
    int nearest = from;
    double least = std::numeric_limits<double>::infinity();
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon) {
        const double cost = stepCost(hexagonCentre(from), hexagonCentre(hexagon), columns, rows,
                                     AsideWeightOfHexagons);
        if (cost < least && !board.isBlank(hexagon)) {
            nearest = hexagon;
            least = cost;
        }
    }
    return nearest;
}

} // namespace tessaly
