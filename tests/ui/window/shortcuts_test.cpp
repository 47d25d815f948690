#include "ui/window/shortcuts.h"

#include "ui/controls/box_control.h"
#include "ui/game_window.h"
#include "ui/play/board_keys.h"

#include <QApplication>
#include <QMenu>
#include <QSignalSpy>

#include <set>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

struct ShortcutsTest : testing::Test {
    ShortcutsTest() { game.load("easy.txt"); }
    void press(QKeyCombination keys) {
        QTest::keyClick(QApplication::focusWidget(), keys.key(), keys.keyboardModifiers());
    }
    GameWindow game;
};

TEST_F(ShortcutsTest, EveryCommandHasKeysOfItsOwnThatTheBoardDoesNotTake) {
    std::set<QString> taken;
    const auto expectOwn = [&taken](const QKeySequence& keys, const QString& name) {
        EXPECT_FALSE(keys.isEmpty()) << name.toStdString() << " has no keys";
        EXPECT_TRUE(taken.insert(keys.toString()).second)
            << name.toStdString() << " shares " << keys.toString().toStdString();
        const QKeyEvent event(QEvent::KeyPress, keys[0].key(), keys[0].keyboardModifiers());
        EXPECT_EQ(keyCodeOf(event), 0) << name.toStdString() << ": the board takes its keys";
    };
    for (const QAction* action : game.window->findChildren<QAction*>())
        if (!action->objectName().isEmpty() && !action->isSeparator() &&
            action->menu() == nullptr && action->text() != u"Cancel"_s &&
            !action->objectName().startsWith(u"oldfiles"_s)) // a slip of the hand ends a play
            expectOwn(action->shortcut(), action->objectName());
    for (BoxControl* button : game.window->centralWidget()->findChildren<BoxControl*>()) {
        if (!button->isVisible())
            continue;
        EXPECT_NE(button->toolTip() + button->text(), QString());
        ASSERT_FALSE(button->shownKeys().isEmpty()) << button->objectName().toStdString();
        if (!button->shortcut().isEmpty())
            expectOwn(button->shortcut(), button->objectName());
        else
            EXPECT_TRUE(taken.contains(button->shownKeys().front().toString()));
    }
    EXPECT_EQ(game.find<BoxControl>(u"cmdallpencil"_s).toolTipWithKeys(),
              u"Display All Pencilmarks; rightclick to clear\nF6; Shift+F6"_s);
}

TEST_F(ShortcutsTest, TheKeysDoWhatTheControlsDo) {
    QSignalSpy filled(&game.find<BoxControl>(u"cmdallpencil"_s), &BoxControl::clicked);
    game.prompts.answers = {answer::No};
    press(Qt::SHIFT | Qt::Key_F6); // as the right button
    EXPECT_EQ(game.lastPrompt().text, "Existing Pencilmarks will be cleared, Proceed?");
    EXPECT_EQ(filled.count(), 0);
    press(Qt::Key_PageDown);
    EXPECT_EQ(game.number(), u"2"_s);
    press(Qt::CTRL | Qt::Key_G);
    EXPECT_TRUE(game.find(u"PuzNumNow"_s).hasFocus());
    press(Qt::Key_7); // the old number is selected
    press(Qt::Key_Return);
    EXPECT_EQ(game.session.puzzle.PuzNum, 7);
    press(Qt::CTRL | Qt::Key_L);
    press(Qt::CTRL | Qt::Key_L);
    EXPECT_EQ(game.find<BoxControl>(u"DifLab"_s).text(), u"Random"_s) << "it keeps its keys";
    press(Qt::ALT | Qt::Key_3);
    EXPECT_TRUE(game.find<BoxControl>(u"digt_2"_s).isLatched());

    press(Qt::Key_Home);
    press(Qt::Key_4);
    const Board played = game.session.game.board;
    for (const Qt::KeyboardModifier modifier : {Qt::ControlModifier, Qt::MetaModifier}) {
        QTest::sendKeyEvent(QTest::Click, &game.board(), Qt::Key_H, QString(QChar(8)), modifier);
        QTest::sendKeyEvent(QTest::Click, &game.board(), Qt::Key_6, u"6"_s, modifier);
    }
    EXPECT_EQ(game.session.game.board, played) << "part of a shortcut is no entry";
    press(Qt::CTRL | Qt::Key_Z);
    EXPECT_NE(game.session.game.board, played);
}

TEST_F(ShortcutsTest, TheSolutionShowsForAsLongAsItsKeyIsDown) {
    auto& button = game.find<BoxControl>(u"cmdshowsol"_s);
    const QImage before = game.board().grab().toImage();
    QTest::keyPress(&game.board(), Qt::Key_F2);
    EXPECT_NE(game.board().grab().toImage(), before);
    QTest::keyPress(&game.board(), Qt::Key_F2); // held down, the key repeats
    QTest::keyRelease(&game.board(), Qt::Key_F3);
    EXPECT_TRUE(button.isDown());
    QTest::keyRelease(&game.board(), Qt::Key_F2);
    EXPECT_FALSE(button.isDown());
    EXPECT_EQ(game.board().grab().toImage(), before);
    QTest::keyPress(&game.board(), Qt::Key_F2);
    QEvent away(QEvent::WindowBlocked);
    QApplication::sendEvent(game.window.get(), &away);
    EXPECT_FALSE(button.isDown()) << "the window will not see the key come up";
}

} // namespace
} // namespace tessaly
