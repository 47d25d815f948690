#include "ui/drawing/board_surface.h"

#include "support/sample_appearances.h"
#include "support/sample_board.h"
#include "ui/drawing/board_renderer.h"
#include "ui/drawing/hexagon_tag.h"
#include "ui/drawing/qt_values.h"
#include "ui/golden_picture.h"

#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QPainter>

#include <cmath>
#include <random>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

constexpr QSize NaturalSize(506, 476);

BoardSurface surfaceOf(const Appearance& appearance, QSize size = NaturalSize) {
    BoardSurface surface;
    surface.setSize(size);
    surface.setAppearance(appearance);
    return surface;
}

QImage drawnAtOnce(const Board& board, const Appearance& appearance, QSize size = NaturalSize) {
    BoardSurface surface = surfaceOf(appearance, size);
    surface.DrawBoard(board);
    return surface.image();
}

/// The picture with the tags over it, as the window shows them.
QImage withTags(const BoardSurface& surface, const Board& board, const Appearance& appearance) {
    QImage picture = surface.image();
    QPainter painter(&picture);
    painter.setTransform(surface.boardToDevice());
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon)
        if (!board.isBlank(hexagon))
            drawTag(painter, toQt(tagRectangle(hexagon)), hexagon, appearance,
                    hexagon == 5   ? TagState::Hovered
                    : hexagon == 8 ? TagState::Pressed
                                   : TagState::Plain);
    return picture;
}

TEST(BoardSurface, LooksAsInTheKeptPictures) {
    Appearance wide = light(), narrow = light(), other = light(), split = light();
    wide.HexaBorderWidth = 5;
    narrow.HexaBorderWidth = 1;
    other.NumberFont = "DejaVu Sans";
    other.NumBorder = true;
    other.HexaBorderWidth = 3;
    split.SplitHexas = true;
    const Board played = sampleBoardInPlay();
    const struct {
        QString name;
        const Board& board;
        const Appearance& appearance;
        QSize size = NaturalSize;
    } rows[] = {{u"empty"_s, Board(), wide},
                {u"givens"_s, sampleBoard(), narrow},
                {u"marks"_s, played, light()},
                {u"smallest"_s, played, light(), {304, 286}},
                {u"dejavu"_s, played, other, {759, 700}},
                {u"split"_s, played, split},
                {u"dark"_s, played, dark()}};
    for (const auto& [name, board, appearance, size] : rows) {
        const QString font = QString::fromStdString(appearance.NumberFont);
        ASSERT_TRUE(QFontDatabase::families().contains(font)) << "script/bootstrap installs it";
        BoardSurface surface = surfaceOf(appearance, size);
        surface.DrawBoard(board);
        expectPicture(withTags(surface, board, appearance), u"board_pictures"_s, name);
    }
    BoardSurface surface = surfaceOf(light());
    surface.DrawSolution(played, RGB(0, 128, 0));
    expectPicture(surface.image(), u"board_pictures"_s, u"solution"_s);
}

TEST(BoardSurface, HexagonsDrawnInAnyOrderAndNumberGiveThePictureDrawnAtOnce) {
    std::mt19937 chance(1);
    for (const QSize size : {NaturalSize, QSize(304, 286), QSize(333, 900), QSize(777, 501)}) {
        Appearance appearance = light();
        appearance.SplitHexas = size.width() == 777;
        appearance.HexaBorderWidth = size.width() == 333 ? 5 : 2;
        BoardSurface surface = surfaceOf(appearance, size);
        EXPECT_EQ(surface.DrawHexagon(sampleBoard(), 3), QRect(QPoint(), size)) << "all of it";
        surface.DrawSolution(sampleBoard(), RGB(0, 128, 0));

        Board board = sampleBoardInPlay();
        board.BlankHex = 12;
        for (int i = 0; i < 400; ++i)
            surface.DrawHexagon(board, static_cast<int>(chance() % 22));
        for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon)
            surface.DrawHexagon(board, hexagon);
        EXPECT_EQ(surface.image(), drawnAtOnce(board, appearance, size)) << size.width();
    }
}

TEST(BoardSurface, OnlyTheReturnedRectangleChanges) {
    Board board = sampleBoardInPlay();
    BoardSurface surface = surfaceOf(light());
    surface.DrawBoard(board);
    const QImage before = surface.image();
    EXPECT_TRUE(surface.DrawHexagon(Board(), 20).isEmpty()) << "there is no such hexagon";
    board.CellNum[9][3] = "6";
    board.CellNum[10][3] = "123";
    const QRect changed = surface.DrawHexagon(board, 10);
    EXPECT_EQ(changed, QRect(199, 194, 108, 88));
    EXPECT_EQ(compare(before, before).pixels, 0);
    EXPECT_GT(compare(before, surface.image()).pixels, 10) << "marks are seen by expectPicture";
    QImage mended = surface.image();
    QPainter(&mended).drawImage(changed.topLeft(), before, changed);
    EXPECT_EQ(mended, before);
}

TEST(BoardSurface, HexagonsLieOnWholePixelsInThePicture) {
    for (int width = 127; width < 2200; width += 61)
        for (int height = 119; height < 1700; height += 97) {
            const QTransform toDevice = surfaceOf(light(), {width, height}).boardToDevice();
            for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon)
                for (Point corner : hexagonCorners(hexagon)) {
                    const QPointF p = toDevice.map(toQt(corner));
                    ASSERT_NEAR(p.x(), std::round(p.x()), 1e-6);
                    ASSERT_NEAR(p.y(), std::round(p.y()), 1e-6);
                    ASSERT_TRUE(QRectF(0, 0, width, height).contains(p)) << width << "x" << height;
                }
            ASSERT_NEAR(toDevice.m11() / toDevice.m22(), 1, 0.1);
        }
}

/// A picture in natural size of what `draw` does with a renderer.
template <class Draw>
QImage rendered(const Board& board, const Appearance& appearance, Draw draw) {
    QImage picture(NaturalSize, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    BoardRenderer renderer(painter, board, appearance);
    draw(renderer);
    return picture;
}

TEST(BoardRenderer, TheSolutionTakesThePlaceOfEntriesAndLeavesTheRestAlone) {
    Appearance appearance = light();
    appearance.HexaFillColour = White; // over which a smoothed edge rounds to the same
    const auto draw = [](BoardRenderer& renderer) { renderer.DrawBoard(); };
    const auto solve = [](BoardRenderer& renderer) {
        renderer.DrawBoard();
        renderer.DrawSolution(Black);
    };
    for (const char* font : {"Liberation Sans", "DejaVu Serif"}) {
        appearance.NumberFont = font;
        EXPECT_EQ(rendered(sampleBoardInPlay(), appearance, solve),
                  rendered(sampleBoard(), appearance, solve));
    }
    Board finished = sampleBoard();
    for (CellId cell : AllCells)
        finished.FixedCell[cell] = true;
    EXPECT_EQ(rendered(finished, light(), solve), rendered(finished, light(), draw));
}

TEST(BoardRenderer, AHexagonIsDrawnWithinItsBorderOnly) {
    const QRect area(197, 192, 112, 92);
    QImage picture = rendered(sampleBoardInPlay(), light(), [](BoardRenderer& renderer) {
        renderer.DrawHexagon(10);
        renderer.DrawHexagon(0);
        renderer.DrawHexagon(21);
    });
    QImage white = picture;
    white.fill(Qt::white);
    EXPECT_NE(picture.copy(area), white.copy(area));
    QPainter(&picture).fillRect(area, Qt::white);
    EXPECT_EQ(picture, white);
}

} // namespace
} // namespace tessaly
