#include "core/play/board_geometry.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

TEST(BoardGeometry, HexagonsAndNumbersStandWhereTheirAnchorsPutThem) {
    const std::array<Point, CellCount> first{
        {{199, 62}, {226, 18}, {280, 18}, {307, 62}, {280, 106}, {226, 106}}};
    EXPECT_EQ(hexagonCorners(1), first);
    EXPECT_EQ(hexagonBounds(14), (Rect{37, 282, 145, 370}));
    EXPECT_EQ(detail::rounded({2.5, -3.5}), (Point{2, -4})) << "halves go to the even number";
    EXPECT_NEAR(numberCentre({10, 2}).y, 238 - 2 * HalfHeight / 3, 1e-9);
    EXPECT_NEAR(numberCentre({10, 4}).x, 253 + HexagonSide / 2, 1e-9);
    EXPECT_NEAR(textPosition({10, 4}).y - numberCentre({10, 4}).y, 5, 1e-9);
    EXPECT_EQ(textPosition({10, 5}), numberCentre({10, 5}));
}

TEST(BoardGeometry, APointHitsTheCellWhoseRectangleHoldsIt) {
    const std::pair<Point, CellId> rows[] = {
        {{253, 30}, {1, 2}},                           // inside
        {{239.5, 18}, {1, 1}},                         // between two cells: the lower position
        {{253, 62}, {1, 2}},   {{253, 62.1}, {1, 5}},  // the upper and the lower cells
        {{253, 106}, {1, 5}},  {{253, 106.1}, {5, 2}}, // between hexagons: the lower one
        {{212.5, 90}, {1, 6}}, {{212.4, 90}, {2, 3}},
        {{212.5, 30}, {1, 1}}, {{212.4, 30}, {}}, // the rim, bounds included
        {{253, 458}, {19, 5}}, {{253, 458.1}, {}},
        {{253, 17.9}, {}},     {{1e9, -1e9}, {}}};
    for (const auto& [point, cell] : rows)
        EXPECT_EQ(cellAt(point), cell) << point.x << ", " << point.y;
    for (CellId cell : AllCells) {
        EXPECT_EQ(cellAt(numberCentre(cell)), cell);
        EXPECT_EQ(cellAt(marksCentre(cell)), cell);
        EXPECT_EQ(markerRectangle(cell).centre().x, numberCentre(cell).x);
        EXPECT_FALSE(tagRectangle(cell.hexagon).contains(numberCentre(cell)));
    }
}

} // namespace
} // namespace tessaly
