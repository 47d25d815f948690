#include "core/board/puzzle_record.h"
#include "ui/drawing/board_picture.h"
#include "ui/game_window.h"

#include <QAction>
#include <QEventLoop>
#include <QImage>
#include <QProcess>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

/// The clipboard as another program reads it, in one of the kinds that are offered. The game gives
/// it away piece by piece, so its events are handled meanwhile.
QByteArray readByAnother(const QString& kind) {
    QProcess reader;
    QEventLoop loop;
    QObject::connect(&reader, &QProcess::finished, &loop, &QEventLoop::quit);
    QObject::connect(&reader, &QProcess::errorOccurred, &loop, &QEventLoop::quit);
    QTimer::singleShot(std::chrono::seconds(20), &loop, &QEventLoop::quit);
    reader.start(u"xclip"_s, {u"-selection"_s, u"clipboard"_s, u"-out"_s, u"-target"_s, kind});
    loop.exec();
    EXPECT_TRUE(reader.state() == QProcess::NotRunning && reader.exitCode() == 0)
        << kind.toStdString() << ": " << reader.readAllStandardError().toStdString()
        << reader.errorString().toStdString();
    return reader.readAllStandardOutput();
}

QImage pictureReadByAnother(const char* format) {
    const QString kind = u"image/"_s + QString::fromLatin1(format);
    return QImage::fromData(readByAnother(kind), format).convertToFormat(QImage::Format_RGB32);
}

TEST(Clipboard, AnotherProgramReadsPictureAndRecord) {
    GameWindow game;
    game.window->files().load(game.folder.puzzles("hard.txt"), 2);
    const Board& board = game.session.game.board;
    const auto expected = [&](bool solution) {
        return drawImage({board, game.session.appearance, solution}, 2)
            .convertToFormat(QImage::Format_RGB32);
    };
    const auto copy = [&](const QString& item) { game.find<QAction>(item).trigger(); };

    copy(u"mnuclippuz"_s);
    const QByteArray first = readByAnother(u"image/png"_s);
    EXPECT_EQ(pictureReadByAnother("png"), expected(false));
    EXPECT_EQ(pictureReadByAnother("bmp"), expected(false));
    for (const auto& kind : {u"UTF8_STRING"_s, u"text/plain"_s, u"STRING"_s})
        EXPECT_EQ(readByAnother(kind).toStdString(), PuzzleRecord(board));
    copy(u"mnuclippuz"_s);
    EXPECT_EQ(readByAnother(u"image/png"_s), first) << "copied twice";

    copy(u"mnuclipsol"_s);
    EXPECT_EQ(pictureReadByAnother("png"), expected(true));
    EXPECT_NE(expected(true), expected(false));
    EXPECT_EQ(readByAnother(u"UTF8_STRING"_s).toStdString(), PuzzleRecord(board));
}

} // namespace
} // namespace tessaly
