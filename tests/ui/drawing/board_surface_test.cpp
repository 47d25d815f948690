#include "ui/drawing/board_surface.h"

#include "core/play/board_geometry.h"
#include "support/sample_appearances.h"
#include "support/sample_board.h"
#include "ui/drawing/board_renderer.h"

#include <gtest/gtest.h>

#include <QPainter>

#include <cmath>
#include <random>

namespace tessaly {
namespace {

const QSize Sizes[] = {{506, 476}, {304, 286}, {333, 900}, {777, 501}, {1012, 952}};

QImage drawnAtOnce(const Board& board, const Appearance& appearance, QSize size) {
    BoardSurface surface;
    surface.setSize(size);
    surface.setAppearance(appearance);
    surface.DrawBoard(board);
    return surface.image();
}

TEST(BoardSurface, HexagonsDrawnInAnyOrderAndNumberGiveThePictureDrawnAtOnce) {
    std::mt19937 chance(1);
    for (const QSize size : Sizes) {
        Appearance appearance = light();
        appearance.SplitHexas = size.width() == 777;
        appearance.HexaBorderWidth = size.width() == 333 ? 5 : 2;
        Board board = sampleBoard();
        BoardSurface surface;
        surface.setSize(size);
        surface.setAppearance(appearance);
        surface.DrawBoard(board);

        board = sampleBoardInPlay();
        board.BlankHex = 12;
        for (int i = 0; i < 400; ++i)
            surface.DrawHexagon(board, static_cast<int>(chance() % 22));
        for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon)
            surface.DrawHexagon(board, hexagon);

        EXPECT_EQ(surface.image(), drawnAtOnce(board, appearance, size)) << size.width();
    }
}

TEST(BoardSurface, OnlyTheReturnedRectangleChanges) {
    Board board = sampleBoard();
    BoardSurface surface;
    surface.setAppearance(light());
    surface.DrawBoard(board);
    const QImage before = surface.image();
    board.CellNum[10][3] = "123456";
    board.CellNum[9][3] = "6";

    const QRect changed = surface.DrawHexagon(board, 10);

    EXPECT_EQ(changed, QRect(199, 194, 108, 88));
    EXPECT_NE(surface.image().copy(changed), before.copy(changed));
    QImage mended = surface.image();
    QPainter(&mended).drawImage(changed.topLeft(), before, changed);
    EXPECT_EQ(mended, before);
}

TEST(BoardSurface, ThereIsNoHexagonOutsideOneToNineteen) {
    BoardSurface surface;
    surface.DrawBoard(sampleBoard());
    const QImage before = surface.image();
    for (int hexagon : {-1, 0, 20, 21, 99})
        EXPECT_TRUE(surface.DrawHexagon(Board(), hexagon).isEmpty());
    EXPECT_EQ(surface.image(), before);
}

TEST(BoardSurface, ANewSizeOrAppearanceDrawsEverything) {
    const Board board = sampleBoardInPlay();
    BoardSurface surface;
    surface.setSize({600, 600});
    EXPECT_EQ(surface.DrawHexagon(board, 3), QRect(0, 0, 600, 600));
    surface.setAppearance(light());
    EXPECT_EQ(surface.DrawHexagon(board, 3), QRect(0, 0, 600, 600));
    EXPECT_EQ(surface.image(), drawnAtOnce(board, light(), {600, 600}));
}

TEST(BoardSurface, TheNextDrawingRemovesTheSolution) {
    const Board board = sampleBoardInPlay();
    BoardSurface surface;
    surface.setAppearance(light());
    surface.DrawBoard(board);
    const QImage before = surface.image();
    surface.DrawSolution(board, RGB(0, 128, 0));
    EXPECT_NE(surface.image(), before);
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon)
        surface.DrawHexagon(board, hexagon);
    EXPECT_EQ(surface.image(), before);
}

