// Draws the windows of the game in the states that a player sees them in, one PNG each, to be
// looked at. Not a test: tessaly_pictures FOLDER; QT_SCALE_FACTOR=2 gives them at 200 %.

#include "core/options/scheme_library.h"
#include "ui/controls/message_box.h"
#include "ui/controls/run_progress_bar.h"
#include "ui/game_window.h"
#include "ui/output/print_progress.h"
#include "ui/window/developer_row.h"
#include "ui/window/tool_row.h"

#include <QApplication>
#include <QListWidget>
#include <QProgressBar>
#include <QTabWidget>
#include <QTextBrowser>
#include <QTimer>

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
    game.window->DrawBoard();
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
    game.window->files().load(game.folder.puzzles("easy.txt"));
    pictures.take(*game.window, u"puzzle"_s);
    playALittle(game);
    const CellId cell = firstOpenCell(game);
    game.pointAt(cell);
    pictures.take(*game.window, u"played"_s);
    QTest::mouseClick(&game.board(), Qt::RightButton, {}, game.pointOf(cell));
    pictures.take(*game.window, u"popup"_s);
    QTest::mouseClick(&game.find(u"digt_3"_s), Qt::LeftButton);
    QTest::mouseClick(&game.find(u"StatLab"_s), Qt::LeftButton);
    const auto takeWithPopup = [&](QSize size, const QString& name) {
        game.window->resize(size);
        QApplication::processEvents();
        game.pointAt(cell);
        QTest::mouseClick(&game.board(), Qt::RightButton, {}, game.pointOf(cell));
        pictures.take(*game.window, name);
    };
    takeWithPopup(game.window->minimumSizeHint(), u"smallest"_s);
    takeWithPopup({1600, 1200}, u"largest"_s);
    game.window->resize(1500, 600);
    pictures.take(*game.window, u"wide"_s);
}

