// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

// Draws the windows of the game in the states that a player sees them in, one PNG each, to be
// looked at. Not a test: tessaly_pictures FOLDER; QT_SCALE_FACTOR=2 gives them at 200 %.

#include "ui/game_window.h"

#include <QApplication>
#include <QListWidget>

#include <iostream>

namespace {

using namespace tessaly;
using namespace Qt::StringLiterals;

class Pictures {
public:
    explicit Pictures(QString folder)
        : m_folder(std::move(folder)) {}

    void take(QWidget& window, const QString& name) {
        QApplication::processEvents();
        window.grab().save(m_folder + u'/' + name + u".png"_s);
    }

private:
    QString m_folder;
};

/// Givens, entries, and in the open cells after them one to six marks each.
void playALittle(GameWindow& game) {
    Game& play = game.session.game;
    std::size_t turn = 0;
    for (CellId cell : AllCells) {
        if (!play.isSelectable(cell))
            continue;
        if (turn % 3 == 0)
            play.place(cell, play.board.SolNum[cell]);
        else
            play.board.CellNum[cell] = std::string("352146").substr(0, 1 + turn % 6);
        ++turn;
    }
    game.board().DrawBoard();
}

CellId firstOpenCell(const GameWindow& game) {
    for (CellId cell : AllCells)
        if (game.session.game.isSelectable(cell) && cell.hexagon > 6)
            return cell;
    return {};
}

void takeSizes(Pictures& pictures) {
    GameWindow game;
    pictures.take(*game.window, u"empty"_s);
    game.window->library().load(game.folder.puzzles("easy.txt"));
    pictures.take(*game.window, u"puzzle"_s);
    playALittle(game);
    const CellId cell = firstOpenCell(game);
    game.pointAt(cell);
    pictures.take(*game.window, u"played"_s);
    QTest::mouseClick(&game.board(), Qt::RightButton, {}, game.pointOf(cell));
    pictures.take(*game.window, u"popup"_s);
    QTest::mouseClick(&game.find(u"digt_3"_s), Qt::LeftButton);
    QTest::mouseClick(&game.find(u"StatLab"_s), Qt::LeftButton);
    game.window->resize(game.window->minimumSizeHint());
    pictures.take(*game.window, u"smallest"_s);
    game.window->resize(1600, 1200);
    pictures.take(*game.window, u"largest"_s);
    game.window->resize(1500, 600);
    pictures.take(*game.window, u"wide"_s);
}

void takeSchemes(Pictures& pictures) {
    GameWindow game;
    game.window->library().load(game.folder.puzzles("hard.txt"));
    playALittle(game);
    game.pointAt(firstOpenCell(game));
    QTest::mouseClick(&game.find(u"digt_3"_s), Qt::LeftButton);
    auto& options = game.find(u"Form2x"_s);
    game.find<QAction>(u"mnuopts"_s).trigger();
    pictures.take(options, u"options"_s);
    auto& list = game.find<QListWidget>(u"List1"_s);
    for (int row = 0; row < list.count(); ++row) {
        game.find<QAction>(u"mnuopts"_s).trigger();
        const QString name = list.item(row)->text();
        list.scrollToItem(list.item(row));
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                          list.visualItemRect(list.item(row)).center());
        pictures.take(options, u"options-"_s + name);
        QTest::mouseClick(options.findChild<QWidget*>(u"Command1"_s), Qt::LeftButton);
        pictures.take(*game.window, u"scheme-"_s + name);
        QTest::mousePress(&game.find(u"cmdshowsol"_s), Qt::LeftButton);
        pictures.take(*game.window, u"solution-"_s + name);
        QTest::mouseRelease(&game.find(u"cmdshowsol"_s), Qt::LeftButton);
    }
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: tessaly_pictures FOLDER\n";
        return 2;
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest();
    const QApplication application(argc, argv);
    Pictures pictures(QString::fromLocal8Bit(argv[1]));
    takeSizes(pictures);
    takeSchemes(pictures);
    return 0;
}
