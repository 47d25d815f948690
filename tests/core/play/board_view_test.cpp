// What is seen of the board: where it lies, how it is drawn, and what is said of it in words.

#include "core/play/board_geometry.h"
#include "core/play/board_style.h"
#include "core/play/cell_description.h"

#include <gtest/gtest.h>

#include <limits>

namespace tessaly::board_view_test {

TEST(BoardGeometry, HexagonsAndNumbersStandWhereTheirAnchorsPutThem) {
    const std::array<Point, CellCount> first{
        {{199, 62}, {226, 18}, {280, 18}, {307, 62}, {280, 106}, {226, 106}}};
    EXPECT_EQ(hexagonCorners(1), first);
    EXPECT_EQ(hexagonBounds(14), (Rect{37, 282, 145, 370}));
    EXPECT_EQ(detail::rounded({2.5, -3.5}), (Point{2, -4})) << "halves go to the even number";
    EXPECT_NEAR(numberCentre({10, 2}).y, 238 - 2 * HalfHeight / 3, 1e-9);
    EXPECT_NEAR(textPosition({10, 4}).y - numberCentre({10, 4}).y, 5, 1e-9);
}

TEST(BoardGeometry, APointHitsTheCellWhoseRectangleHoldsIt) {
    const std::pair<Point, CellId> rows[] = {
        {{253, 30}, {1, 2}},   {{239.5, 18}, {1, 1}},  // between two cells: the lower position
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

TEST(BoardStyle, MarksStandRightAlignedInTwoRows) {
    const std::pair<std::string, std::string> rows[] = {{"", "......"},       {"4", "n4"},
                                                        {"0", "n0"},          {"35", "....35"},
                                                        {"123456", "123456"}, {"x", "......"}};
    for (const auto& [entry, expected] : rows) {
        std::string places(MarkPlaces, '.'); // or "n" and the number
        layOutEntry(
            entry, [&](int digit) { places = "n" + std::to_string(digit); },
            [&](int digit, int place) {
                places[static_cast<std::size_t>(place)] = static_cast<char>('0' + digit);
            });
        EXPECT_EQ(places, expected);
    }
}

TEST(BoardStyle, PaperIsBorderedByItsOwnWidthAndSignsAreSeenOnEveryFill) {
    Appearance appearance;
    for (const auto& [from, to] : hatchLines(10))
        EXPECT_NEAR(from.x + from.y, to.x + to.y, 1e-9) << "at 45 degrees";
    appearance.PrintLineWidth = 3;
    EXPECT_EQ(paperStyle(appearance).borderWidth, 3);
    appearance.PrintLineWidth = std::numeric_limits<int>::max();
    EXPECT_LT(paperStyle(appearance).borderWidth, 20) << "room for the cells is kept";
    // Solution and marker are seen on every fill; they are green (0, 128, 0) and red (255, 0, 0).
    for (const auto& [fill, solution, marker] : {std::tuple{White, RGB(0, 128, 0), RGB(255, 0, 0)},
                                                 {RGB(0, 128, 0), White, White},
                                                 {RGB(250, 150, 20), Black, Black}}) {
        appearance.HexaFillColour = fill;
        EXPECT_EQ(solutionColour(appearance), solution) << fill;
        EXPECT_EQ(markerColour(appearance), marker) << fill;
    }
}

TEST(CellDescription, SaysWhereACellLiesWhatItHoldsAndWhatLiesAcross) {
    Board board;
    board.BlankHex = 7;
    board.CellNum[3] = {"", "352", "4", "", "6", "", ""};
    board.FixedCell[3][2] = true;
    board.CellNum[7][1] = "2";
    const std::pair<CellId, std::string> rows[] = {{{3, 1}, "marks 3 5 2"},
                                                   {{3, 2}, "given 4"},
                                                   {{3, 3}, "empty"},
                                                   {{3, 4}, "6"},
                                                   {{7, 1}, "withheld"}};
    for (const auto& [cell, words] : rows)
        EXPECT_EQ(entryInWords(board, cell), words);
    EXPECT_EQ(cellInWords({1, 1}), "hexagon 1, upper left");
    EXPECT_EQ(cellInWords({19, 4}), "hexagon 19, lower right");
    board.CellNum[5][2] = "6";
    EXPECT_EQ(neighbourInWords(board, {1, 5}), "across: hexagon 5, top, 6");
    EXPECT_EQ(neighbourInWords(board, {1, 2}), "at the edge");
    EXPECT_EQ(hexagonInWords(board, 3),
              "hexagon 3: upper left marks 3 5 2, top given 4, upper right "
              "empty, lower right 6, bottom empty, lower left empty");
    EXPECT_EQ(missingInWords(board, 3), "missing 1 2 3 5");
    board.CellNum[4] = {"", "1", "2", "3", "4", "5", "6"};
    EXPECT_EQ(missingInWords(board, 4), "missing nothing");
    EXPECT_EQ(changesInWords(board, {{3, 1}, {5, 2}}, {3, 1}), "marks 3 5 2; hexagon 5, top, 6");
    EXPECT_EQ(changesInWords(board, std::vector<CellId>(7), {}), "7 cells changed");
}

} // namespace tessaly::board_view_test
