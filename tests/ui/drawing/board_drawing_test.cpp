// The board in every form that it is drawn in.

#include "support/sample_puzzles.h"
#include "ui/drawing/board_picture.h"
#include "ui/drawing/board_surface.h"
#include "ui/drawing/hexagon_tag.h"
#include "ui/drawing/qt_values.h"
#include "ui/golden_picture.h"

#include <QFontDatabase>
#include <QPainter>
#include <QPicture>

#include <cmath>
#include <random>

namespace tessaly::board_drawing_test {

using namespace Qt::StringLiterals;

Appearance light() {
    Appearance appearance;
    appearance.SchemeColours[slot::Background] = RGB(236, 233, 226);
    appearance.HexaFillColour = RGB(252, 251, 248);
    appearance.NumberFont = "Liberation Sans";
    return appearance;
}

Appearance dark() {
    Appearance appearance = light();
    appearance.SchemeColours[slot::Background] = RGB(32, 36, 44);
    appearance.HexaFillColour = RGB(48, 54, 66);
    appearance.HexaBorderColour = RGB(120, 130, 150);
    appearance.FixedNumberColour = RGB(240, 240, 240);
    appearance.UserNumberColour = RGB(120, 200, 255);
    return appearance;
}

constexpr QSize NaturalSize(506, 476);

BoardSurface surfaceOf(const Board& board, const Appearance& appearance, QSize size = NaturalSize) {
    BoardSurface surface;
    surface.setSize(size);
    surface.setAppearance(appearance);
    surface.DrawBoard(board);
    return surface;
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
        EXPECT_TRUE(hasDigits(font));
        const BoardSurface surface = surfaceOf(board, appearance, size);
        QImage picture = surface.image();
        QPainter painter(&picture);
        painter.setTransform(surface.boardToDevice());
        for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon)
            if (!board.isBlank(hexagon))
                drawTag(painter, toQt(tagRectangle(hexagon)), hexagon, appearance,
                        hexagon == 5   ? TagState::Hovered
                        : hexagon == 8 ? TagState::Pressed
                                       : TagState::Plain);
        expectPicture(picture, name);
    }
    BoardSurface surface = surfaceOf(played, light());
    surface.DrawSolution(played, RGB(0, 128, 0));
    expectPicture(surface.image(), u"solution"_s);
}

TEST(BoardSurface, HexagonsDrawnInAnyOrderAndNumberGiveThePictureDrawnAtOnce) {
    std::mt19937 chance(1);
    Board board = sampleBoardInPlay();
    board.BlankHex = 12;
    for (const QSize size : {NaturalSize, QSize(304, 286), QSize(333, 900), QSize(777, 501)}) {
        Appearance appearance = light();
        appearance.SplitHexas = size.width() == 777;
        appearance.HexaBorderWidth = size.width() == 333 ? 5 : 2;
        BoardSurface surface;
        surface.setSize(size);
        surface.setAppearance(appearance);
        EXPECT_EQ(surface.DrawHexagon(sampleBoard(), 3), QRect(QPoint(), size)) << "all of it";
        surface.DrawSolution(sampleBoard(), RGB(0, 128, 0));
        for (int i = 0; i < 400; ++i)
            surface.DrawHexagon(board, static_cast<int>(chance() % 22));
        for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon)
            surface.DrawHexagon(board, hexagon);
        EXPECT_EQ(surface.image(), surfaceOf(board, appearance, size).image()) << size.width();
    }
}

TEST(BoardSurface, OnlyTheReturnedRectangleChanges) {
    Board board = sampleBoardInPlay();
    BoardSurface surface = surfaceOf(board, light());
    const QImage before = surface.image();
    board.CellNum[9][3] = "6";
    board.CellNum[10][3] = "123";
    const QRect changed = surface.DrawHexagon(board, 10);
    EXPECT_GT(differingPixels(before, surface.image()), 10) << "marks are seen by expectPicture";
    QImage mended = surface.image();
    QPainter(&mended).drawImage(changed.topLeft(), before, changed);
    EXPECT_EQ(mended, before);
}

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
        expectPicture(drawImage({*board, appearance, solution}, 1), name);
    EXPECT_EQ(appearanceOf({played, appearance}).UserNumberColour, RGB(20, 60, 200));
    appearance.UserNumberColour = RGB(240, 255, 200);
    appearance.SplitHexas = true;
    EXPECT_EQ(appearanceOf({played, appearance}).UserNumberColour, Black) << "unseen on white";
    EXPECT_FALSE(appearanceOf({played, appearance}).SplitHexas) << "white borders on white";
}

TEST_F(BoardPictureTest, VectorPicturesShowTheSame) {
    // The smoothing differs along every line, so both are looked at from afar.
    const auto blurred = [](const QImage& image) {
        return image.scaled(253, 238, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    };
    for (const bool solution : {false, true})
        for (const auto look : {BoardPicture::Look::Copy, BoardPicture::Look::Game}) {
            const BoardPicture picture{played, appearance, solution, look};
            QPicture lines;
            QPainter painter(&lines);
            paintPicture(painter, picture);
            painter.end();
            const QImage expected = drawImage(picture, 2);
            QImage drawn(expected.size(), QImage::Format_RGB32);
            drawn.fill(Qt::white);
            painter.begin(&drawn);
            painter.scale(2, 2);
            painter.drawPicture(0, 0, lines);
            painter.end();
            EXPECT_LT(differingPixels(blurred(expected), blurred(drawn)), 60);
        }
}

TEST(SchemePalette, TakesItsColoursFromTheSlotsAndReadsOnEveryScheme) {
    using P = QPalette;
    Appearance worn;
    for (int level = 0; level <= 255; level += 15)
        for (const Colour menu : {RGB(level, level, level), Black, White, RGB(180, 30, 90)}) {
            worn.SchemeColours[slot::Background] = RGB(level, level, level);
            worn.SchemeColours[slot::Menu] = menu;
            worn.SchemeColours[slot::Button] = RGB(level, 255 - level, 128);
            const P palette = schemePalette(worn);
            EXPECT_EQ(toColour(palette.window().color()), worn.SchemeColours[slot::Background]);
            EXPECT_EQ(toColour(palette.button().color()), worn.SchemeColours[slot::Button]);
            EXPECT_NE(palette.color(P::Disabled, P::Text), palette.color(P::Active, P::Text));
            for (const auto& [text, ground, least] : {std::tuple{P::WindowText, P::Window, 4.5},
                                                      {P::Text, P::Base, 4.5},
                                                      {P::ButtonText, P::Button, 4.5},
                                                      {P::ToolTipText, P::ToolTipBase, 4.5},
                                                      {P::HighlightedText, P::Highlight, 4.5},
                                                      {P::Highlight, P::Base, 3.0},
                                                      {P::Link, P::Base, 4.5}})
                for (const auto& [group, share] : {std::pair{P::Active, 1.0}, {P::Disabled, 0.66}})
                    EXPECT_GE(contrastRatio(toColour(palette.color(group, text)),
                                            toColour(palette.color(group, ground))),
                              least * share)
                        << level << " role " << text;
        }
    EXPECT_STREQ(schemeLikeDesktop(QPalette(QColor(0xee, 0xee, 0xee))), DefaultScheme);
    EXPECT_STREQ(schemeLikeDesktop(QPalette(QColor(0x2a, 0x2a, 0x2e))), DarkScheme);
}

} // namespace tessaly::board_drawing_test
