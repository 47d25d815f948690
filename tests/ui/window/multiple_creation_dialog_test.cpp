#include "core/board/puzzle_record.h"
#include "ui/controls/box_control.h"
#include "ui/controls/run_progress_bar.h"
#include "ui/game_window.h"

#include <QApplication>
#include <QCheckBox>
#include <QTimer>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

/// The creation of many puzzles with its real dialog.
struct AutoCreate : testing::Test {
    /// Starts the command; `what` is done in the dialog.
    void withTheDialog(const std::function<void()>& what) {
        QTimer::singleShot(0, qApp, [&] {
            ASSERT_EQ(QApplication::activeModalWidget(), &dialog);
            what();
            if (dialog.isVisible())
                dialog.reject();
        });
        game.choose(u"mnucreaten_1"_s);
    }
    /// By its caption, for the file picker's button has the name of "OK" too.
    void click(const QString& caption) {
        for (auto* button : dialog.findChildren<BoxControl*>())
            if (button->text() == caption)
                QTest::mouseClick(button, Qt::LeftButton);
    }
    void enterNumber(const QString& number) {
        auto* box = dialog.findChild<QLineEdit*>(u"Text1"_s);
        box->selectAll();
        QTest::keyClicks(box, number);
        click(u"OK"_s);
    }
    /// Calls `what` whenever the run lets the window live, until it answers false.
    void duringTheRun(std::function<bool()> what) {
        QObject::connect(&timer, &QTimer::timeout, &timer, [this, what = std::move(what)] {
            if (game.session.busy.creating && !what())
                timer.stop();
        });
        timer.start(0);
    }

    GameWindow game;
    Form3& dialog = game.find<Form3>(u"Form3"_s);
    const std::string defaultFile = game.folder.path() + "multipuzfile.txt";
    QTimer timer;
};

TEST_F(AutoCreate, TheDialogTakesANumberAndAFile) {
    const QString chosen = QString::fromStdString(game.folder.path() + "mine.txt");
    game.fileDialogs.add(chosen);
    withTheDialog([&] {
        auto& file = *dialog.findChild<QLabel*>(u"Label2"_s);
        auto& isDefault = *dialog.findChild<QCheckBox*>(u"Check3"_s);
        EXPECT_EQ(file.text().toStdString(), defaultFile);
        for (const QString& wrong : {u"0"_s, u"-3"_s, u"many"_s, u" "_s}) {
            game.prompts.shown.clear();
            enterNumber(wrong);
            ASSERT_EQ(game.prompts.shown.size(), 1U);
            EXPECT_EQ(game.lastPrompt().text, "Incorrect number of puzzles");
        }
        click(u"..."_s);
        EXPECT_EQ(file.text(), chosen);
        EXPECT_FALSE(isDefault.isChecked());
        QTest::keyClick(&isDefault, Qt::Key_Space);
        EXPECT_EQ(file.text().toStdString(), defaultFile);
        click(u"Cancel"_s);
    });
    EXPECT_EQ(game.prompts.shown.size(), 1U) << "cancelled: nothing is confirmed";
}

TEST_F(AutoCreate, MakesWhatWasOrderedAndShowsHowFarItIs) {
    game.load("hard.txt", 7);
    game.prompts.answers = {answer::Yes};
    auto& bar = game.find<RunProgressBar>(u"runProgress"_s);
    bool seen = false;
    duringTheRun([&] {
        seen = bar.isVisible() && bar.maximum() == 250 && bar.value() > 0 &&
               bar.toolTip().endsWith(u" left"_s) && bar.text().contains(u" · "_s) &&
               game.number().toInt() == bar.value() && game.text(u"puznumber"_s) == u" of 250"_s &&
               game.text(u"PuzFileName"_s) == u"multipuzfile.txt"_s &&
               game.message().startsWith(u"Creating Easy Puzzle "_s);
        return !seen;
    });
    withTheDialog([this] {
        QTest::mouseClick(dialog.findChild<QWidget*>(u"Option1_1"_s), Qt::LeftButton, {},
                          QPoint(8, 8));
        enterNumber(u"250"_s);
    });
    EXPECT_TRUE(seen);
    EXPECT_FALSE(bar.isVisible());
    EXPECT_EQ(test::contentOf(defaultFile).size(), 250 * (RecordLength + 2));
    EXPECT_EQ(test::contentOf(defaultFile).front(), 'E');
    EXPECT_EQ(game.message(), u"250 Puzles Created"_s);
    EXPECT_EQ(game.text(u"PuzFileName"_s) + game.number(), u"hard.txt7"_s);
}

TEST_F(AutoCreate, ExitMeanwhileAsksAndRemembersThePuzzleInPlay) {
    const std::string path = game.load("easy.txt", 3);
    game.prompts.answers = {answer::Yes, answer::No, answer::Yes};
    int asked = 0;
    duringTheRun([&] {
        game.choose(u"cmdexit"_s);
        return ++asked < 2;
    });
    withTheDialog([this] { enterNumber(u"999999999"_s); });
    EXPECT_EQ(asked, 2);
    EXPECT_FALSE(game.window->isVisible());
    EXPECT_EQ(test::contentOf(defaultFile).size() % (RecordLength + 2), 0U) << "whole records only";
    game.restart();
    EXPECT_EQ(game.session.puzzle.PuzPath, path);
    EXPECT_EQ(game.session.puzzle.PuzNum, 3);
}

} // namespace
} // namespace tessaly
