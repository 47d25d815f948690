#pragma once

#include "core/play/board_input.h"
#include "core/play/play_commands.h"
#include "core/session/creation_commands.h"
#include "core/session/developer_commands.h"
#include "core/session/library_commands.h"
#include "core/session/maintenance_commands.h"
#include "core/session/multiple_creation.h"
#include "ui/controls/puzzle_file_choice.h"
#include "ui/output/export_commands.h"
#include "ui/output/print_commands.h"
#include "ui/output/print_dialog.h"
#include "ui/output/print_progress.h"
#include "ui/window/multiple_creation_dialog.h"

namespace tessaly {

class FileDialogs;
class FNDialog;
class Printers;
class WindowDisplay;

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
