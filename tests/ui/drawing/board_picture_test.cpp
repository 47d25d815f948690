#include "core/play/board_geometry.h"
#include "support/sample_appearances.h"
#include "support/sample_board.h"
#include "ui/drawing/board_surface.h"
#include "ui/drawing/hexagon_tag.h"
#include "ui/golden_picture.h"

#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QPainter>

namespace tessaly {
namespace {

/// The picture with the tags over it, as the window shows them.
QImage withTags(const BoardSurface& surface, const Board& board, const Appearance& appearance) {
    QImage picture = surface.image();
    QPainter painter(&picture);
    painter.setTransform(surface.boardToDevice());
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon) {
        const Rect tag = tagRectangle(hexagon);
        const TagState state = hexagon == 5   ? TagState::Hovered
                               : hexagon == 8 ? TagState::Pressed
                                              : TagState::Plain;
        if (!board.isBlank(hexagon))
            drawTag(painter, {tag.left, tag.top, tag.width(), tag.height()}, hexagon, appearance,
                    state);
    }
    return picture;
}

class BoardPicture : public testing::Test {
protected:
    void expectBoard(const QString& name, const Board& board, const Appearance& appearance,
                     QSize size = {506, 476}) {
        ASSERT_TRUE(
            QFontDatabase::families().contains(QString::fromStdString(appearance.NumberFont)))
            << "script/bootstrap installs " << appearance.NumberFont;
        surface.setSize(size);
        surface.setAppearance(appearance);
        surface.DrawBoard(board);
        expectPicture(withTags(surface, board, appearance), QStringLiteral("board_pictures"), name);
    }

    BoardSurface surface;
};

TEST_F(BoardPicture, Empty) {
    Appearance appearance = light();
    appearance.HexaBorderWidth = 5;
    expectBoard(QStringLiteral("empty"), Board(), appearance);
}

TEST_F(BoardPicture, Givens) {
    Appearance appearance = light();
    appearance.HexaBorderWidth = 1;
    expectBoard(QStringLiteral("givens"), sampleBoard(), appearance);
}

TEST_F(BoardPicture, NumbersAndMarks) {
    expectBoard(QStringLiteral("marks"), sampleBoardInPlay(), light());
}

TEST_F(BoardPicture, Smallest) {
    expectBoard(QStringLiteral("smallest"), sampleBoardInPlay(), light(), {304, 286});
}

TEST_F(BoardPicture, AnotherFontAndScale) {
    Appearance appearance = light();
    appearance.NumberFont = "DejaVu Sans";
    appearance.NumBorder = true;
    appearance.HexaBorderWidth = 3;
    expectBoard(QStringLiteral("dejavu"), sampleBoardInPlay(), appearance, {759, 700});
}

TEST_F(BoardPicture, Split) {
    Appearance appearance = light();
    appearance.SplitHexas = true;
    expectBoard(QStringLiteral("split"), sampleBoardInPlay(), appearance);
}

TEST_F(BoardPicture, Dark) {
    expectBoard(QStringLiteral("dark"), sampleBoardInPlay(), dark());
}

TEST_F(BoardPicture, Solution) {
    const Board board = sampleBoardInPlay();
    surface.setAppearance(light());
    surface.DrawSolution(board, RGB(0, 128, 0));
    expectPicture(surface.image(), QStringLiteral("board_pictures"), QStringLiteral("solution"));
}

TEST(GoldenPicture, OneMarkMoreIsADifference) {
    Board board = sampleBoardInPlay();
    BoardSurface surface;
    surface.setAppearance(light());
    surface.DrawBoard(board);
    const QImage before = surface.image();
    ASSERT_EQ(board.CellNum[1][5], "12");
    board.CellNum[1][5] = "112";
    surface.DrawHexagon(board, 1);
    EXPECT_EQ(compare(before, before).pixels, 0);
    EXPECT_GT(compare(before, surface.image()).pixels, 10);
}

} // namespace
} // namespace tessaly
