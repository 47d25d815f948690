#include "ui/window/shortcuts.h"

#include "ui/controls/box_control.h"
#include "ui/game_window.h"
#include "ui/play/board_keys.h"

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QShortcut>
#include <QSignalSpy>

#include <set>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

class ShortcutsTest : public testing::Test {
protected:
    ShortcutsTest() { game.window->files().load(game.folder.puzzles("easy.txt")); }

    void press(QKeyCombination keys) {
        QTest::keyClick(QApplication::focusWidget(), keys.key(), keys.keyboardModifiers());
    }
    int number() { return game.session.puzzle.PuzNum; }

    GameWindow game;
};

/// Everything that a menu item or a button of the window does has keys of its own, none of which
/// the board takes for itself.
TEST_F(ShortcutsTest, EveryCommandHasKeysOfItsOwn) {
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
            action->menu() == nullptr && action->text() != u"Cancel"_s)
            expectOwn(action->shortcut(), action->objectName());
    for (BoxControl* button : game.window->centralWidget()->findChildren<BoxControl*>()) {
        if (!button->isVisible())
            continue;
        ASSERT_FALSE(button->shownKeys().isEmpty()) << button->objectName().toStdString();
        if (!button->shortcut().isEmpty())
            expectOwn(button->shortcut(), button->objectName());
        else
            EXPECT_TRUE(taken.contains(button->shownKeys().front().toString()));
    }
}

TEST_F(ShortcutsTest, TheKeysDoWhatTheButtonsDo) {
    press(Qt::Key_PageDown);
    press(Qt::Key_PageDown);
    EXPECT_EQ(number(), 3);
    press(Qt::Key_PageUp);
    EXPECT_EQ(number(), 2);

    press(Qt::CTRL | Qt::Key_G);
    auto& box = game.find<QLineEdit>(u"PuzNumNow"_s);
    ASSERT_TRUE(box.hasFocus());
    QTest::keyClicks(&box, u"7"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(number(), 7);
    EXPECT_TRUE(game.board().hasFocus());

    press(Qt::Key_Home);
    press(Qt::Key_4);
    const std::size_t steps = game.session.game.undoList.size();
    EXPECT_EQ(steps, 1u);
    press(Qt::CTRL | Qt::Key_Z);
    EXPECT_EQ(game.session.game.undoList.size(), 0u);
    press(Qt::CTRL | Qt::Key_L);
    EXPECT_EQ(game.find<BoxControl>(u"DifLab"_s).text(), u"Hard"_s);
    press(Qt::CTRL | Qt::Key_L);
    EXPECT_EQ(game.find<BoxControl>(u"DifLab"_s).text(), u"Random"_s);
    press(Qt::ALT | Qt::Key_3);
    EXPECT_TRUE(game.find<BoxControl>(u"digt_2"_s).isLatched());
    press(Qt::Key_F5);
    EXPECT_EQ(game.message(), u"Not done yet ..."_s);
}

TEST_F(ShortcutsTest, TheAlternateKeysDoWhatTheRightButtonDoes) {
    QSignalSpy cleared(&game.find<BoxControl>(u"cmdallpencil"_s), &BoxControl::alternateClicked);
    QSignalSpy filled(&game.find<BoxControl>(u"cmdallpencil"_s), &BoxControl::clicked);
    game.prompts.answers = {answer::No};
    press(Qt::SHIFT | Qt::Key_F6);
    EXPECT_EQ(cleared.count(), 1);
    EXPECT_EQ(filled.count(), 0);
}

TEST_F(ShortcutsTest, TheSolutionShowsForAsLongAsItsKeyIsDown) {
    auto& button = game.find<BoxControl>(u"cmdshowsol"_s);
    const QImage before = game.board().grab().toImage();
    QTest::keyPress(&game.board(), Qt::Key_F2);
    EXPECT_TRUE(button.isDown());
    EXPECT_NE(game.board().grab().toImage(), before);
    QTest::keyPress(&game.board(), Qt::Key_F2); // held down, the key repeats
    QTest::keyRelease(&game.board(), Qt::Key_F3);
    EXPECT_TRUE(button.isDown());
    QTest::keyRelease(&game.board(), Qt::Key_F2);
    EXPECT_FALSE(button.isDown());
    EXPECT_EQ(game.board().grab().toImage(), before);

    QTest::keyPress(&game.board(), Qt::Key_F2);
    QEvent away(QEvent::WindowDeactivate);
    QApplication::sendEvent(game.window.get(), &away);
    EXPECT_FALSE(button.isDown()) << "the window will not see the key come up";
}

/// A key that comes with Ctrl, Alt or Meta is no entry, whatever character it makes.
TEST_F(ShortcutsTest, TheBoardTakesNoKeysThatArePartOfAShortcut) {
    press(Qt::Key_Home);
    press(Qt::Key_4);
    const Board played = game.session.game.board;
    for (const Qt::KeyboardModifier modifier : {Qt::ControlModifier, Qt::MetaModifier}) {
        QTest::sendKeyEvent(QTest::Click, &game.board(), Qt::Key_H, QString(QChar(8)), modifier);
        QTest::sendKeyEvent(QTest::Click, &game.board(), Qt::Key_6, u"6"_s, modifier);
    }
    EXPECT_EQ(game.session.game.board, played);
}

TEST_F(ShortcutsTest, ToolTipsKeepTheirTextAndNameTheKeysBeneath) {
    EXPECT_EQ(game.find(u"cmdundo"_s).toolTip(), u"Undo"_s);
    EXPECT_EQ(game.find<BoxControl>(u"cmdundo"_s).toolTipWithKeys(), u"Undo\nCtrl+Z"_s);
    EXPECT_EQ(game.find<BoxControl>(u"cmdload"_s).toolTipWithKeys(),
              u"Load a Puzzle File\nCtrl+O"_s);
    EXPECT_EQ(game.find<BoxControl>(u"cmdallpencil"_s).toolTipWithKeys(),
              u"Display All Pencilmarks; rightclick to clear\nF6; Shift+F6"_s);
    EXPECT_EQ(BoxControl(u"Plain"_s, nullptr).toolTipWithKeys(), QString());
}

} // namespace
} // namespace tessaly
