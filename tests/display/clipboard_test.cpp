#include "core/board/puzzle_record.h"
#include "ui/drawing/board_picture.h"
#include "ui/game_window.h"

#include <QEventLoop>
#include <QProcess>

namespace tessaly::clipboard_test {

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
        << kind.toStdString() << ": " << reader.readAllStandardError().toStdString();
    return reader.readAllStandardOutput();
}

TEST(Clipboard, AnotherProgramReadsPictureAndRecord) {
    GameWindow game("hard.txt", 2);
    const Board& board = game.session.game.board;
    for (const auto& [item, solution] :
         {std::pair(u"mnuclippuz"_s, false), {u"mnuclipsol"_s, true}}) {
        game.choose(item);
        const QImage expected = drawImage({board, game.session.appearance, solution}, 2);
        for (const QString& format : {u"bmp"_s, u"png"_s})
            EXPECT_EQ(QImage::fromData(readByAnother(u"image/"_s + format))
                          .convertToFormat(expected.format()),
                      expected);
        for (const QString& kind : {u"UTF8_STRING"_s, u"text/plain"_s, u"STRING"_s})
            EXPECT_EQ(readByAnother(kind).toStdString(), PuzzleRecord(board));
    }
}

} // namespace tessaly::clipboard_test
