#include "core/play/selection_walk.h"
#include "ui/game_window.h"

namespace tessaly {
namespace {

struct MainWindow : testing::Test {
    QString difficulty() { return game.find<BoxControl>(u"DifLab"_s).text(); }
    bool isVisible(const QString& item) { return game.find<QAction>(item).isVisible(); }
    void enterNumber(const QString& number) {
        game.find<QLineEdit>(u"PuzNumNow"_s).selectAll();
        QTest::keyClicks(&game.find(u"PuzNumNow"_s), number + u'\r');
    }
    GameWindow game;
};

TEST_F(MainWindow, ShowsWhichPuzzleOfWhichFileIsOnTheBoard) {
    EXPECT_EQ(game.text(u"PuzFileName"_s), u"Create a New Puzzle"_s);
    EXPECT_EQ(game.number() + game.text(u"puznumber"_s), QString());
    EXPECT_EQ(difficulty(), u"Random"_s);
    EXPECT_FALSE(isVisible(u"mnusaveto"_s) || isVisible(u"oldfiles_0"_s));

    const QString path = QString::fromStdString(game.folder.puzzles("easy.txt"));
    game.fileDialogs.add(path);
    game.click(u"cmdload"_s);
    EXPECT_EQ(game.number() + game.text(u"puznumber"_s), u"1 of 40"_s);
    EXPECT_EQ(game.text(u"PuzFileName"_s), u"easy.txt"_s);
    EXPECT_EQ(game.find(u"PuzFileName"_s).toolTip(), path);
    EXPECT_EQ(difficulty(), u"Easy"_s);
    EXPECT_TRUE(isVisible(u"mnusaveto"_s) && isVisible(u"oldfiles_0"_s));
    EXPECT_TRUE(game.find(u"Celltags_8"_s).isVisible());
    EXPECT_FALSE(game.find(u"Celltags_7"_s).isVisible()) << "the blank hexagon's tag is hidden";
    game.click(u"cmdarrow_0"_s);
    EXPECT_EQ(game.number(), u"40"_s);
    game.click(u"cmdarrow_1"_s);
    EXPECT_EQ(game.number(), u"1"_s);
    enterNumber(u"17"_s);
    EXPECT_EQ(game.session.puzzle.PuzNum, 17);
    EXPECT_TRUE(game.board().hasFocus());
    enterNumber(u"999"_s);
    EXPECT_EQ(game.number(), u"17"_s) << "the box names what is shown";
    game.find(u"PuzNumNow"_s).setFocus();
    QTest::keyClicks(&game.find(u"PuzNumNow"_s), u"2"_s);
    game.pointAt(firstSelectable(game.session.game));
    EXPECT_TRUE(game.find(u"PuzNumNow"_s).hasFocus()) << "a crossing pointer takes no focus";
}

TEST_F(MainWindow, CreatesAPuzzleOfTheShownDifficulty) {
    for (const auto& [name, count] : {std::pair(u"Easy"_s, u"1"_s), {u"Hard"_s, u"2"_s}}) {
        game.click(u"DifLab"_s);
        game.click(u"cmdcreate"_s);
        EXPECT_EQ(game.message(), u"New Puzzle Created (%1)"_s.arg(name));
        EXPECT_EQ(difficulty() + game.number(), name + count);
    }
    game.click(u"DifLab"_s);
    game.choose(u"mnucreaten_0"_s);
    EXPECT_EQ(difficulty() + game.number(), u"Random3"_s);
}

TEST_F(MainWindow, ExitAsksAndRemembersAndTheCloseBoxRemembersTheSizeOnly) {
    const QSize first = game.window->size();
    const std::string path = game.load("easy.txt", 5);
    const Board shown = game.session.game.board;
    game.prompts.answers = {answer::No, answer::Yes};
    game.choose(u"cmdexit"_s);
    EXPECT_EQ(game.lastPrompt(), (ScriptedPrompts::Message{"Exit?", "vbYesNo+vbquestion"}));
    EXPECT_TRUE(game.window->isVisible());
    game.choose(u"cmdexit"_s);
    EXPECT_FALSE(game.window->isVisible());
    game.restart();
    EXPECT_EQ(game.session.game.board, shown);
    EXPECT_EQ(game.number(), u"5"_s);
    EXPECT_EQ(game.find<QAction>(u"oldfiles_0"_s).text().toStdString(), path);

    game.load("hard.txt");
    game.resize({700, 640});
    game.window->close();
    game.restart();
    EXPECT_EQ(game.session.puzzle.PuzPath, path);
    EXPECT_EQ(game.prompts.shown.size(), 2U);
    EXPECT_EQ(game.window->size(), QSize(700, 640));
    for (const char* garbled : {"", "%%%", "AdnQywAD\r\n"}) {
        test::put(game.folder.path() + "window.cfg", garbled);
        game.restart();
        EXPECT_EQ(game.window->size(), first);
    }
}

TEST_F(MainWindow, ResizesFromTheSmallestToAnySize) {
    game.resize(game.window->minimumSizeHint());
    EXPECT_NEAR(game.board().boardToWidget().m11(), 0.6, 0.05);
    game.resize({1600, 1200});
    EXPECT_GT(game.board().boardToWidget().m11(), 2.0);
    const auto left = [this](QWidget& of) { return of.mapTo(game.window.get(), QPoint()).x(); };
    EXPECT_LT(left(game.find(u"digt_0"_s)) - left(game.board()) - game.board().width(), 40)
        << "the palette stays beside the board";
}

} // namespace
} // namespace tessaly
