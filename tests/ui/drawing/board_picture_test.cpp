#include "ui/drawing/board_picture.h"

#include "support/sample_appearances.h"
#include "support/sample_board.h"
#include "ui/golden_picture.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QPainter>
#include <QSvgGenerator>
#include <QSvgRenderer>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

/// Its user's numbers can be read on white too.
Appearance colourful() {
    Appearance appearance = dark();
    appearance.UserNumberColour = RGB(20, 60, 200);
    return appearance;
}

TEST(BoardPicture, ACopyIsBlackOnWhiteAndNamesEveryHexagon) {
    const Appearance appearance = colourful();
    const Board played = sampleBoardInPlay();
    Board noBlank = sampleBoard();
    noBlank.BlankHex = NoHexagon;
    expectPicture(drawImage({played, appearance}, 1), u"board_pictures"_s, u"copy-puzzle"_s);
    expectPicture(drawImage({played, appearance, true}, 1), u"board_pictures"_s,
                  u"copy-solution"_s);
    expectPicture(drawImage({noBlank, appearance}, 1), u"board_pictures"_s, u"copy-no-blank"_s);
}

TEST(BoardPicture, ACopyKeepsThePlayersColourWhereItIsSeenOnWhite) {
    Appearance appearance = colourful();
    const Board board;
    EXPECT_EQ(appearanceOf({board, appearance}).UserNumberColour, RGB(20, 60, 200));
    appearance.UserNumberColour = RGB(240, 255, 200);
    appearance.SplitHexas = true;
    EXPECT_EQ(appearanceOf({board, appearance}).UserNumberColour, Black);
    EXPECT_FALSE(appearanceOf({board, appearance}).SplitHexas) << "white borders on white";
}

TEST(BoardPicture, VectorPicturesShowTheSame) {
    const Appearance appearance = colourful();
    const Board board = sampleBoardInPlay();
    for (const bool solution : {false, true})
        for (const auto look : {BoardPicture::Look::Copy, BoardPicture::Look::Game}) {
            const BoardPicture picture{board, appearance, solution, look};
            QByteArray svg;
            QBuffer buffer(&svg);
            {
                QSvgGenerator generator;
                generator.setOutputDevice(&buffer);
                generator.setSize({506, 476});
                generator.setViewBox(QRect(0, 0, 506, 476));
                QPainter painter(&generator);
                paintPicture(painter, picture);
            }
            const QImage expected = drawImage(picture, 2);
            QImage drawn(expected.size(), QImage::Format_RGB32);
            drawn.fill(Qt::white);
            QPainter painter(&drawn);
            QSvgRenderer(svg).render(&painter);
            painter.end();
            // The smoothing differs along every line, so both are looked at from afar.
            const auto blurred = [](const QImage& image) {
                return image.scaled(253, 238, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            };
            EXPECT_LT(compare(blurred(expected), blurred(drawn)).pixels, 60);
        }
}

} // namespace
} // namespace tessaly