TEST(BoardSurface, HexagonsLieOnWholePixelsInThePicture) {
    for (int width = 127; width < 2200; width += 61)
        for (int height = 119; height < 1700; height += 97) {
            BoardSurface surface;
            surface.setSize({width, height});
            const QTransform toDevice = surface.boardToDevice();
            for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon)
                for (Point corner : hexagonCorners(hexagon)) {
                    const QPointF p = toDevice.map(QPointF(corner.x, corner.y));
                    ASSERT_NEAR(p.x(), std::round(p.x()), 1e-6);
                    ASSERT_NEAR(p.y(), std::round(p.y()), 1e-6);
                    ASSERT_TRUE(QRectF(0, 0, width, height).contains(p)) << width << "x" << height;
                }
            ASSERT_NEAR(toDevice.m11() / toDevice.m22(), 1, 0.1);
        }
}

TEST(BoardSurface, TheBlankHexagonIsSolidWithoutTextOrLines) {
    Appearance appearance = light();
    appearance.HexaBorderColour = RGB(10, 60, 110);
    Board board = sampleBoard();
    board.BlankHex = 99;
    board.SkipHex = 8;
    const QImage picture = drawnAtOnce(board, appearance, {506, 476});
    const Rect bounds = hexagonBounds(8);
    const QRect inside(static_cast<int>(bounds.left) + 27, static_cast<int>(bounds.top),
                       static_cast<int>(bounds.width()) - 2 * 27,
                       static_cast<int>(bounds.height()));
    for (int y = inside.top(); y <= inside.bottom(); ++y)
        for (int x = inside.left(); x <= inside.right(); ++x)
            ASSERT_EQ(picture.pixelColor(x, y), QColor(10, 60, 110)) << x << ", " << y;
}

/// A picture in natural size of what `draw` does with a renderer.
template <class Draw>
QImage rendered(const Board& board, const Appearance& appearance, Draw draw) {
    QImage picture(506, 476, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    BoardRenderer renderer(painter, board, appearance);
    draw(renderer);
    return picture;
}

TEST(BoardRenderer, TheSolutionTakesThePlaceOfEntries) {
    Appearance appearance = light();
    appearance.HexaFillColour = RGB(255, 255, 255); // over which a smoothed edge rounds to the same
    for (const char* font : {"Liberation Sans", "DejaVu Serif"}) {
        appearance.NumberFont = font;
        const auto solve = [](BoardRenderer& renderer) {
            renderer.DrawBoard();
            renderer.DrawSolution(Black);
        };
        EXPECT_EQ(rendered(sampleBoardInPlay(), appearance, solve),
                  rendered(sampleBoard(), appearance, solve));
    }
}

TEST(BoardRenderer, TheSolutionLeavesGivensAndTheBlankHexagonAlone) {
    const Board board = sampleBoard();
    Board finished = board;
    for (CellId cell : AllCells)
        finished.FixedCell[cell] = true;
    const auto draw = [](BoardRenderer& renderer) { renderer.DrawBoard(); };
    const auto solve = [](BoardRenderer& renderer) {
        renderer.DrawBoard();
        renderer.DrawSolution(RGB(0, 128, 0));
    };
    EXPECT_NE(rendered(board, light(), solve), rendered(board, light(), draw));
    EXPECT_EQ(rendered(finished, light(), solve), rendered(finished, light(), draw));
}

TEST(BoardRenderer, AHexagonIsDrawnWithinItsBorderOnly) {
    const Board board = sampleBoardInPlay();
    const auto one = [](BoardRenderer& renderer) {
        renderer.DrawHexagon(10);
        renderer.DrawHexagon(0);
        renderer.DrawHexagon(21);
    };
    QImage picture = rendered(board, light(), one);
    const QImage inner = picture.copy(197, 192, 112, 92);
    QImage blank = inner;
    blank.fill(Qt::white);
    EXPECT_NE(inner, blank);
    QPainter(&picture).drawImage(197, 192, blank);
    QImage white = picture;
    white.fill(Qt::white);
    EXPECT_EQ(picture, white);
}

} // namespace
} // namespace tessaly
