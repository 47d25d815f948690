#pragma once

#include "core/board/arrangements.h"
#include "core/board/difficulty.h"
#include "core/board/puzzle_store.h"
#include "core/options/appearance.h"
#include "core/play/busy.h"
#include "core/play/display.h"
#include "core/play/game.h"
#include "core/session/recent_files.h"

#include <filesystem>
#include <string>

namespace tessaly {

/// The puzzle that was shown when the game ended last.
struct LastPuzzle {
    std::filesystem::path path;
    int number = 1;
};

/// All that lives for the whole run of the game, owned once and handed on by reference.
struct Session {
    /// Where the program's data files lie; ends in "/".
    std::filesystem::path ProgramFolder;
    ArrangementTable arrangements;
    Appearance appearance;

    PuzzleStore files;
    RecentFiles recentFiles;
    /// The file that "Save to" offers; empty for none.
    std::filesystem::path saveTarget;

    LastPuzzle last;
    CurrentPuzzle puzzle;
    Game game;
    /// What the difficulty label shows, and so what the next puzzle will be.
    DifficultyChoice difficulty;
    BusyState busy;
    /// Whether there is a configuration that could not be read, and so must not be written over.
    bool configurationIsUnread = false;
    /// Whether the developer's commands are shown.
    bool developer = false;
};

} // namespace tessaly