void takeSchemes(Pictures& pictures) {
    GameWindow game;
    game.window->files().load(game.folder.puzzles("hard.txt"));
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

/// The manual from its start and at some of its places, and the about box.
void takeHelp(Pictures& pictures, GameWindow& game, const QString& scheme) {
    game.find<QAction>(u"mnuhelp"_s).trigger();
    auto& help = game.find(u"Form4"_s);
    auto& browser = *help.findChild<QTextBrowser*>(u"WebBrowser1"_s);
    pictures.take(help, u"help-"_s + scheme);
    for (const QString& place : {u"first"_s, u"rule-2"_s, u"rule-4"_s, u"tools"_s, u"helps"_s,
                                 u"menu-file"_s, u"commandline"_s}) {
        browser.setSource(QUrl(u'#' + place));
        pictures.take(help, u"help-"_s + scheme + u'-' + place);
    }
    help.hide();
    game.find<QAction>(u"mnuabout"_s).trigger();
    pictures.take(game.find(u"AboutForm"_s), u"about-"_s + scheme);
    game.find(u"AboutForm"_s).hide();
}

void takeHelpInSchemes(Pictures& pictures) {
    GameWindow game;
    const std::filesystem::path data(TESSALY_DATA);
    std::filesystem::copy(data / "tessaly.htm", game.folder.path());
    std::filesystem::copy(data / "manual", game.folder.path() + "manual");
    for (const char* scheme : {"xp", "night"}) {
        const std::string record = scheme + std::string(".col");
        EXPECT_TRUE(
            SchemeLibrary(game.folder.path()).LoadScheme(record, game.session.appearance).ok());
        takeHelp(pictures, game, QString::fromLatin1(scheme));
    }
}

/// The dialog for printing many puzzles, as it stands open, and the progress of a print.
void takePrinting(Pictures& pictures, const QString& scheme) {
    GameWindow game;
    game.session.appearance.ActiveScheme = scheme.toStdString() + ".col";
    EXPECT_TRUE(SchemeLibrary(game.folder.path())
                    .LoadScheme(game.session.appearance.ActiveScheme, game.session.appearance)
                    .ok());
    game.printers.installed = {u"HP LaserJet Pro M404dn"_s, u"Kitchen"_s};
    if (scheme == QLatin1String(DefaultScheme).chopped(4)) // else a PDF file
        game.printers.usual = u"Kitchen"_s;
    game.window->files().load(game.folder.puzzles("easy.txt"));
    auto& form = game.find(u"Form5"_s);
    QTimer::singleShot(0, &form, [&] {
        auto& tabs = tessaly::find<QTabWidget>(form, u"tabs"_s);
        for (int tab = 0; tab < tabs.count(); ++tab) {
            tabs.setCurrentIndex(tab);
            pictures.take(form, u"print-%1-%2"_s.arg(tab).arg(scheme));
        }
        form.close();
    });
    game.find<QAction>(u"mnuprintx_4"_s).trigger();
    PrintProgress progress(game.session.appearance);
    progress.begin(u"Printing easy.txt, 1 to 1000"_s);
    progress.findChild<QProgressBar*>()->setRange(0, 334);
    progress.findChild<QProgressBar*>()->setValue(120);
    progress.show();
    pictures.take(progress, u"print-progress-"_s + scheme);
}

/// Takes the picture of a dialog that waits for an answer, and closes it.
void takeWhenOpen(Pictures& pictures, const QString& name) {
    QTimer::singleShot(100, [&pictures, name] {
        QWidget* dialog = QApplication::activeModalWidget();
        if (dialog == nullptr)
            return;
        pictures.take(*dialog, name);
        dialog->close();
    });
}

/// The small dialogs: creation of many puzzles, a message, a line of text.
void takeDialogs(Pictures& pictures, const QString& scheme) {
    GameWindow game;
    EXPECT_TRUE(SchemeLibrary(game.folder.path())
                    .LoadScheme(scheme.toStdString() + ".col", game.session.appearance)
                    .ok());
    takeWhenOpen(pictures, u"creation-"_s + scheme);
    game.find<QAction>(u"mnucreaten_1"_s).trigger();
    MsgForm box(game.session.appearance);
    takeWhenOpen(pictures, u"message-"_s + scheme);
    box.message("Delete current puzzle from file?", "vbyesno+vbquestion+vbdefaultbutton2");
    takeWhenOpen(pictures, u"prompt-"_s + scheme);
    static_cast<void>(box.ask("Enter new Colour Scheme name"));
}

/// A long run of the developer's tools, as it stands at the usual and the smallest size.
void takeRun(Pictures& pictures) {
    GameWindow game({}, 1, nullptr, true);
    game.window->files().load(game.folder.puzzles("hard.txt"));
    RunProgress progress;
    progress.made = 912;
    progress.count = 30000;
    progress.left = std::chrono::seconds(32);
    auto& bar = game.find<RunProgressBar>(u"runProgress"_s);
    bar.begin();
    bar.show(progress);
    game.window->findChild<ToolRow*>()->showPuzzleNumber(progress.made, progress.count);
    pictures.take(*game.window, u"run"_s);
    game.window->resize(game.window->minimumSizeHint());
    pictures.take(*game.window, u"run-smallest"_s);
}

/// A solved puzzle and one that is begun, the menu of play and the statistics.
void takePlayRecord(Pictures& pictures, const QString& scheme) {
    GameWindow game;
    game.hasBook = true;
    game.restart();
    game.find<QAction>(u"mnushowtime"_s).setChecked(true);
    EXPECT_TRUE(SchemeLibrary(game.folder.path())
                    .LoadScheme(scheme.toStdString() + ".col", game.session.appearance)
                    .ok());
    game.window->applyAppearance();
    game.window->files().load(game.folder.puzzles("easy.txt"));
    Game& play = game.session.game;
    for (int puzzle = 1; puzzle <= 7; ++puzzle) {
        play.seconds = std::int64_t{217} * puzzle;
        for (CellId cell : AllCells)
            if (play.isSelectable(cell))
                play.place(cell, play.board.SolNum[cell]);
        game.window->DrawBoard();
        if (puzzle == 7)
            pictures.take(*game.window, u"solved-"_s + scheme);
        game.click(u"cmdarrow_1"_s);
    }
    play.place(firstOpenCell(game), "4");
    game.window->DrawBoard();
    pictures.take(*game.window, u"begun-"_s + scheme);
    auto& menu = game.find<QMenu>(u"mnuplay"_s);
    menu.popup({});
    pictures.take(menu, u"menu-play-"_s + scheme);
    menu.hide();
    game.find<QAction>(u"mnustatistics"_s).trigger();
    pictures.take(game.find(u"StatisticsForm"_s), u"statistics-"_s + scheme);
}

void takeAll(Pictures& pictures) {
    takeSizes(pictures);
    takeRun(pictures);
    takeSchemes(pictures);
    takeHelpInSchemes(pictures);
    for (const QString& scheme : {u"xp"_s, u"night"_s}) {
        takePrinting(pictures, scheme);
        takeDialogs(pictures, scheme);
        takePlayRecord(pictures, scheme);
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
    try {
        testing::InitGoogleTest();
        const QApplication application(argc, argv);
        Pictures pictures(QString::fromLocal8Bit(argv[1]));
        takeAll(pictures);
    } catch (const std::exception& problem) {
        std::cerr << problem.what() << '\n';
        return 1;
    }
    return 0;
}
