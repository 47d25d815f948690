#include "ui/game_window.h"

#include "core/board/puzzle_record.h"
#include "ui/controls/box_control.h"
#include "ui/controls/run_progress_bar.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QTimer>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;
using Message = ScriptedPrompts::Message;

/// The creation of many puzzles with its real dialog.
class AutoCreate : public testing::Test {
protected:
    QAction& action(const QString& name) { return game.find<QAction>(name); }
    void click(const QString& name) { QTest::mouseClick(&game.find(name), Qt::LeftButton); }
    std::string defaultFile() const { return game.folder.path() + "multipuzfile.txt"; }

    /// Starts the command; `what` is done in the dialog.
    template <class What>
    void withTheDialog(What what) {
        QTimer::singleShot(0, qApp, [&] {
            auto* dialog = qobject_cast<Form3*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            what(*dialog);
            if (dialog->isVisible())
                dialog->reject();
        });
        action(u"mnucreaten_1"_s).trigger();
    }
    /// By its caption, for the file picker's button has the name of "OK" too.
    static void clickIn(Form3& dialog, const QString& caption) {
        for (auto* button : dialog.findChildren<BoxControl*>())
            if (button->text() == caption)
                QTest::mouseClick(button, Qt::LeftButton);
    }
    static void enterNumber(Form3& dialog, const QString& number) {
        auto* box = dialog.findChild<QLineEdit*>(u"Text1"_s);
        box->selectAll();
        QTest::keyClicks(box, number);
    }
    void orderIntoDefaultFile(const QString& number) {
        withTheDialog([&](Form3& dialog) {
            enterNumber(dialog, number);
            clickIn(dialog, u"OK"_s);
        });
    }
    /// Calls `what` whenever the run lets the window live, until it answers false.
    void duringTheRun(std::function<bool()> what) {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this, what = std::move(what)] {
            if (game.session.busy.creating && !what())
                m_timer.stop();
        });
        m_timer.start(0);
    }

    GameWindow game;

private:
    QTimer m_timer;
};

TEST_F(AutoCreate, TheDialogTakesANumberADifficultyAndAFile) {
    const std::string chosen = game.folder.path() + "mine.txt";
    game.fileDialogs.add(QString::fromStdString(chosen));
    withTheDialog([&](Form3& dialog) {
        auto& file = *dialog.findChild<QLabel*>(u"Label2"_s);
        auto& isDefault = *dialog.findChild<QCheckBox*>(u"Check3"_s);
        EXPECT_EQ(file.text(), QString::fromStdString(defaultFile()));
        EXPECT_TRUE(isDefault.isChecked());
        EXPECT_TRUE(dialog.findChild<QRadioButton*>(u"Option1_0"_s)->isChecked());
        for (const QString& wrong : {u"0"_s, u"-3"_s, u"many"_s, u" "_s}) {
            enterNumber(dialog, wrong);
            clickIn(dialog, u"OK"_s);
            ASSERT_FALSE(game.prompts.shown.empty());
            EXPECT_EQ(game.prompts.shown.back(),
                      (Message{"Incorrect number of puzzles", "vbcritical+vbok"}));
            EXPECT_TRUE(dialog.isVisible());
        }
        clickIn(dialog, u"..."_s);
        EXPECT_EQ(file.text(), QString::fromStdString(chosen));
        EXPECT_FALSE(isDefault.isChecked());
        QTest::keyClick(&isDefault, Qt::Key_Space);
        EXPECT_EQ(file.text(), QString::fromStdString(defaultFile()));
        clickIn(dialog, u"Cancel"_s);
    });
    EXPECT_EQ(game.fileDialogs.asked.back().title, u"Select an output Puzzle file"_s);
    EXPECT_EQ(game.prompts.shown.size(), 4U) << "cancelled: nothing is confirmed";
}

