#include "ui/window/shortcuts.h"

#include "ui/game_window.h"
#include "ui/play/board_keys.h"

#include <QMenu>
#include <QSignalSpy>

namespace tessaly {
namespace {

struct ShortcutsTest : testing::Test {
    GameWindow game{"easy.txt"};
};

TEST_F(ShortcutsTest, EveryCommandHasKeysOfItsOwnThatTheBoardDoesNotTake) {
    std::set<QString> taken;
    const auto expectOwn = [&taken](const QKeySequence& keys, const QString& name) {
        SCOPED_TRACE(name.toStdString() + ' ' + keys.toString().toStdString());
        ASSERT_FALSE(keys.isEmpty());
        EXPECT_TRUE(taken.insert(keys.toString()).second) << "is shared";
        const QKeyEvent event(QEvent::KeyPress, keys[0].key(), keys[0].keyboardModifiers());
        EXPECT_EQ(keyCodeOf(event), 0) << "the board takes it";
    };
    for (const QAction* action : game.window->findChildren<QAction*>())
        if (!action->objectName().isEmpty() && !action->isSeparator() &&
            action->menu() == nullptr && action->text() != u"Cancel"_s &&
            !action->objectName().startsWith(u"oldfiles"_s)) // a slip of the hand ends a play
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

TEST_F(ShortcutsTest, TheKeysDoWhatTheControlsDo) {
    const QSignalSpy filled(&game.find<BoxControl>(u"cmdallpencil"_s), &BoxControl::clicked);
    game.prompts.answers = {answer::No};
    game.press(Qt::SHIFT | Qt::Key_F6); // as the right button
    EXPECT_EQ(game.lastPrompt().text, "Existing Pencilmarks will be cleared, Proceed?");
    EXPECT_EQ(filled.count(), 0);
    game.press(Qt::Key_PageDown);
    EXPECT_EQ(game.number(), u"2"_s);
    game.press(Qt::CTRL | Qt::Key_G);
    EXPECT_TRUE(game.find(u"PuzNumNow"_s).hasFocus());
    game.press(Qt::Key_7); // the old number is selected
    game.press(Qt::Key_Return);
    EXPECT_EQ(game.session.puzzle.PuzNum, 7);
    game.press(Qt::CTRL | Qt::Key_L);
    game.press(Qt::CTRL | Qt::Key_L);
    EXPECT_EQ(game.find<BoxControl>(u"DifLab"_s).text(), u"Random"_s) << "it keeps its keys";
    game.press(Qt::ALT | Qt::Key_3);
    EXPECT_TRUE(game.find<BoxControl>(u"digt_2"_s).isLatched());

    game.press(Qt::Key_Home);
    game.press(Qt::Key_4);
    const Board played = game.session.game.board;
    for (const Qt::KeyboardModifier modifier : {Qt::ControlModifier, Qt::MetaModifier}) {
        QTest::sendKeyEvent(QTest::Click, &game.board(), Qt::Key_H, QString(QChar(8)), modifier);
        QTest::sendKeyEvent(QTest::Click, &game.board(), Qt::Key_6, u"6"_s, modifier);
    }
    EXPECT_EQ(game.session.game.board, played) << "part of a shortcut is no entry";
    game.press(Qt::CTRL | Qt::Key_Z);
    EXPECT_NE(game.session.game.board, played);
}

} // namespace
} // namespace tessaly
