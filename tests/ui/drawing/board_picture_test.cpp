#include "ui/drawing/board_picture.h"

#include "support/sample_appearances.h"
#include "support/sample_board.h"
#include "ui/golden_picture.h"

#include <QBuffer>
#include <QPainter>
#include <QSvgGenerator>
#include <QSvgRenderer>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

struct BoardPictureTest : testing::Test {
    BoardPictureTest() {
        appearance.UserNumberColour = RGB(20, 60, 200); // can be read on white too
        noBlank.BlankHex = NoHexagon;
    }
    Appearance appearance = dark();
    Board played = sampleBoardInPlay();
    Board noBlank = sampleBoard();
};

TEST_F(BoardPictureTest, ACopyIsBlackOnWhiteAndNamesEveryHexagon) {
    for (const auto& [name, board, solution] : {std::tuple(u"copy-puzzle"_s, &played, false),
                                                {u"copy-solution"_s, &played, true},
                                                {u"copy-no-blank"_s, &noBlank, false}})
        expectPicture(drawImage({*board, appearance, solution}, 1), u"board_pictures"_s, name);
    EXPECT_EQ(appearanceOf({played, appearance}).UserNumberColour, RGB(20, 60, 200));
    appearance.UserNumberColour = RGB(240, 255, 200);
    appearance.SplitHexas = true;
    EXPECT_EQ(appearanceOf({played, appearance}).UserNumberColour, Black) << "unseen on white";
    EXPECT_FALSE(appearanceOf({played, appearance}).SplitHexas) << "white borders on white";
}

TEST_F(BoardPictureTest, VectorPicturesShowTheSame) {
    for (const bool solution : {false, true})
        for (const auto look : {BoardPicture::Look::Copy, BoardPicture::Look::Game}) {
            const BoardPicture picture{played, appearance, solution, look};
            QBuffer svg;
            QSvgGenerator generator;
            generator.setOutputDevice(&svg);
            generator.setSize({506, 476});
            generator.setViewBox(QRect(0, 0, 506, 476));
            QPainter painter(&generator);
            paintPicture(painter, picture);
            painter.end();
            const QImage expected = drawImage(picture, 2);
            QImage drawn(expected.size(), QImage::Format_RGB32);
            drawn.fill(Qt::white);
            painter.begin(&drawn);
            QSvgRenderer(svg.data()).render(&painter);
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
