// Plays the first puzzle of a file in a real window until it is killed:
// tessaly_window_player FOLDER FILE

#include "core/session/configuration.h"
#include "core/session/start_up.h"
#include "killed/player.h"
#include "support/core_fakes.h"
#include "support/window_fakes.h"
#include "ui/play/board_view.h"
#include "ui/window/main_window.h"

#include <QApplication>
#include <QTest>

namespace tessaly::killed {
namespace {

int play(int argc, char** argv) {
    const QApplication application(argc, argv);
    Session session;
    ScriptedPrompts prompts;
    ScriptedPrinters printers;
    ScriptedFileDialogs fileDialogs;
    session.ProgramFolder = std::filesystem::path(argv[1]) / "";
    if (const LoadedSession loaded = loadSession(session); !loaded.outcome.ok())
        say("told", loaded.outcome.problem);
    if (const Outcome book = openPlayBook(session); !book.ok())
        say("told", book.problem);
    Form1 window(session, prompts, fileDialogs.dialog(), printers);
    window.show();
    window.files().load(argv[2]);
    auto& board = *window.findChild<BoardView*>();
    if (!QTest::qWaitForWindowExposed(&window))
        return 3;
    const auto press = [&](std::mt19937& chance) {
        constexpr std::array Keys{Qt::Key_Up,   Qt::Key_Down, Qt::Key_Left,      Qt::Key_Right,
                                  Qt::Key_Home, Qt::Key_1,    Qt::Key_2,         Qt::Key_3,
                                  Qt::Key_4,    Qt::Key_5,    Qt::Key_Backspace, Qt::Key_F7};
        const auto key = chance() % (Keys.size() + 3);
        if (key < Keys.size())
            QTest::keyClick(&board, Keys[key]);
        else
            QTest::keyClick(&board, key == Keys.size() ? Qt::Key_Y : Qt::Key_Z,
                            Qt::ControlModifier);
        QApplication::processEvents();
        if (!prompts.shown.empty())
            say("told", prompts.told());
    };
    playForEver(session, press);
}

} // namespace
} // namespace tessaly::killed

int main(int argc, char** argv) {
    return argc == 3
               ? tessaly::killed::sayingWhatFails([&] { return tessaly::killed::play(argc, argv); })
               : 2;
}
