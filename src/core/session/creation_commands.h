#pragma once

#include "core/session/puzzle_file_commands.h"
#include "core/solver/chance.h"
#include "core/solver/search_fill.h"

#include <chrono>

namespace tessaly {

/// The commands that make new puzzles, by the names of the controls that start them.
class CreationCommands {
public:
    CreationCommands(Session& session, PuzzleFileCommands& files, Display& display, Chance chance);

    /// Moves the difficulty label one step along Easy, Hard, Random.
    void DifLab();
    /// Makes one puzzle of the difficulty that the label shows, appends it to the current puzzle
    /// file (to the temporary one when there is none, or it is that of the days), and shows it
    /// there.
    void cmdcreate();
    /// Shows the puzzle of a day and of the difficulty that the label shows, the same for
    /// everybody. "today.txt" keeps those that were asked for.
    void mnutoday(std::chrono::year_month_day day);

private:
    void create(Difficulty difficulty);
    void save();
    void saveForDay(std::string_view record);
    void showWhereItStands(const std::filesystem::path& path, int number, Outcome saved);
    void tellCreated(DifficultyChoice asked, std::string_view what, Difficulty difficulty);

    Session& m_session;
    PuzzleFileCommands& m_files;
    Display& m_display;
    SearchFill m_fill;
    Chance m_chance;
};

} // namespace tessaly
