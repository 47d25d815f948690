#include "ui/game_window.h"

#include "core/session/configuration.h"
#include "ui/controls/box_control.h"

#include <QAction>
#include <QLineEdit>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

class MainWindow : public testing::Test {
protected:
    void click(const QString& name) { QTest::mouseClick(&game.find(name), Qt::LeftButton); }
    QAction& action(const QString& name) { return game.find<QAction>(name); }
    QString text(const QString& name) { return game.find<QLabel>(name).text(); }
    QString number() { return game.find<QLineEdit>(u"PuzNumNow"_s).text(); }

    GameWindow game;
};

TEST_F(MainWindow, EveryButtonHasItsTooltip) {
    const std::vector<std::pair<QString, QString>> tooltips{
        {u"cmdcreate"_s, u"Create a New Puzzle"_s},
        {u"cmdshowsol"_s, u"Show Solution"_s},
        {u"cmdreset"_s, u"Reset Puzzle"_s},
        {u"cmdload"_s, u"Load a Puzzle File"_s},
        {u"cmdundo"_s, u"Undo"_s},
        {u"cmdarrow_0"_s, u"Previous Puzzle"_s},
        {u"cmdarrow_1"_s, u"Next Puzzle"_s},
        {u"cmdsetpairs"_s, u"Fill ALL Single Value Paired Cells"_s},
        {u"cmdallpencil"_s, u"Display All Pencilmarks; rightclick to clear"_s},
        {u"cmdset1s"_s, u"Set ALL empty cell to a unique single"_s},
        {u"DifLab"_s, u"Difficulty Level"_s},
        {u"StatLab"_s, u"Check Solution"_s}};
    for (const auto& [name, tooltip] : tooltips) {
        EXPECT_EQ(game.find(name).toolTip(), tooltip);
        EXPECT_FALSE(game.find(name).accessibleName().isEmpty() &&
                     game.find<BoxControl>(name).text().isEmpty())
            << name.toStdString();
    }
}

/// The captions of a menu, submenus in brackets, "-" for a separator.
QString outline(const QMenu& menu) {
    QStringList captions;
    for (const QAction* item : menu.actions()) {
        if (item->isSeparator())
            captions << u"-"_s;
        else if (item->menu() != nullptr)
            captions << item->text().remove(u'&') + u" ["_s + outline(*item->menu()) + u']';
        else
            captions << item->text().remove(u'&');
    }
    return captions.join(u", "_s);
}

TEST_F(MainWindow, MenusHoldTheirItemsInOrder) {
    EXPECT_EQ(outline(game.find<QMenu>(u"mnumain"_s)),
              u"Load, Copy to Clipboard [Puzzle, Solution, -, Cancel], -, Options, -, Help, About, "
              "-, OldFiles, OldFiles, OldFiles, OldFiles, OldFiles, -, Exit"_s);
    EXPECT_EQ(outline(game.find<QMenu>(u"mnupuzzles"_s)),
              u"Single Puzzle, Multiple Puzzles, -, Cancel"_s);
    EXPECT_EQ(outline(game.find<QMenu>(u"mnusavey"_s)),
              u"Save to [New File, , -, Cancel], Entire Window, -, Delete, -, Cancel"_s);
    EXPECT_EQ(outline(game.find<QMenu>(u"mnuprintxx"_s)),
              u"Puzzle, Solution, Puzzle and Solution, -, Multiple Puzzles, -, Cancel"_s);
    EXPECT_FALSE(action(u"oldfiles_0"_s).isVisible());
    EXPECT_FALSE(action(u"oldfiles_5"_s).isVisible());
    EXPECT_FALSE(action(u"mnusaveto"_s).isVisible());
}

TEST_F(MainWindow, WithoutAPuzzleItOffersToCreateOne) {
    EXPECT_EQ(text(u"PuzFileName"_s), u"Create a New Puzzle"_s);
    EXPECT_EQ(number(), QString());
    EXPECT_EQ(text(u"puznumber"_s), QString());
    EXPECT_EQ(game.find<BoxControl>(u"DifLab"_s).text(), u"Random"_s);
    QTest::mouseMove(&game.board(), game.pointOf({10, 2}));
    QTest::keyClick(&game.board(), Qt::Key_3);
    EXPECT_EQ(game.session.game.board, Board{});
}

