#include "ui/window/developer_row.h"

#include "support/sample_puzzles.h"
#include "ui/controls/box_control.h"
#include "ui/controls/run_progress_bar.h"
#include "ui/game_window.h"

#include <gtest/gtest.h>

#include <QTimer>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

class DeveloperRowTest : public testing::Test {
protected:
    DeveloperRowTest() {
        row.show();
        game.window->files().load(game.folder.puzzles("hard.txt"));
    }

    BoxControl& button(const QString& name) { return *row.findChild<BoxControl*>(name); }
    void press(const QString& name, Qt::MouseButton with = Qt::LeftButton) {
        QTest::mouseClick(&button(name), with);
    }
    std::string said() {
        return game.prompts.shown.empty() ? std::string() : game.prompts.shown.back().text;
    }
    void putLibrary(int copies) {
        std::string records;
        for (int i = 0; i < copies; ++i)
            records += sampleRecords("easy.txt").front() + "\r\n";
        test::put(game.folder.path() + "addnew.txt", records);
    }

    GameWindow game;
    DeveloperRow& row = *game.window->findChild<DeveloperRow*>();
};

TEST_F(DeveloperRowTest, TheButtonsCarryTheirCaptionsAndReachTheirCommands) {
    const std::pair<const char16_t*, const char16_t*> captions[]{
        {u"Command1", u"FlipandAdd"},   {u"Command2", u"Verify"},
        {u"Command4", u"Randomize"},    {u"Command5", u"AutoSolveHard"},
        {u"Command12x", u"SolveLoop"},  {u"Command3", u"Set Manual Value"},
        {u"Command6", u"ReReadPuzzle"},
    };
    for (const auto& [name, caption] : captions)
        EXPECT_EQ(button(QString::fromUtf16(name)).text(), QString::fromUtf16(caption));

    press(u"Command12x"_s);
    EXPECT_EQ(said().find("Error in cell 0"), 0U) << said();
    const Board before = game.session.game.board;
    press(u"Command5"_s);
    EXPECT_EQ(said().find("AutosolveHard, fixed, Cell="), 0U) << said();
    EXPECT_EQ(game.session.game.board, before);
    press(u"Command5"_s, Qt::RightButton);
    EXPECT_NE(game.session.game.board, before);
    press(u"Command6"_s);
    EXPECT_EQ(game.session.game.board, before);
    game.prompts.lines = {"015 46"};
    press(u"Command3"_s);
    EXPECT_EQ(game.session.game.board.CellNum[1][5], "46");
    for (const char16_t* name : {u"Command1", u"Command2", u"Command4"}) {
        press(QString::fromUtf16(name));
        EXPECT_NE(said().find(".txt: "), std::string::npos) << "there is no such file: " << said();
    }
}

TEST_F(DeveloperRowTest, ALongRunShowsABarAndTheWindowLives) {
    putLibrary(20000);
    auto& bar = *game.window->findChild<RunProgressBar*>();
    int turns = 0;
    int furthest = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        EXPECT_TRUE(bar.isVisible());
        EXPECT_EQ(bar.maximum(), 20000);
        EXPECT_GE(bar.value(), furthest);
        furthest = bar.value();
        ++turns;
        press(u"Command12x"_s); // ignored meanwhile
    });
    timer.start(0);
    press(u"Command1"_s);
    timer.stop();
    EXPECT_GT(turns, 1);
    EXPECT_GT(furthest, 0);
    EXPECT_FALSE(bar.isVisible());
    ASSERT_EQ(game.prompts.shown.size(), 1U);
    EXPECT_EQ(said(), "done");
    EXPECT_EQ(game.find<QLabel>(u"puznumber"_s).text(), u" of 40"_s) << "the puzzle's again";
}

TEST_F(DeveloperRowTest, ClosingTheWindowEndsARun) {
    putLibrary(20000);
    QTimer::singleShot(0, game.window.get(), &QWidget::close);
    press(u"Command1"_s);
    EXPECT_TRUE(game.prompts.shown.empty());
    EXPECT_FALSE(std::filesystem::exists(game.folder.path() + "addnewr.txt"));
}

} // namespace
} // namespace tessaly
