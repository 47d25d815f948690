#include "ui/window/window_commands.h"

#include "core/board/puzzle_record.h"
#include "ui/play/board_keys.h"
#include "ui/window/developer_row.h"
#include "ui/window/file_drop.h"
#include "ui/window/shortcuts.h"

#include "ui/game_window.h"

#include <QMenu>
#include <QSignalSpy>

namespace tessaly::window_commands_test {

struct WindowCommandsTest : testing::Test {
    /// Goes every way into a command but into those that touch no puzzle; how many there are.
    std::size_t giveEveryCommand() {
        const std::set<QString> harmless{u"cmdexit"_s,  u"mnuhelp"_s,     u"mnuabout"_s,
                                         u"DifLab"_s,   u"mnushowtime"_s, u"mnumakemarks"_s,
                                         u"cmdpencil"_s};
        std::size_t ways = 4;
        for (QAction* item : game.window->findChildren<QAction*>())
            if (!item->shortcut().isEmpty() && item->isEnabled() &&
                !harmless.contains(item->objectName())) {
                item->trigger();
                ++ways;
            }
        for (auto* button : game.window->centralWidget()->findChildren<BoxControl*>())
            if (button->isVisible() && button->isEnabled() &&
                !harmless.contains(button->objectName())) {
                QTest::mouseClick(button, Qt::LeftButton);
                ++ways;
            }
        game.click(u"cmdallpencil"_s, Qt::RightButton);
        press(u"Command5"_s, Qt::RightButton);
        QTest::keyClick(&game.find(u"PuzNumNow"_s), Qt::Key_Return);
        Q_EMIT game.window->findChild<FileDrop*>()->dropped(game.session.puzzle.PuzPath);
        return ways;
    }
    void press(const QString& developersButton, Qt::MouseButton with = Qt::LeftButton) {
        QTest::mouseClick(&find(developer, developersButton), with);
    }
    std::string said() { return game.lastPrompt().text; }

