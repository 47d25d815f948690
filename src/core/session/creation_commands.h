#pragma once

#include "core/session/library_commands.h"
#include "core/solver/chance.h"
#include "core/solver/search_fill.h"

namespace tessaly {

/// The commands that make new puzzles, by the names of the controls that start them.
class CreationCommands {
public:
    CreationCommands(Session& session, LibraryCommands& library, Display& display,
                     LibraryDisplay& libraryDisplay, Prompts& prompts, Chance chance);

    /// Moves the difficulty label one step along Easy, Hard, Random.
    void DifLab();
    /// Makes one puzzle of the difficulty that the label shows, appends it to the current puzzle
    /// file (to the temporary one when there is none), and shows it there.
    void cmdcreate();

private:
    void create(Difficulty difficulty);
    void appendAndShow();
    void showUnsaved();

    Session& m_session;
    LibraryCommands& m_library;
    Display& m_display;
    LibraryDisplay& m_libraryDisplay;
    Prompts& m_prompts;
    SearchFill m_fill;
    Chance m_chance;
};

} // namespace tessaly
