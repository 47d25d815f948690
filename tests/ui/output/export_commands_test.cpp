#include "ui/output/export_commands.h"

#include "core/board/puzzle_record.h"
#include "support/sample_appearances.h"
#include "support/sample_board.h"
#include "ui/drawing/board_picture.h"
#include "ui/game_window.h"
#include "ui/golden_picture.h"

#include <QAction>
#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
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

TEST(CopyPicture, IsBlackOnWhite) {
    const Appearance appearance = colourful();
    const Board board = sampleBoardInPlay();
    expectPicture(drawImage({board, appearance}, 1), u"board_pictures"_s, u"copy-puzzle"_s);
    expectPicture(drawImage({board, appearance, true}, 1), u"board_pictures"_s, u"copy-solution"_s);
    EXPECT_EQ(appearance, colourful());
}

TEST(CopyPicture, WithoutABlankHexagonEveryHexagonHasItsNumber) {
    const Appearance appearance = colourful();
    Board board = sampleBoard();
    board.BlankHex = NoHexagon;
    expectPicture(drawImage({board, appearance}, 1), u"board_pictures"_s, u"copy-no-blank"_s);
}

TEST(CopyPicture, KeepsThePlayersColourWhereItIsSeenOnWhite) {
    Appearance appearance = colourful();
    const Board board;
    EXPECT_EQ(appearanceOf({board, appearance}).UserNumberColour, RGB(20, 60, 200));
    appearance.UserNumberColour = RGB(240, 255, 200);
    EXPECT_EQ(appearanceOf({board, appearance}).UserNumberColour, Black);
    appearance.SplitHexas = true;
    EXPECT_EQ(appearanceOf({board, appearance}).SchemeColours[slot::Background], White);
}

TEST(CopyPicture, VectorPicturesShowTheSame) {
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

class Copying : public testing::Test {
protected:
    Copying() { game.window->files().load(game.folder.puzzles("hard.txt"), 2); }

    static const QMimeData& clipboard() { return *QGuiApplication::clipboard()->mimeData(); }
    static QImage picture() { return qvariant_cast<QImage>(clipboard().imageData()); }
    void choose(const QString& item) { game.find<QAction>(item).trigger(); }

    GameWindow game;
};

TEST_F(Copying, PutsPictureAndRecordOnTheClipboard) {
    const Appearance appearance = game.session.appearance;
    const QImage window = game.window->grab().toImage();
    choose(u"mnuclippuz"_s);
    const QImage puzzle = picture();
    const Board& board = game.session.game.board;
    EXPECT_EQ(puzzle, drawImage({board, appearance}, 2));
    EXPECT_EQ(clipboard().text().toStdString(), PuzzleRecord(board));
    choose(u"mnuclippuz"_s);
    EXPECT_EQ(picture(), puzzle) << "copied twice";
    choose(u"mnuclipsol"_s);
    EXPECT_NE(picture(), puzzle);
    EXPECT_EQ(picture(), drawImage({board, appearance, true}, 2));
    EXPECT_EQ(clipboard().text().toStdString(), PuzzleRecord(board));
    EXPECT_EQ(game.session.appearance, appearance);
    game.window->files().goTo(2); // takes the message away
    EXPECT_EQ(game.window->grab().toImage(), window);
}

TEST_F(Copying, WritesTheWindowAsBitmapOrPng) {
    const QImage window = game.window->grab().toImage();
    const auto copyTo = [&](const std::string& name) {
        game.fileDialogs.add(QString::fromStdString(game.folder.path() + name));
        choose(u"mnucapwin"_s);
    };
    const auto pictureIn = [&](const std::string& name, const char* format) {
        return QImage(QString::fromStdString(game.folder.path() + name), format)
            .convertToFormat(window.format());
    };
    copyTo("window.bmp");
    EXPECT_EQ(game.prompts.shown.back(),
              (ScriptedPrompts::Message{game.folder.path() + "window.bmp", "vbok"}));
    EXPECT_EQ(pictureIn("window.bmp", "BMP"), window);
    const FileQuestion& asked = game.fileDialogs.asked.back();
    EXPECT_EQ(asked.title, u"Select destination file for a bitmap copy of this puzzle"_s);
    EXPECT_EQ(asked.kind, u"Facetto Bitmap Files (*.bmp)"_s);
    EXPECT_EQ(asked.folder.toStdString(), game.folder.path());
    EXPECT_TRUE(game.fileDialogs.asked.back().saving);
    copyTo("window.PNG");
    EXPECT_EQ(pictureIn("window.PNG", "PNG"), window);
    game.prompts.answers = {answer::No};
    copyTo("window");
    EXPECT_EQ(game.prompts.shown.back().text,
              "OverWrite file: " + game.folder.path() + "window.bmp ?");
}

TEST_F(Copying, AsksBeforeAPictureReplacesAFile) {
    const std::string path = game.folder.path() + "old.bmp";
    const auto copy = [&] {
        game.fileDialogs.add(QString::fromStdString(path));
        choose(u"mnucapwin"_s);
    };
    test::put(path, "old");
    game.prompts.answers = {answer::No};
    copy();
    EXPECT_EQ(game.prompts.shown.back(),
              (ScriptedPrompts::Message{"OverWrite file: " + path + " ?", "vbyesno+vbquestion"}));
    EXPECT_EQ(test::contentOf(path), "old");
    game.prompts.answers = {answer::Yes};
    copy();
    EXPECT_FALSE(QImage(QString::fromStdString(path)).isNull());
    test::put(path, "");
    copy(); // an empty file is nothing to ask about
    EXPECT_FALSE(QImage(QString::fromStdString(path)).isNull());

    game.fileDialogs.add(u"/nowhere/out.bmp"_s);
    choose(u"mnucapwin"_s);
    EXPECT_EQ(game.prompts.shown.back().style, "vbok+vbcritical");
    const auto before = game.prompts.shown.size();
    game.fileDialogs.add({});
    choose(u"mnucapwin"_s);
    EXPECT_EQ(game.prompts.shown.size(), before);
}

} // namespace
} // namespace tessaly
