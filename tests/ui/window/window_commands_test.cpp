#include "ui/window/window_commands.h"

#include "ui/game_window.h"
#include "ui/window/file_drop.h"

#include <QAction>
#include <QLineEdit>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

/// Every way into a command, in a window that shows a puzzle.
class CommandGate : public testing::Test {
protected:
    CommandGate() { game.window->files().load(game.folder.puzzles("easy.txt"), 3); }

    void giveEveryCommand() {
        for (const char* item :
             {"mnuload", "mnusavex", "mnusaveto", "mnudelete", "mnuopts", "mnuclippuz",
              "mnuclipsol", "mnucapwin", "mnuprintx_0", "mnuprintx_1", "mnuprintx_2", "mnuprintx_4",
              "mnucreaten_0", "mnucreaten_1"})
            game.find<QAction>(QLatin1String(item)).trigger();
        for (const char* button :
             {"cmdload",    "cmdarrow_0",   "cmdarrow_1",   "cmdcreate", "cmdundo",    "cmdreset",
              "cmdshowsol", "cmdallpencil", "cmdsetpairs",  "cmdset1s",  "StatLab",    "digt_3",
              "Command1",   "Command2",     "Command4",     "Command5",  "Command12x", "Command3",
              "Command6",   "DebugSolve",   "FixXcellPairs"})
            click(button);
        for (const char* button : {"cmdallpencil", "Command5"})
            click(button, Qt::RightButton);
        QTest::keyClick(&game.find<QLineEdit>(u"PuzNumNow"_s), Qt::Key_Return);
        Q_EMIT game.window->findChild<FileDrop*>()->dropped(
            QString::fromStdString(game.session.puzzle.PuzPath));
    }
    void click(const char* name, Qt::MouseButton button = Qt::LeftButton) {
        // Dialogs and pickers have controls of the same names.
        for (auto* control : game.window->findChildren<BoxControl*>(QLatin1String(name)))
            if (control->window() == game.window.get() &&
                qobject_cast<FNDialog*>(control->parentWidget()) == nullptr)
                QTest::mouseClick(control, button);
    }

    GameWindow game;
};

TEST_F(CommandGate, WhilePuzzlesAreCreatedEveryCommandIsRefusedWithAWord) {
    const Board before = game.session.game.board;
    const std::size_t entrances = 14 + 21 + 2 + 1 + 1;
    game.session.busy.creating = true;
    giveEveryCommand();
    EXPECT_EQ(game.prompts.shown.size(), entrances);
    for (const auto& [text, style] : game.prompts.shown)
        EXPECT_EQ(text + '/' + style, "Let AutoCreate finish first/vbcritical+vbok");
    game.find<QAction>(u"oldfiles_0"_s).trigger();
    EXPECT_EQ(game.prompts.shown.back().text, "Cancel Puzzle Creation first");

    game.session.busy = {.creating = false, .commandRunning = true};
    giveEveryCommand();
    EXPECT_EQ(game.prompts.shown.size(), entrances + 1) << "a short command is waited for silently";
    EXPECT_EQ(game.session.game.board, before);
    EXPECT_EQ(game.session.puzzle.PuzNum, 3);
}

} // namespace
} // namespace tessaly
