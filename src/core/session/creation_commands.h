#pragma once

#include "core/session/puzzle_file_commands.h"
#include "core/solver/chance.h"
#include "core/solver/search_fill.h"

namespace tessaly {

/// The commands that make new puzzles, by the names of the controls that start them.
class CreationCommands {
public:
    CreationCommands(Session& session, PuzzleFileCommands& files, Display& display, Chance chance);

    /// Moves the difficulty label one step along Easy, Hard, Random.
    void DifLab();
    /// Makes one puzzle of the difficulty that the label shows, appends it to the current puzzle
    /// file (to the temporary one when there is none), and shows it there.
    void cmdcreate();

private:
    void create(Difficulty difficulty);
    void save();

    Session& m_session;
    PuzzleFileCommands& m_files;
    Display& m_display;
    SearchFill m_fill;
    Chance m_chance;
};

} // namespace tessaly
