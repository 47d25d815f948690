#pragma once

#include "core/base/run_progress.h"
#include "core/board/board.h"
#include "core/files/file_descriptor.h"
#include "core/options/colour.h"
#include "core/play/board_geometry.h"
#include "core/play/hint_guide.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tessaly {

/// Which puzzle of which file is on the board.
struct CurrentPuzzle {
    /// The puzzle file; empty when there is none.
    std::filesystem::path PuzPath;
    /// The puzzle shown, from 1; 0 when none is, or one that stands in no file.
    int PuzNum = 0;
    /// The records in the file.
    int PuzCount = 0;
    /// The record as the file held it.
    std::string record;
};

/// What the commands need of the window. The board itself they change directly.
class Display {
public:
    virtual ~Display() = default;

    virtual void DrawHexagon(int hexagon) = 0;
    virtual void DrawBoard() = 0;
    void DrawHexagons(const HexagonSet& hexagons) {
        for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon)
            if (hexagons.test(static_cast<std::size_t>(hexagon)))
                DrawHexagon(hexagon);
    }
    /// Writes the solution over every cell that is no given; drawing the board takes it away again.
    virtual void DrawSolution(Colour colour) = 0;
    /// Marks on the board what a hint speaks of; an empty one takes that away.
    virtual void showHint(const Hint& hint) = 0;
    /// Draws a hexagon as another board has it, until the hexagon is drawn again.
    virtual void DrawPeek(const Board& other, int hexagon) = 0;
    virtual void focusBoard() = 0;

    /// Moves the marker to the cell that the keys go to, a given among them; no cell hides it.
    virtual void showSelection(CellId cell) = 0;
    /// Shows the number pop-up with a corner at a point: its top left one, or, when `upwards`, its
    /// bottom left one. Starts the timer that closes it.
    virtual void showPopup(Point corner, bool upwards) = 0;
    virtual void hidePopup() = 0;
    /// Draws the palette with one item pressed (0..6), or with none (-1).
    virtual void showPalette(int pressedItem) = 0;

    /// Another puzzle is on the board, or none.
    virtual void showPuzzle(const CurrentPuzzle& puzzle) = 0;
    /// The play has changed: what can be taken back, how far the puzzle is.
    virtual void showPlay() = 0;
    /// The board has come out right with a number in this cell, or with none in particular.
    virtual void showSolved(CellId last) = 0;
    /// What the difficulty label shows.
    virtual void showDifficulty(DifficultyChoice difficulty) = 0;
    /// The file that "Save to" offers; empty for none.
    virtual void showSaveTarget(const std::filesystem::path& path) = 0;
    /// The puzzle files used last, the most recent first.
    virtual void showRecentFiles(const std::vector<std::filesystem::path>& paths) = 0;
    /// Shows a text on the message line; an empty one clears it.
    virtual void showMessage(std::string_view text) = 0;
    /// Says a text to whoever hears the board instead of seeing it; nothing is shown.
    virtual void announce(std::string_view text) = 0;

    /// Shows or ends the busy pointer.
    virtual void showBusy(bool busy) = 0;
    /// Shows how far a long run is; `path` is the file that it is about.
    virtual void beginProgress(const std::filesystem::path& path) = 0;
    virtual void showProgress(const RunProgress& progress) = 0;
    virtual void endProgress() = 0;
    /// Lets the window handle what has come in meanwhile.
    virtual void yield() = 0;
    /// Does something after a while, unless the window is gone by then.
    virtual void afterwards(std::chrono::milliseconds delay, std::function<void()> what) = 0;
    /// Waits for a file that another program is writing, says so and lets the window live: calls
    /// `attempt` until it answers true, or the player gives up. Whether it did.
    virtual bool waitFor(const std::filesystem::path& path,
                         const std::function<bool()>& attempt) = 0;
    /// The same, for who writes a file.
    LockWait waiting() {
        return [this](const auto& path, const auto& attempt) { return waitFor(path, attempt); };
    }
};

} // namespace tessaly
