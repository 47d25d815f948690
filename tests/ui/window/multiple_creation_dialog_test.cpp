#include "core/board/puzzle_record.h"
#include "ui/controls/run_progress_bar.h"
#include "ui/game_window.h"

#include <QCheckBox>

namespace tessaly::multiple_creation_dialog_test {

/// The creation of many puzzles with its real dialog.
struct AutoCreate : testing::Test {
    /// By its caption, for the file picker's button has the name of "Ok" too.
    static void click(const QDialog& dialog, const QString& caption) {
        for (auto* button : dialog.findChildren<BoxControl*>())
            if (button->text() == caption)
                QTest::mouseClick(button, Qt::LeftButton);
    }
    static void order(const QDialog& dialog, const QString& number) {
        find<QLineEdit>(dialog, u"Text1"_s).setText(number);
        click(dialog, u"Ok"_s);
    }
    /// Orders so many easy puzzles and calls `what` whenever the run lets the window live.
    void run(const QString& number, const std::function<void()>& what) {
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            if (game.session.busy.creating)
                what();
        });
        timer.start(0);
        inNextDialog([&](QDialog& dialog) {
            QTest::mouseClick(&find(dialog, u"Option1_1"_s), Qt::LeftButton, {}, QPoint(8, 8));
            order(dialog, number);
        });
        game.choose(u"mnucreaten_1"_s);
    }

    GameWindow game{"hard.txt", 7};
    const std::string defaultFile = game.folder.path() + "multipuzfile.txt";
};

TEST_F(AutoCreate, TheDialogTakesANumberAndAFile) {
    const QString chosen = QString::fromStdString(game.folder.path() + "mine.txt");
    game.fileDialogs.add(chosen);
    inNextDialog([&](QDialog& dialog) {
        auto& file = find<QLabel>(dialog, u"Label2"_s);
        EXPECT_EQ(file.text().toStdString(), defaultFile);
        for (const QString& wrong : {u"0"_s, u"many"_s, u"99999999999"_s}) {
            game.prompts.shown.clear();
            order(dialog, wrong);
            EXPECT_EQ(game.lastPrompt().text, "Incorrect number of puzzles");
        }
        click(dialog, u"..."_s);
        EXPECT_EQ(file.text(), chosen);
        auto& isDefault = find<QCheckBox>(dialog, u"Check3"_s);
        QTest::keyClick(&isDefault, Qt::Key_Space);
        EXPECT_EQ(file.text().toStdString(), defaultFile);
        game.fileDialogs.add({});
        QTest::keyClick(&isDefault, Qt::Key_Space);
        EXPECT_TRUE(isDefault.isChecked()) << "no other was chosen";
        click(dialog, u"Cancel"_s);
    });
    game.choose(u"mnucreaten_1"_s);
    EXPECT_EQ(game.prompts.shown.size(), 1U) << "cancelled: nothing is confirmed";
}

TEST_F(AutoCreate, MakesWhatWasOrderedAndShowsHowFarItIs) {
    game.prompts.answers = {answer::Yes};
    auto& bar = game.find<RunProgressBar>(u"runProgress"_s);
    bool seen = false;
    run(u"250"_s, [&] {
        seen =
            seen || (bar.isVisible() && bar.maximum() == 250 && bar.value() > 0 &&
                     bar.toolTip().endsWith(u" left"_s) && bar.text().contains(u" · "_s) &&
                     game.number() + game.text(u"puznumber"_s) == u"%1 of 250"_s.arg(bar.value()) &&
                     game.text(u"PuzFileName"_s) == u"multipuzfile.txt"_s &&
                     game.message().startsWith(u"Creating Easy Puzzle "_s));
    });
    EXPECT_TRUE(seen);
    EXPECT_FALSE(bar.isVisible());
    EXPECT_EQ(contentOf(defaultFile).size(), 250 * (RecordLength + 2));
    EXPECT_EQ(contentOf(defaultFile).front(), 'E');
    EXPECT_EQ(game.message(), u"250 Puzles Created"_s);
    EXPECT_EQ(game.text(u"PuzFileName"_s) + game.number(), u"hard.txt7"_s);
}

TEST_F(AutoCreate, ExitMeanwhileAsksAndRemembersThePuzzleInPlay) {
    game.prompts.answers = {answer::Yes, answer::No, answer::Yes};
    run(u"999999999"_s, [&] {
        if (game.window->isVisible())
            game.choose(u"cmdexit"_s);
    });
    EXPECT_EQ(game.prompts.shown.size(), 3U);
    EXPECT_FALSE(game.window->isVisible());
    EXPECT_EQ(contentOf(defaultFile).size() % (RecordLength + 2), 0U) << "whole records only";
    game.restart();
    EXPECT_EQ(game.text(u"PuzFileName"_s) + game.number(), u"hard.txt7"_s);
}

} // namespace tessaly::multiple_creation_dialog_test
