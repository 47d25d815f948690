#include "core/files/locked_file.h"

#include "core/play/selection_walk.h"
#include "ui/window/file_drop.h"

#include "ui/game_window.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QUrl>

namespace tessaly::main_window_test {

struct MainWindow : testing::Test {
    /// The file, the puzzle's number, how many there are, and the difficulty as they are shown.
    QString shown() {
        return game.text(u"PuzFileName"_s) + u": "_s + game.number() + game.text(u"puznumber"_s) +
               u' ' + game.find<BoxControl>(u"DifLab"_s).text();
    }
    bool isVisible(const QString& item) { return game.find<QAction>(item).isVisible(); }
    GameWindow game;
};

TEST_F(MainWindow, ShowsWhichPuzzleOfWhichFileIsOnTheBoard) {
    QWidget& numberBox = game.find(u"PuzNumNow"_s);
    EXPECT_EQ(shown(), u"Create a New Puzzle:  Random"_s);
    EXPECT_FALSE(isVisible(u"mnusaveto"_s) || isVisible(u"oldfiles_0"_s));
    const QString path = QString::fromStdString(game.folder.puzzles("easy.txt"));
    game.fileDialogs.add(path);
    game.click(u"cmdload"_s);
    EXPECT_EQ(shown(), u"easy.txt: 1 of 40 Easy"_s);
    EXPECT_EQ(game.find(u"PuzFileName"_s).toolTip(), path);
    EXPECT_TRUE(isVisible(u"mnusaveto"_s) && isVisible(u"oldfiles_0"_s));
    EXPECT_FALSE(game.find(u"Celltags_7"_s).isVisible()) << "the blank hexagon's tag is hidden";
    for (const auto& [arrow, number] :
         {std::pair(u"cmdarrow_0"_s, u"40"_s), {u"cmdarrow_1"_s, u"1"_s}}) {
        game.click(arrow);
        EXPECT_EQ(game.number(), number);
    }
    numberBox.setFocus();
    QTest::keyClicks(&numberBox, u"7\r"_s);
    EXPECT_EQ(game.session.puzzle.PuzNum, 17);
    EXPECT_TRUE(game.board().hasFocus());
    QTest::keyClicks(&numberBox, u"9\r"_s);
    EXPECT_EQ(game.number(), u"17"_s) << "the box names what is shown";
    numberBox.setFocus();
    QTest::keyClicks(&numberBox, u"2"_s);
    game.pointAt(firstSelectable(game.session.game));
    EXPECT_TRUE(numberBox.hasFocus()) << "a crossing pointer takes no focus";
}

TEST_F(MainWindow, CreatesAPuzzleOfTheShownDifficulty) {
    for (const auto& [difficulty, count] : {std::pair(u"Easy"_s, 1), {u"Hard"_s, 2}}) {
        game.click(u"DifLab"_s);
        game.click(u"cmdcreate"_s);
        EXPECT_EQ(game.message(), u"New Puzzle Created (%1)"_s.arg(difficulty));
        EXPECT_TRUE(shown().endsWith(u": %1 of %1 %2"_s.arg(count).arg(difficulty)));
    }
    game.click(u"DifLab"_s);
    game.choose(u"mnucreaten_0"_s);
    EXPECT_TRUE(shown().endsWith(u": 3 of 3 Random"_s)) << shown().toStdString();
    game.click(u"DifLab"_s);
    game.choose(u"mnutoday"_s);
    EXPECT_EQ(game.message(), u"Today's Puzzle (Easy)"_s);
    EXPECT_EQ(shown(), u"today.txt: 1 of 1 Easy"_s);
    EXPECT_EQ(game.find<QWidget>(u"Stars"_s).toolTip().toStdString(),
              inWords(*ratePuzzle(game.session.game.board)));
}

TEST_F(MainWindow, ExitAsksAndRemembersAndTheCloseBoxRemembersTheSizeOnly) {
    const QSize first = game.window->size();
    const std::string path = game.load("easy.txt", 5);
    game.prompts.answers = {answer::No, answer::Yes};
    game.choose(u"cmdexit"_s);
    EXPECT_EQ(game.lastPrompt(), (ScriptedPrompts::Message{"Exit?", "vbYesNo+vbquestion"}));
    EXPECT_TRUE(game.window->isVisible());
    game.choose(u"cmdexit"_s);
    EXPECT_FALSE(game.window->isVisible());
    game.restart();
    EXPECT_EQ(shown(), u"easy.txt: 5 of 40 Easy"_s);
    EXPECT_EQ(game.find<QAction>(u"oldfiles_0"_s).text().toStdString(), path);

    game.load("hard.txt");
    game.resize({740, 640});
    game.window->close();
    game.restart();
    EXPECT_EQ(game.session.puzzle.PuzPath, path);
    EXPECT_EQ(game.window->size(), QSize(740, 640));
    for (const char* garbled : {"", "%%%", "AdnQywAD\r\n"}) {
        put(game.folder.path() + "window.cfg", garbled);
        game.restart();
        EXPECT_EQ(game.window->size(), first);
    }
    const std::string configuration = game.folder.path() + "tessaly.cfg";
    std::filesystem::remove(configuration);
    std::filesystem::create_directory(configuration);
    game.prompts.answers = {answer::Yes};
    game.choose(u"cmdexit"_s);
    EXPECT_EQ(game.lastPrompt().text, configuration + ": cannot be written: Is a directory");
}

TEST_F(MainWindow, LivesWhileAnotherProgramWritesAFileAndWaitingCanBeGivenUp) {
    const std::string path = game.load("hard.txt");
    const std::string before = contentOf(path);
    std::optional<LockedFile> other;
    const auto saveWhileLocked = [&](const std::function<void()>& meanwhile) {
        EXPECT_TRUE(other.emplace().lock(path).ok());
        QTimer::singleShot(50, game.window.get(), [&, meanwhile] {
            EXPECT_EQ(game.message(), u"Waiting for hard.txt (Escape gives up)"_s);
            meanwhile();
        });
        game.choose(u"mnusaveto"_s);
        other.reset();
        return game.lastPrompt().text;
    };
    EXPECT_EQ(saveWhileLocked([&] { game.press(Qt::Key_Escape); }),
              path + ": is being written by another program");
    EXPECT_EQ(contentOf(path), before);
    EXPECT_TRUE(saveWhileLocked([&] { other.reset(); }).ends_with("added to file " + path));
    EXPECT_GT(contentOf(path).size(), before.size());
}

TEST_F(MainWindow, ResizesFromTheSmallestToAnySize) {
    game.resize(game.window->minimumSizeHint());
    EXPECT_NEAR(game.board().boardToWidget().m11(), 0.6, 0.05);
    EXPECT_EQ(game.board().minimumSize(), QSize(304, 286)) << "whatever stands about it";
    for (const auto& [size, side] :
         {std::pair(QSize(900, 500), 44), {QSize(1920, 1080), 56}, {QSize(600, 1000), 44}}) {
        game.resize(size);
        const auto placeOf = [&](const QString& name) {
            const QWidget& part = game.find(name);
            return QRect(part.mapTo(game.window.get(), QPoint()), part.size());
        };
        const QRect board = placeOf(u"Picture2"_s);
        for (const QString& name : {u"digt_0"_s, u"cmdpencil"_s, u"StatLab"_s, u"cmdset1s"_s}) {
            EXPECT_GE(placeOf(name).height(), side) << name.toStdString();
            EXPECT_TRUE(QRect({}, size).contains(placeOf(name)) &&
                        placeOf(name).left() < board.right() + 5 * side);
        }
        EXPECT_LE(placeOf(u"MsgLab"_s).top(), board.bottom() + 30) << "close beneath it";
        EXPECT_GE(placeOf(u"cmdload"_s).left(), board.left() - 120);
    }
    EXPECT_NEAR(game.board().boardToWidget().m11(), 0.76, 0.1) << "what the width has room for";
}

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
    for (const QList<QByteArray>& urls : {QList<QByteArray>{good, good},
                                          {"file://" + folder},
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

} // namespace tessaly::main_window_test
