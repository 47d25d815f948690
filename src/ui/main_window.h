// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "board/library_commands.h"
#include "output/export_commands.h"
#include "output/print_commands.h"
#include "output/print_dialog.h"
#include "output/print_progress.h"
#include "play/board_input.h"
#include "play/play_commands.h"
#include "solver/creation_commands.h"
#include "solver/developer_commands.h"
#include "solver/maintenance_commands.h"
#include "solver/multiple_creation.h"
#include "solver/multiple_creation_dialog.h"
#include "ui/main_menu.h"
#include "ui/puzzle_file_choice.h"
#include "ui/window_display.h"

#include <QMainWindow>

namespace tessaly {

class DeveloperRow;
class FileDialogs;
class AboutForm;
class Form2x;
class Form4;
class Printers;

/// The main window: builds its regions and connects their controls to the commands.
class Form1 : public QMainWindow {
    Q_OBJECT

public:
    Form1(Session& session, Prompts& prompts, FileDialogs& fileDialogs, Printers& printers);

    LibraryCommands& library() { return m_library; }

    /// Wears the scheme and the settings that are in force.
    void applyAppearance();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QWidget* arrangeRegions();
    void connectMenu();
    void connectTools();
    void connectPalette();
    void connectStatusLine();
    void connectCreation();
    void connectDeveloperRow();
    void connectOptions();
    void connectFileDrop();
    void connectHelp();
    void connectOutput();
    void ApplyScheme();
    void SetMenuColour();
    void cmdexit();

    Session& m_session;
    Prompts& m_prompts;

    /// The settings as the window shows them; new ones only when they are applied.
    Appearance m_worn;
    MainMenu m_menu;
    ToolRow* m_tools;
    BoardView* m_board;
    PalettePanel* m_palette;
    StatusLine* m_status;
    DeveloperRow* m_developerRow;
    FNDialog* m_picker; // gf1
    Form2x* m_options;
    Form4* m_help;
    AboutForm* m_about;

    PuzzleFileChoice m_puzzleFiles;
    WindowDisplay m_display;
    PlayCommands m_play;
    BoardInput m_input;
    LibraryCommands m_library;
    CreationCommands m_creation;
    Form3 m_creationDialog;
    MultipleCreation m_multipleCreation;
    DeveloperCommands m_developer;
    MaintenanceCommands m_maintenance;
    ExportCommands m_export;
    Form5 m_printDialog;
    PrintProgress m_printProgress;
    PrintCommands m_print;
};

} // namespace tessaly
