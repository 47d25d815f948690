#include "ui/window/file_drop.h"

#include "ui/game_window.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QUrl>

namespace tessaly {
namespace {

struct FileDropTest : testing::Test {
    /// Drags what `encodedUrls` name onto the window and lets it go there, if it is welcome.
    bool dropped(const QList<QByteArray>& encodedUrls, Qt::DropActions actions = Qt::CopyAction) {
        QMimeData data;
        QList<QUrl> urls;
        for (const QByteArray& url : encodedUrls)
            urls << QUrl::fromEncoded(url);
        data.setUrls(urls);
        const QPoint place(50, 50);
        QDragEnterEvent enter(place, actions, &data, Qt::LeftButton, Qt::NoModifier);
        enter.setDropAction(Qt::MoveAction);
        enter.ignore();
        QApplication::sendEvent(game.window.get(), &enter);
        if (!enter.isAccepted())
            return false;
        EXPECT_EQ(enter.dropAction(), Qt::CopyAction) << "the file stays with who gives it";
        QDropEvent drop(place, actions, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(game.window.get(), &drop);
        EXPECT_EQ(game.session.puzzle.PuzNum, 0) << "not before the drop is over";
        QApplication::processEvents();
        return true;
    }
    static QByteArray urlOf(const std::string& path) {
        return QUrl::fromLocalFile(QString::fromStdString(path)).toEncoded();
    }
    GameWindow game;
    const std::string easy = game.folder.puzzles("easy.txt");
};

TEST_F(FileDropTest, APuzzleFileIsLoadedWhateverItsName) {
    const std::string odd = game.folder.puzzles("easy.txt", "50% \"of\"\n#1? ü.dat");
    EXPECT_TRUE(dropped({urlOf(odd)}, Qt::CopyAction | Qt::MoveAction));
    EXPECT_EQ(game.session.puzzle.PuzPath, odd);
    game.session.puzzle = {};
    EXPECT_TRUE(dropped({"file://localhost" + QByteArray::fromStdString(easy)}));
    EXPECT_EQ(game.session.puzzle.PuzPath, easy);
}

TEST_F(FileDropTest, WhatIsNotOneFileOfThisComputerIsRefused) {
    const QByteArray good = urlOf(easy);
    const QByteArray folder = QByteArray::fromStdString(game.folder.path());
    for (const QList<QByteArray>& urls : {QList<QByteArray>{},
                                          {good, good},
                                          {"file://" + folder},
                                          {"file://" + folder + "gone.txt"},
                                          {"file://elsewhere" + QByteArray::fromStdString(easy)},
                                          {"https://tessaly.example/easy.txt"}})
        EXPECT_FALSE(dropped(urls)) << urls.join(' ').toStdString();
    EXPECT_FALSE(dropped({good}, Qt::MoveAction));
    for (const char* name : {"caf\xe9.txt", "caf%E9.txt"})
        game.folder.puzzles("easy.txt", name);
    EXPECT_TRUE(dropped({"file://" + folder + "caf%E9.txt"}));
    EXPECT_EQ(game.session.puzzle.PuzPath, game.folder.path() + "caf\xe9.txt") << "no other one";
    QDialog dialog(game.window.get());
    dialog.setModal(true);
    dialog.show();
    EXPECT_FALSE(dropped({good})) << "a dialog is open";
}

} // namespace
} // namespace tessaly