TEST_F(AutoCreate, MakesWhatWasOrderedAndShowsHowFarItIs) {
    game.window->files().load(game.folder.puzzles("hard.txt"), 7);
    const Board before = game.session.game.board;
    game.prompts.answers = {answer::Yes, answer::Ok};
    auto& bar = game.find<RunProgressBar>(u"runProgress"_s);
    bool seen = false;
    duringTheRun([&] {
        seen = bar.isVisible() && bar.maximum() == 250 && bar.value() > 0 &&
               bar.toolTip().endsWith(u" left"_s) && bar.text().contains(u" · "_s) &&
               game.find<QLineEdit>(u"PuzNumNow"_s).text().toInt() == bar.value() &&
               game.find<QLabel>(u"puznumber"_s).text() == u" of 250"_s &&
               game.find<QLabel>(u"PuzFileName"_s).text() == u"multipuzfile.txt"_s &&
               game.message().startsWith(u"Creating Easy Puzzle "_s);
        return !seen;
    });
    withTheDialog([](Form3& dialog) {
        enterNumber(dialog, u"250"_s);
        QTest::mouseClick(dialog.findChild<QWidget*>(u"Option1_1"_s), Qt::LeftButton,
                          Qt::NoModifier, QPoint(8, 8));
        clickIn(dialog, u"OK"_s);
    });
    EXPECT_TRUE(seen);
    EXPECT_FALSE(bar.isVisible());
    const std::string content = test::contentOf(defaultFile());
    EXPECT_EQ(content.size(), 250 * (RecordLength + 2));
    EXPECT_EQ(content.front(), 'E');
    ASSERT_EQ(game.prompts.shown.size(), 2U);
    EXPECT_EQ(game.prompts.shown[0],
              (Message{"Create Multiple Puzzles:\r\nOutput File: " + defaultFile() +
                           "\r\nDifficulty Level: Easy\r\nNumber of Puzzles:250\r\n\r\n"
                           "Creating Multiple Puzzle will take time...\r\nProceed?",
                       "vbinformation+vbyesno"}));
    EXPECT_EQ(game.prompts.shown[1],
              (Message{"250 Puzzles added to file:\r\n" + defaultFile(), "vbinformation+vbok"}));
    EXPECT_EQ(game.message(), u"250 Puzles Created"_s);
    EXPECT_EQ(game.find<QLabel>(u"PuzFileName"_s).text(), u"hard.txt"_s);
    EXPECT_EQ(game.find<QLineEdit>(u"PuzNumNow"_s).text(), u"7"_s);
    EXPECT_EQ(game.session.game.board, before);
}

TEST_F(AutoCreate, ClosingTheWindowEndsItAtOnceWithWholeRecordsOnly) {
    game.prompts.answers = {answer::Yes};
    duringTheRun([&] {
        game.window->close();
        return false;
    });
    orderIntoDefaultFile(u"999999999"_s);
    const std::string content = test::contentOf(defaultFile());
    EXPECT_EQ(content.size() % (RecordLength + 2), 0U);
    EXPECT_LT(content.size(), 1'000'000U);
    EXPECT_TRUE(content.empty() || content.ends_with("\r\n"));
    EXPECT_EQ(game.prompts.shown.size(), 1U) << "nothing is asked any more";
    EXPECT_FALSE(std::filesystem::exists(game.folder.path() + "tessaly.cfg"));
}

TEST_F(AutoCreate, ExitMeanwhileAsksAndRemembersThePuzzleInPlay) {
    const std::string path = game.folder.puzzles("easy.txt");
    game.window->files().load(path, 3);
    game.prompts.answers = {answer::Yes, answer::No, answer::Yes};
    int asked = 0;
    duringTheRun([&] {
        action(u"cmdexit"_s).trigger();
        return ++asked < 2;
    });
    orderIntoDefaultFile(u"999999999"_s);
    EXPECT_EQ(asked, 2);
    EXPECT_FALSE(game.window->isVisible());
    game.restart();
    EXPECT_EQ(game.session.puzzle.PuzPath, path);
    EXPECT_EQ(game.session.puzzle.PuzNum, 3);
}

} // namespace
} // namespace tessaly
