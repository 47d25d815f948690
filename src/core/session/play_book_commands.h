#pragma once

#include "core/session/puzzle_file_commands.h"

namespace tessaly {

/// The commands of the menu "Play" about what the play book knows of the puzzles of a file, by the
/// names of their items. The window lives on while a large file is gone through.
class PlayBookCommands {
public:
    PlayBookCommands(Session& session, PlayKeeping& keeping, PuzzleFileCommands& files,
                     Display& display, Prompts& prompts);

    /// Shows the next puzzle of the file that was never solved, around the end of the file.
    void mnunextunsolved();
    /// Both ask first.
    void mnuforgetpuzzle();
    void mnuforgetfile();

private:
    int nextUnsolved();
    bool confirmed(std::string_view question);
    void showAgain();

    Session& m_session;
    PlayKeeping& m_keeping;
    PuzzleFileCommands& m_files;
    Display& m_display;
    Prompts& m_prompts;
};

} // namespace tessaly
