#include "core/play/board_geometry.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

TEST(BoardGeometry, HexagonsStandWhereTheirAnchorsPutThem) {
    const std::array<Point, CellCount> first{
        {{199, 62}, {226, 18}, {280, 18}, {307, 62}, {280, 106}, {226, 106}}};
    EXPECT_EQ(hexagonCorners(1), first);
    EXPECT_EQ(hexagonBounds(10), (Rect{199, 194, 307, 282}));
    EXPECT_EQ(hexagonBounds(14), (Rect{37, 282, 145, 370}));
    EXPECT_EQ(hexagonCentre(19), (Point{253, 414}));
}

TEST(BoardGeometry, HalvesGoToTheEvenNumber) {
    const Point p = detail::rounded({2.5, -3.5});
    EXPECT_EQ(p, (Point{2, -4}));
    EXPECT_EQ(detail::rounded({3.5, -0.4}), (Point{4, 0}));
    EXPECT_EQ(detail::rounded({-2.5, -2.6}), (Point{-2, -3}));
}

TEST(BoardGeometry, NumbersStandOnTheCentroidsOfTheirTriangles) {
    EXPECT_NEAR(numberCentre({10, 2}).x, 253, 1e-9);
    EXPECT_NEAR(numberCentre({10, 2}).y, 238 - 2 * HalfHeight / 3, 1e-9);
    EXPECT_NEAR(numberCentre({10, 4}).x, 253 + HexagonSide / 2, 1e-9);
    EXPECT_NEAR(numberCentre({10, 4}).y, 238 + HalfHeight / 3, 1e-9);
    EXPECT_NEAR(textPosition({10, 4}).y - numberCentre({10, 4}).y, 5, 1e-9);
    EXPECT_EQ(textPosition({10, 5}), numberCentre({10, 5}));
}

TEST(BoardGeometry, APointHitsTheCellWhoseRectangleHoldsIt) {
    struct Row {
        Point point;
        CellId cell;
    };
    const Row rows[] = {
        {{253, 30}, {1, 2}},    // inside
        {{239.5, 18}, {1, 1}},  // on the corner of cells 1 and 2: the lower position
        {{239.4, 61}, {1, 1}},  //
        {{253, 62}, {1, 2}},    // on the line between the upper and the lower cells
        {{253, 62.1}, {1, 5}},  //
        {{253, 106}, {1, 5}},   // on the side of hexagons 1 and 5: the lower hexagon
        {{253, 106.1}, {5, 2}}, //
        {{212.5, 90}, {1, 6}},  // on the side of hexagons 1 and 2
        {{212.4, 90}, {2, 3}},  //
        {{212.5, 30}, {1, 1}},  // the board's rim, bounds included
        {{212.4, 30}, {}},      //
        {{253, 458}, {19, 5}},  // the lowest line
        {{253, 458.1}, {}},     //
        {{253, 17.9}, {}},      //
        {{0, 0}, {}},           //
        {{1e9, -1e9}, {}},      //
    };
    for (const auto& [point, cell] : rows) {
        const CellId hit = cellAt(point);
        EXPECT_EQ(hit, cell) << point.x << ", " << point.y << " hit " << hit.hexagon << "/"
                             << hit.position;
    }
}

TEST(BoardGeometry, EveryCellIsHitWhereItsNumberStands) {
    for (CellId cell : AllCells) {
        EXPECT_EQ(cellAt(numberCentre(cell)), cell);
        EXPECT_EQ(cellAt(marksCentre(cell)), cell);
        EXPECT_EQ(markerRectangle(cell).centre().x, numberCentre(cell).x);
        EXPECT_FALSE(tagRectangle(cell.hexagon).contains(numberCentre(cell)));
    }
}

TEST(BoardGeometry, RectanglesTakeNothingFromEachOther) {
    for (CellId one : AllCells)
        for (CellId other : AllCells) {
            const Rect a = hitRectangle(one);
            const Rect b = hitRectangle(other);
            const bool apart = a.right <= b.left + 1e-9 || b.right <= a.left + 1e-9 ||
                               a.bottom <= b.top + 1e-9 || b.bottom <= a.top + 1e-9;
            EXPECT_TRUE(apart || one == other) << one.hexagon << "/" << one.position;
        }
}

} // namespace
} // namespace tessaly
