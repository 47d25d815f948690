#include "ui/window/developer_row.h"

#include "support/sample_puzzles.h"
#include "ui/controls/run_progress_bar.h"
#include "ui/game_window.h"

#include <QTimer>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

struct DeveloperRowTest : testing::Test {
    DeveloperRowTest() {
        row.show();
        game.load("hard.txt");
    }
    void press(const char* name, Qt::MouseButton with = Qt::LeftButton) {
        QTest::mouseClick(row.findChild<QWidget*>(QLatin1String(name)), with);
    }
    std::string said() { return game.prompts.shown.empty() ? "" : game.lastPrompt().text; }

    GameWindow game;
    DeveloperRow& row = *game.window->findChild<DeveloperRow*>();
};

TEST_F(DeveloperRowTest, TheButtonsReachTheirCommands) {
    const Board before = game.session.game.board;
    press("Command12x");
    EXPECT_EQ(said().find("Error in cell 0"), 0U) << said();
    press("Command5");
    EXPECT_EQ(said().find("AutosolveHard, fixed, Cell="), 0U) << said();
    EXPECT_EQ(game.session.game.board, before);
    press("Command5", Qt::RightButton);
    EXPECT_NE(game.session.game.board, before);
    press("Command6");
    EXPECT_EQ(game.session.game.board, before);
    game.prompts.lines = {"015 46"};
    press("Command3");
    EXPECT_EQ(game.session.game.board.CellNum[1][5], "46");
    for (const auto& [name, file] : {std::pair("Command1", "addnew.txt: "),
                                     {"Command2", "addnewr.txt: "},
                                     {"Command4", "puzzles20k.txt: "}}) {
        press(name);
        EXPECT_NE(said().find(file), std::string::npos) << "there is no such file: " << said();
    }
}

TEST_F(DeveloperRowTest, ALongRunShowsABarTheWindowLivesAndClosingItEndsTheRun) {
    std::string records;
    for (int i = 0; i < 20000; ++i)
        records += sampleRecords("easy.txt").front() + "\r\n";
    test::put(game.folder.path() + "addnew.txt", records);
    auto& bar = *game.window->findChild<RunProgressBar*>();
    int furthest = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        EXPECT_TRUE(bar.isVisible());
        EXPECT_EQ(bar.maximum(), 20000);
        EXPECT_GE(bar.value(), furthest);
        furthest = bar.value();
    });
    timer.start(0);
    press("Command1");
    timer.stop();
    EXPECT_GT(furthest, 0);
    EXPECT_FALSE(bar.isVisible());
    EXPECT_EQ(said(), "done");
    EXPECT_EQ(game.text(u"puznumber"_s), u" of 40"_s) << "the puzzle's again";

    std::filesystem::remove(game.folder.path() + "addnewr.txt");
    QTimer::singleShot(0, game.window.get(), &QWidget::close);
    press("Command1");
    EXPECT_EQ(game.prompts.shown.size(), 1U);
    EXPECT_FALSE(std::filesystem::exists(game.folder.path() + "addnewr.txt"));
}

} // namespace
} // namespace tessaly
