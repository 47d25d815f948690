#pragma once

#include "core/board/difficulty.h"
#include "core/session/recent_files.h"

#include <filesystem>
#include <string>

namespace tessaly {

/// Which puzzle of which file is on the board.
struct CurrentPuzzle {
    /// The puzzle file; empty when there is none.
    std::filesystem::path PuzPath;
    /// The puzzle shown, from 1; 0 when none is.
    int PuzNum = 0;
    /// The records in the file.
    int PuzCount = 0;
    /// The record as the file held it.
    std::string record;
};

/// What the window shows of the puzzle file.
class LibraryDisplay {
public:
    virtual ~LibraryDisplay() = default;

    /// Another puzzle is on the board.
    virtual void showPuzzle(const CurrentPuzzle& puzzle) = 0;
    /// There is none.
    virtual void showNoPuzzle() = 0;
    /// What the difficulty label shows.
    virtual void showDifficulty(DifficultyChoice difficulty) = 0;
    /// The file that "Save to" offers; empty for none.
    virtual void showSaveTarget(const std::filesystem::path& path) = 0;
    virtual void showRecentFiles(const RecentFiles& files) = 0;
    /// Shows or ends the busy pointer.
    virtual void showBusy(bool busy) = 0;
};

} // namespace tessaly
