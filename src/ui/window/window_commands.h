#pragma once

#include "core/session/creation_commands.h"
#include "core/session/developer_commands.h"
#include "core/session/maintenance_commands.h"
#include "core/session/multiple_creation.h"
#include "core/session/play_book_commands.h"
#include "core/session/told_once.h"
#include "ui/output/export_commands.h"
#include "ui/output/print_commands.h"
#include "ui/output/print_progress.h"
#include "ui/window/multiple_creation_dialog.h"

#include <filesystem>

namespace tessaly {

class BoardView;
class DeveloperRow;
class MainMenu;
class PalettePanel;
class SidePanel;
class ToolRow;

/// The regions of the main window.
struct WindowRegions {
    const MainMenu& menu;
    ToolRow& tools;
    BoardView& board;
    SidePanel& side;
    /// None unless it was asked for.
    DeveloperRow* developerRow;
};

/// What the commands show and ask with.
struct CommandWindow {
    /// The parent of the commands' dialogs.
    QWidget* widget;
    /// The settings as the window shows them.
    const Appearance& worn;
    Display& display;
    Prompts& prompts;
    const FileDialog& fileDialog;
    FNDialog& picker;
    Printers& printers;
};

/// All that the controls of the main window can do, by subject, and the dialogs of these commands.
class WindowCommands {
public:
    /// What `window` refers to must outlive the commands, but for the file dialog, and so must the
    /// session.
    WindowCommands(Session& session, const CommandWindow& window);

    /// Lets the controls give the commands.
    void connectTo(const WindowRegions& regions);

    /// The one gate to the commands: whether another one has to come to its end first.
    bool refuses(std::string_view refusal = BusyState::Refusal);

    /// Ends whatever runs for long, as soon as it can.
    void stop();

    PlayCommands play;
    BoardInput input;
    PlayKeeping keeping;
    PuzzleFileCommands files;

private:
    void connectMenu(const MainMenu& menu);
    void connectTools(ToolRow& tools, BoardView& board);
    void connectPalette(PalettePanel& palette);
    void connectPlay(const WindowRegions& regions);
    void connectSwitch(QAction& item, const PlaySwitch& which, BoardView& board);
    void connectDeveloperRow(const DeveloperRow& row);
    void connectCreation(const MainMenu& menu, const ToolRow& tools, DeveloperRow* developerRow);

    // What a control does to start a command that may be refused.
    template <class Command>
    void onChoice(QAction* item, Command command, std::string_view refusal = BusyState::Refusal);
    /// Has a switch stand as it did when the game was played last.
    void remember(QAction* item, const std::string& setting);
    template <class Command>
    void onClick(BoxControl* button, Command command);
    template <class Command>
    void onAlternateClick(BoxControl* button, Command command);

    Session& m_session;
    Display& m_display;
    Prompts& m_prompts;

    Form3 m_creationDialog;
    Form5 m_printDialog;
    PrintProgress m_printProgress;

    ToldOnce m_toldOfMarks;
    PlayBookCommands m_playBook;
    CreationCommands m_creation;
    MultipleCreation m_multipleCreation;
    DeveloperCommands m_developer;
    MaintenanceCommands m_maintenance;
    ExportCommands m_pictures;
    PrintCommands m_print;
};

} // namespace tessaly
