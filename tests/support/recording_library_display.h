#pragma once

#include "core/session/library_display.h"

#include <filesystem>
#include <vector>

namespace tessaly {

/// What a window would show of the puzzle file.
struct RecordingLibraryDisplay : LibraryDisplay {
    void showPuzzle(const CurrentPuzzle& shown) override { puzzle = shown; }
    void showNoPuzzle() override { puzzle = {}; }
    void showDifficulty(DifficultyChoice shown) override { difficulty = shown; }
    void showSaveTarget(const std::filesystem::path& path) override { saveTarget = path; }
    void showRecentFiles(const RecentFiles& files) override { recent = files.paths(); }
    void showBusy(bool busy) override { busyDepth += busy ? 1 : -1; }

    CurrentPuzzle puzzle;
    DifficultyChoice difficulty;
    std::filesystem::path saveTarget;
    std::vector<std::filesystem::path> recent;
    int busyDepth = 0;
};

} // namespace tessaly
