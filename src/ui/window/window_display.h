#pragma once

#include "core/play/board_input.h"
#include "core/play/display.h"
#include "core/session/library_display.h"
#include "core/session/multiple_creation.h"

namespace tessaly {

class BoardView;
class MainMenu;
class PalettePanel;
class StatusLine;
class ToolRow;
struct Session;

/// The regions of the main window.
struct WindowRegions {
    MainMenu& menu;
    ToolRow& tools;
    BoardView& board;
    PalettePanel& palette;
    StatusLine& status;
};

/// What the commands show, passed on to the region of the window that shows it.
class WindowDisplay final : public Display,
                            public InputDisplay,
                            public LibraryDisplay,
                            public RunProgressDisplay {
public:
    WindowDisplay(const Session& session, const WindowRegions& regions);

    void DrawHexagon(int hexagon) override;
    void DrawBoard() override;
    void DrawSolution(Colour colour) override;
    void showMessage(std::string_view text) override;
    void focusBoard() override;
    void yield() override;

    void showSelection(CellId cell) override;
    void showPopup(Point corner, bool upwards) override;
    void hidePopup() override;
    void showPalette(int pressedItem) override;

    void showPuzzle(const CurrentPuzzle& puzzle) override;
    void showNoPuzzle() override;
    void showDifficulty(DifficultyChoice difficulty) override;
    void showSaveTarget(const std::string& path) override;
    void showRecentFiles(const RecentFiles& files) override;
    void showBusy(bool busy) override;

    void beginProgress(const std::string& path) override;
    void showProgress(const RunProgress& progress) override;
    void endProgress() override;

private:
    const Session& m_session;
    WindowRegions m_regions;
};

} // namespace tessaly
