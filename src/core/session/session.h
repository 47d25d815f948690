#pragma once

#include "core/board/arrangements.h"
#include "core/board/difficulty.h"
#include "core/board/puzzle_store.h"
#include "core/options/appearance.h"
#include "core/play/busy.h"
#include "core/play/display.h"
#include "core/play/game.h"
#include "core/session/play_book.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <utility>
#include <vector>

namespace tessaly {

/// The puzzle files used last, up to five, the most recent first.
class RecentFiles {
public:
    static constexpr std::size_t Capacity = 5;

    /// Puts `path` at the head, where the oldest may fall off the end. A path that is listed
    /// already keeps its place.
    void AddRecentFile(const std::filesystem::path& path) {
        if (std::find(m_paths.begin(), m_paths.end(), path) != m_paths.end())
            return;
        if (m_paths.size() == Capacity)
            m_paths.pop_back();
        m_paths.insert(m_paths.begin(), path);
    }

    /// Puts `path` behind the others, as when a stored list is read; a full list stays as it is.
    void append(std::filesystem::path path) {
        if (m_paths.size() < Capacity)
            m_paths.push_back(std::move(path));
    }

    const std::vector<std::filesystem::path>& paths() const { return m_paths; }

    friend bool operator==(const RecentFiles&, const RecentFiles&) = default;

private:
    std::vector<std::filesystem::path> m_paths;
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
    /// Where the play is kept; none when it is not.
    std::unique_ptr<PlayBook> book;

    /// Where dialogs for puzzle files open: beside the one in use, or the one used last.
    std::filesystem::path puzzleFolder() const {
        for (const std::filesystem::path& path : {puzzle.PuzPath, last.path})
            if (std::error_code error; std::filesystem::is_directory(path.parent_path(), error))
                return path.parent_path();
        return ProgramFolder;
    }

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
