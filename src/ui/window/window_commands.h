#pragma once

#include "core/play/board_input.h"
#include "core/play/display.h"
#include "core/play/play_commands.h"
#include "core/session/creation_commands.h"
#include "core/session/developer_commands.h"
#include "core/session/library_commands.h"
#include "core/session/library_display.h"
#include "core/session/maintenance_commands.h"
#include "core/session/multiple_creation.h"
#include "ui/controls/file_name_picker.h"
#include "ui/output/export_commands.h"
#include "ui/output/print_commands.h"
#include "ui/output/print_dialog.h"
#include "ui/output/print_progress.h"
#include "ui/window/multiple_creation_dialog.h"

#include <filesystem>

namespace tessaly {

class BoardView;
class FNDialog;
class FileDialogs;
class MainMenu;
class PalettePanel;
class Printers;
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
    void showSaveTarget(const std::filesystem::path& path) override;
    void showRecentFiles(const RecentFiles& files) override;
    void showBusy(bool busy) override;

    void beginProgress(const std::filesystem::path& path) override;
    void showProgress(const RunProgress& progress) override;
    void endProgress() override;

private:
    const Session& m_session;
    WindowRegions m_regions;
};

/// What the commands show and ask with.
struct CommandWindow {
    /// The parent of the commands' dialogs.
    QWidget* widget;
    WindowDisplay& display;
    Prompts& prompts;
    FileDialogs& fileDialogs;
    FNDialog& picker;
    Printers& printers;
};

/// All that the controls of the main window can do, by subject, and the dialogs of these commands.
struct WindowCommands {
    /// Both, and what `window` refers to, must outlive the commands.
    WindowCommands(Session& session, const CommandWindow& window);

    /// Ends whatever runs for long, as soon as it can.
    void stop();

    PuzzleFileChoice puzzleFiles;
    Form3 creationDialog;
    Form5 printDialog;
    PrintProgress printProgress;

    PlayCommands play;
    BoardInput input;
    LibraryCommands library;
    CreationCommands creation;
    MultipleCreation multipleCreation;
    DeveloperCommands developer;
    MaintenanceCommands maintenance;
    ExportCommands pictures;
    PrintCommands print;
};

} // namespace tessaly
