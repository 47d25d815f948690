#include "ui/window/window_commands.h"

#include "core/session/session.h"
#include "ui/window/window_display.h"

namespace tessaly {

WindowCommands::WindowCommands(Session& session, const CommandWindow& window)
    : puzzleFiles(window.picker, session.ProgramFolder)
    , creationDialog(session.appearance, window.fileDialogs, window.prompts, session.ProgramFolder,
                     window.widget)
    , printDialog(session.appearance, window.printers, window.fileDialogs, window.prompts,
                  session.ProgramFolder, window.widget)
    , printProgress(session.appearance, window.widget)
    , play(session.game, session.busy, session.appearance, window.display, window.prompts)
    , input(session.game, session.busy, play, window.display, window.display, window.prompts)
    , library(session, window.display, window.display, window.prompts, puzzleFiles)
    , creation(session, library, window.display, window.display, window.prompts,
               Chance(Chance::freshSeed()))
    , multipleCreation(
          session, library,
          {window.display, window.display, window.display, window.prompts, creationDialog},
          Chance(Chance::freshSeed()))
    , developer(session, window.display, window.prompts)
    , maintenance(session, {window.display, window.display, window.display, window.prompts},
                  Chance(Chance::freshSeed()))
    , pictures(session, {window.widget, window.display, window.prompts, window.picker})
    , print(session, window.printers,
            {window.widget, window.display, window.prompts, window.picker, printDialog,
             printProgress}) {}

void WindowCommands::stop() {
    multipleCreation.stop();
    maintenance.stop();
    print.stop();
}

} // namespace tessaly