TEST_F(MainWindow, LoadingShowsThePuzzleAndSteppingMovesOn) {
    const std::string path = game.folder.puzzles("easy.txt");
    game.fileDialogs.add(QString::fromStdString(path));
    click(u"cmdload"_s);
    EXPECT_EQ(number(), u"1"_s);
    EXPECT_EQ(text(u"puznumber"_s), u" of 40"_s);
    EXPECT_EQ(text(u"PuzFileName"_s), u"easy.txt"_s);
    EXPECT_EQ(game.find(u"PuzFileName"_s).toolTip(), QString::fromStdString(path));
    EXPECT_EQ(game.find<BoxControl>(u"DifLab"_s).text(), u"Easy"_s);
    EXPECT_TRUE(action(u"oldfiles_0"_s).isVisible());
    EXPECT_TRUE(action(u"mnusaveto"_s).isVisible());
    EXPECT_FALSE(game.find(u"Celltags_7"_s).isVisible()) << "the blank hexagon's tag is hidden";
    EXPECT_TRUE(game.find(u"Celltags_8"_s).isVisible());
    click(u"cmdarrow_0"_s);
    EXPECT_EQ(number(), u"40"_s);
    click(u"cmdarrow_1"_s);
    EXPECT_EQ(number(), u"1"_s);
    auto& box = game.find<QLineEdit>(u"PuzNumNow"_s);
    box.selectAll();
    QTest::keyClicks(&box, u"17"_s);
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_EQ(game.session.puzzle.PuzNum, 17);
    box.selectAll();
    QTest::keyClicks(&box, u"41"_s);
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_EQ(game.session.puzzle.PuzNum, 17);
}

TEST_F(MainWindow, CreatesAPuzzleOfTheShownDifficulty) {
    for (const char* difficulty : {"Easy", "Hard"}) {
        click(u"DifLab"_s);
        click(u"cmdcreate"_s);
        EXPECT_EQ(game.message(), u"New Puzzle Created (%1)"_s.arg(QLatin1String(difficulty)));
        EXPECT_EQ(game.session.game.board.DifName(), difficulty);
        EXPECT_EQ(game.find<BoxControl>(u"DifLab"_s).text(), QLatin1String(difficulty));
    }
    click(u"DifLab"_s);
    action(u"mnucreaten_0"_s).trigger();
    EXPECT_EQ(number(), u"3"_s);
    EXPECT_EQ(game.find<BoxControl>(u"DifLab"_s).text(), u"Random"_s);
}

TEST_F(MainWindow, ExitAsksAndRemembersAndTheCloseBoxDoesNeither) {
    const std::string path = game.folder.puzzles("easy.txt");
    const std::string configuration = game.folder.path() + "tessaly.cfg";
    game.window->files().load(path, 5);
    game.prompts.answers = {answer::No};
    action(u"cmdexit"_s).trigger();
    EXPECT_EQ(game.prompts.shown.back(), (ScriptedPrompts::Message{"Exit?", "vbYesNo+vbquestion"}));
    EXPECT_TRUE(game.window->isVisible());
    game.window->close();
    EXPECT_FALSE(std::filesystem::exists(configuration));

    game.window->show();
    game.prompts.answers = {answer::Yes};
    action(u"cmdexit"_s).trigger();
    EXPECT_FALSE(game.window->isVisible());
    const Configuration written = ReadcfgFile(configuration);
    EXPECT_EQ(written.PuzPath, path);
    EXPECT_EQ(written.PuzNum, 5);
    EXPECT_EQ(written.recentFiles.paths(), std::vector<std::filesystem::path>{path});

    Session next;
    next.ProgramFolder = game.folder.path();
    EXPECT_TRUE(loadSession(next).outcome.ok());
    EXPECT_EQ(next.last.path, path);
    EXPECT_EQ(next.last.number, 5);
}

TEST_F(MainWindow, ItsSizeIsRememberedHoweverItIsClosed) {
    const QSize first = game.window->size();
    const QSize chosen(700, 640);
    ASSERT_NE(first, chosen);
    game.window->resize(chosen);
    game.window->close();
    game.restart();
    EXPECT_EQ(game.window->size(), chosen);
    for (const char* garbled : {"", "%%%", "AdnQywAD\r\n"}) {
        test::put(game.folder.path() + "window.cfg", garbled);
        game.restart();
        EXPECT_EQ(game.window->size(), first);
    }
}

TEST_F(MainWindow, ResizesFromTheSmallestToAnySize) {
    game.window->files().load(game.folder.puzzles("easy.txt"));
    game.window->resize(game.window->minimumSizeHint());
    QApplication::processEvents();
    const double smallest = game.board().boardToWidget().m11();
    EXPECT_NEAR(smallest, 0.6, 0.05);
    game.window->resize(1600, 1200);
    QApplication::processEvents();
    EXPECT_GT(game.board().boardToWidget().m11(), 2.0);
    // The palette stays beside the board however wide the window is.
    const QRect board(game.board().mapTo(game.window.get(), QPoint()), game.board().size());
    QWidget& item = game.find(u"digt_0"_s);
    EXPECT_LT(item.mapTo(game.window.get(), QPoint()).x() - board.right(), 40);
}

} // namespace
} // namespace tessaly
