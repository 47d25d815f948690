#include "core/play/selection_walk.h"
#include "ui/game_window.h"
#include "ui/window/tool_row.h"

#include <QHelpEvent>
#include <QProxyStyle>
#include <QToolTip>

namespace tessaly::play_record_test {

/// As of a desktop that wants no animation.
class StillStyle : public QProxyStyle {
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override {
        return hint == SH_Widget_Animation_Duration
                   ? 0
                   : QProxyStyle::styleHint(hint, option, widget, answer);
    }
};

struct PlayRecord : testing::Test {
    PlayRecord() {
        game.hasBook = true;
        game.restart();
        game.load("easy.txt");
    }
    void solve() {
        for (CellId cell : AllCells)
            if (play().isSelectable(cell))
                play().place(cell, play().board.SolNum[cell]);
    }
    Game& play() { return game.session.game; }
    QString mark() { return game.find(u"PlayMark"_s).accessibleName(); }
    /// Whether the mark says so of the file, once that is known.
    bool tells(const QString& expected) {
        const QWidget& label = game.find(u"PlayMark"_s);
        auto& row = *game.window->findChild<ToolRow*>();
        return QTest::qWaitFor([&] {
            QHelpEvent event(QEvent::ToolTip, label.geometry().center(), QPoint());
            QApplication::sendEvent(&row, &event);
            return QToolTip::text() == expected;
        });
    }
    QStringList statistics() {
        game.choose(u"mnustatistics"_s);
        QStringList texts;
        for (const auto* label : game.find(u"StatisticsForm"_s).findChildren<QLabel*>())
            texts << label->text();
        return texts.mid(5, 10);
    }
    GameWindow game;
};

TEST_F(PlayRecord, ThePuzzleIsMarkedAndItsPlayComesBackAtTheNextStart) {
    EXPECT_EQ(mark(), QString());
    game.press(Qt::Key_Home);
    game.press(Qt::Key_4);
    EXPECT_EQ(mark(), u"Begun"_s);
    const Board played = play().board;
    game.restart();
    EXPECT_EQ(mark(), u"Begun"_s);
    EXPECT_EQ(play().board, played);
    EXPECT_TRUE(tells(u"0 of 40 solved"_s));
    game.press(Qt::CTRL | Qt::Key_Z);
    EXPECT_NE(play().board, played);
    solve();
    EXPECT_EQ(mark(), u"Solved"_s);
    EXPECT_TRUE(tells(u"1 of 40 solved"_s));
    game.click(u"cmdarrow_0"_s);
    EXPECT_EQ(mark(), QString());
    game.press(Qt::CTRL | Qt::Key_PageDown);
    EXPECT_EQ(game.number(), u"2"_s) << "the first is solved";
    game.click(u"cmdarrow_0"_s);
    game.prompts.answers = {answer::No, answer::Yes};
    for (const QString& expected : {u"Solved"_s, QString()}) {
        game.choose(u"mnuforgetpuzzle"_s);
        EXPECT_EQ(mark(), expected);
    }
    EXPECT_FALSE(play().isBegun());
    EXPECT_TRUE(tells(u"0 of 40 solved"_s));
}

TEST_F(PlayRecord, AllPlayOfAFileIsForgottenAndOfNoOther) {
    solve();
    game.click(u"cmdarrow_1"_s);
    solve();
    game.load("hard.txt");
    solve();
    game.choose(u"oldfiles_1"_s);
    EXPECT_TRUE(tells(u"2 of 40 solved"_s));
    game.prompts.answers = {answer::Yes};
    game.choose(u"mnuforgetfile"_s);
    EXPECT_EQ(game.message(), u"What you played in this file is forgotten"_s);
    EXPECT_TRUE(tells(u"0 of 40 solved"_s) && mark().isEmpty());
    game.choose(u"oldfiles_0"_s);
    EXPECT_EQ(mark(), u"Solved"_s);
}

TEST_F(PlayRecord, TimesAreShownWhenTheyAreAskedFor) {
    EXPECT_TRUE(game.find(u"TimeLab"_s).isHidden());
    game.choose(u"mnushowtime"_s);
    play().seconds = 3725;
    play().place(firstSelectable(play()), "1");
    EXPECT_EQ(game.text(u"TimeLab"_s), u"1:02:05"_s);
    game.restart();
    EXPECT_EQ(game.text(u"TimeLab"_s), u"1:02:05"_s) << "the switch is remembered";
    solve();
    const QStringList none{u"0"_s, u"0"_s, u"–"_s, u"–"_s};
    EXPECT_EQ(statistics(), QStringList({u"Easy"_s, u"1"_s, u"1"_s, u"1:02:05"_s, u"1:02:05"_s}) +
                                (QStringList{u"Easy, with hints"_s} + none));
    game.prompts.answers = {answer::Yes};
    game.click(u"StatisticsEmpty"_s);
    EXPECT_EQ(statistics(),
              (QStringList{u"Easy"_s} + none) + (QStringList{u"Easy, with hints"_s} + none));
    EXPECT_EQ(mark(), u"Solved"_s);
}

TEST_F(PlayRecord, TheFirstStartTellsTheRulesAndThatDigitsMakeMarks) {
    std::filesystem::create_directory(game.folder.path() + "puzzles");
    std::filesystem::copy_file(TESSALY_DATA "/puzzles/easy.txt",
                               game.folder.path() + "puzzles/easy.txt");
    EXPECT_TRUE(game.find(u"RulesStrip"_s).isVisible());
    game.click(u"cmdshowme"_s);
    EXPECT_EQ(game.number(), u"108"_s);
    game.click(u"cmdcloserules"_s);
    EXPECT_FALSE(game.find(u"RulesStrip"_s).isVisible());
    for (const bool first : {true, false}) {
        game.press(first ? Qt::Key_Home : Qt::Key_End);
        game.press(Qt::Key_3);
        EXPECT_FALSE(game.message().contains(u"pencil"_s));
        game.press(Qt::Key_5);
        EXPECT_EQ(game.message() == u"A second digit makes pencil marks"_s, first);
        game.window->showMessage("");
    }
    game.restart();
    EXPECT_EQ(game.window->findChild<QWidget*>(u"RulesStrip"_s), nullptr);
}

TEST_F(PlayRecord, TheLastNumberSaysThatAllIsSolvedAndEnterGoesOn) {
    const CellId last = lastSelectable(play());
    QWidget& wave = game.find(u"SolvedWave"_s);
    for (const bool shown : {false, true}) {
        game.find<QAction>(u"mnushowtime"_s).setChecked(shown);
        play().isFinished = true; // nothing is said of what comes next
        solve();
        play().place(last, "");
        play().isFinished = false;
        game.window->showMessage("");
        game.pointAt(last);
        game.press(static_cast<Qt::Key>(play().board.SolNum[last].front()));
        EXPECT_TRUE(QTest::qWaitFor([&] { return game.message().startsWith(u"Solved"_s); }));
        EXPECT_EQ(game.message().contains(u" in 0:00 "_s), shown) << game.message().toStdString();
        EXPECT_TRUE(wave.isVisible());
        const QImage lit = game.picture();
        EXPECT_TRUE(QTest::qWaitFor([&] { return !wave.isVisible(); }, 1000));
        EXPECT_NE(game.picture(), lit);
    }
    StillStyle still;
    wave.setStyle(&still);
    game.window->showSolved(last);
    EXPECT_FALSE(wave.isVisible());
    game.press(Qt::Key_Return);
    EXPECT_EQ(game.number(), u"2"_s);
    game.press(Qt::Key_Return);
    EXPECT_EQ(game.number(), u"2"_s) << "this one is not solved";
}

} // namespace tessaly::play_record_test
