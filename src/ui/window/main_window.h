#pragma once

#include "ui/window/main_menu.h"
#include "ui/window/window_commands.h"

#include <QMainWindow>

namespace tessaly {

class AboutForm;
class DeveloperRow;
class Form2x;
class Form4;

/// The main window: its regions, the commands that their controls give, and its other windows.
class Form1 : public QMainWindow {
    Q_OBJECT

public:
    Form1(Session& session, Prompts& prompts, FileDialogs& fileDialogs, Printers& printers);

    LibraryCommands& library() { return m_commands.library; }

    /// Wears the scheme and the settings that are in force.
    void applyAppearance();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QWidget* arrangeRegions();
    void connectCommands();
    void connectOptions();
    void connectFileDrop();
    void connectHelp();
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

    WindowDisplay m_display;
    WindowCommands m_commands;
};

} // namespace tessaly