    GameWindow game{"hard.txt", 3, nullptr, true};
    DeveloperRow& developer = *game.window->findChild<DeveloperRow*>();
    const Board& board = game.session.game.board;
};

TEST_F(WindowCommandsTest, WhilePuzzlesAreCreatedEveryCommandIsRefusedWithAWord) {
    const Board before = board;
    game.session.busy.creating = true;
    const std::size_t ways = giveEveryCommand();
    EXPECT_GT(ways, 40U);
    EXPECT_EQ(game.prompts.shown.size(), ways);
    for (const auto& [text, style] : game.prompts.shown)
        EXPECT_EQ(std::string(text).append("/").append(style),
                  "Let AutoCreate finish first/vbcritical+vbok");
    game.choose(u"oldfiles_0"_s);
    EXPECT_EQ(said(), "Cancel Puzzle Creation first");

    game.session.busy = {.creating = false, .commandRunning = true};
    giveEveryCommand();
    EXPECT_EQ(game.prompts.shown.size(), ways + 1) << "a short command is waited for silently";
    EXPECT_EQ(board, before);
    EXPECT_EQ(game.session.puzzle.PuzNum, 3);
}

TEST(OfferedCommands, AreThoseThatMakeSenseNow) {
    GameWindow game;
    const auto offered = [&game](const QStringList& controls) {
        QStringList names;
        for (const QString& name : controls)
            if (game.find<QObject>(name).property("enabled").toBool())
                names << name;
        return names;
    };
    const QStringList ofPuzzles{u"cmdreset"_s,    u"StatLab"_s,    u"mnuclipsol"_s, u"mnusavex"_s,
                                u"mnuprintx_2"_s, u"cmdarrow_1"_s, u"PuzNumNow"_s,  u"mnudelete"_s};
    EXPECT_EQ(offered(ofPuzzles), QStringList());
    game.load("easy.txt");
    EXPECT_EQ(offered(ofPuzzles), ofPuzzles);
    const QStringList undo{u"cmdundo"_s, u"mnuundo"_s};
    const QStringList redo{u"cmdredo"_s, u"mnuredo"_s};
    EXPECT_EQ(offered(undo + redo), QStringList());
    game.press(Qt::Key_Home);
    game.press(Qt::Key_4);
    EXPECT_EQ(offered(undo + redo), undo);
    game.find(u"cmdundo"_s).setFocus();
    game.press(Qt::Key_Space);
    EXPECT_EQ(offered(undo + redo), redo);
    EXPECT_TRUE(game.board().hasFocus()) << "the focus is not lost with the button";
    game.press(Qt::CTRL | Qt::Key_Y);
    EXPECT_EQ(offered(undo + redo), undo);
}

TEST_F(WindowCommandsTest, PuzzlesAreSavedToAndDeletedFromFilesWhateverTheirName) {
    const std::string saved = PuzzleRecord(board) + "\r\n";
    for (const char* name : {"\"q\" & 'b'.dat", "line\nfeed.txt", "ü 50%.txt"}) {
        const std::string path = game.folder.path() + name;
        game.fileDialogs.add(QString::fromStdString(path));
        game.choose(u"mnusavex"_s);
        EXPECT_EQ(said(), "Puzzle#1 added to file " + path);
        game.choose(u"mnusaveto"_s);
        EXPECT_EQ(contentOf(path), saved + saved);
        EXPECT_EQ(game.text(u"PuzFileName"_s) + game.number(), QString::fromUtf8(name) + u'2');
        game.prompts.answers = {answer::Yes};
        game.choose(u"mnudelete"_s);
        EXPECT_EQ(contentOf(path), saved);
    }
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    const FileQuestion& asked = game.fileDialogs.asked.back();
    EXPECT_EQ(asked.folder.toStdString(), game.folder.path());
    EXPECT_EQ(asked.title + asked.kind,
              u"Select an output Puzzle fileTessaly Files (*.txt;*.dat;*.tessaly)"_s);
    EXPECT_TRUE(asked.saving);
}

TEST_F(WindowCommandsTest, SixFilesLeaveTheFiveLatestInTheMenu) {
    const auto item = [this](const QString& name) {
        return game.find<QAction>(name).text().section(u'/', -1);
    };
    for (const char* name : {"1", "2", "3", "4", "5", "6"})
        game.window->files().load(game.folder.puzzles("easy.txt", name + std::string(" & co.txt")));
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(item(u"oldfiles_%1"_s.arg(i)), u"%1 && co.txt"_s.arg(6 - i));
    game.choose(u"oldfiles_3"_s);
    EXPECT_EQ(game.text(u"PuzFileName"_s), u"3 & co.txt"_s);
    EXPECT_EQ(item(u"mnusaveto"_s), u"3 && co.txt"_s);
}

TEST_F(WindowCommandsTest, TheDevelopersButtonsReachTheirCommands) {
    const Board before = board;
    press(u"Command12x"_s);
    EXPECT_EQ(said().find("Error in cell 0"), 0U) << said();
    press(u"Command5"_s);
    EXPECT_EQ(said().find("AutosolveHard, fixed, Cell="), 0U) << said();
    EXPECT_EQ(board, before);
    press(u"Command5"_s, Qt::RightButton);
    EXPECT_NE(board, before);
    press(u"Command6"_s);
    EXPECT_EQ(board, before);
    game.prompts.lines = {"015 46"};
    press(u"Command3"_s);
    EXPECT_EQ(board.CellNum[1][5], "46");
    for (const auto& [name, file] : {std::pair(u"Command1"_s, "addnew.txt: "),
                                     {u"Command2"_s, "addnewr.txt: "},
                                     {u"Command4"_s, "puzzles20k.txt: "}}) {
        press(name);
        EXPECT_NE(said().find(file), std::string::npos) << "there is no such file: " << said();
    }
}

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
            action->menu() == nullptr && !(action->isCheckable() && action->shortcut().isEmpty()) &&
            action->text() != u"Cancel"_s &&
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
    QTest::sendKeyEvent(QTest::Click, &game.board(), Qt::Key_6, u"6"_s, Qt::MetaModifier);
    EXPECT_EQ(game.session.game.board, played) << "part of a shortcut is no entry";
    game.press(Qt::CTRL | Qt::Key_Z);
    EXPECT_NE(game.session.game.board, played);
}

} // namespace tessaly::window_commands_test
