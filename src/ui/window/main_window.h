#pragma once

#include "ui/window/main_menu.h"
#include "ui/window/window_commands.h"

#include <QMainWindow>

class QTimer;

namespace tessaly {

class AboutForm;
class Announcer;
class Form2x;
class Form4;
class RulesStrip;
class StatisticsForm;
class StatusLine;

/// The main window: its regions, the commands that their controls give, and its other windows. What
/// the commands show, it hands on to the region that shows it.
class Form1 : public QMainWindow, public Display {
    Q_OBJECT

public:
    /// All but the file dialog must outlive the window.
    Form1(Session& session, Prompts& prompts, const FileDialog& fileDialog, Printers& printers);

    PuzzleFileCommands& files() { return m_commands.files; }

    /// Wears the scheme and the settings that are in force.
    void applyAppearance();

    void DrawHexagon(int hexagon) override;
    void DrawBoard() override;
    void DrawSolution(Colour colour) override;
    void DrawPeek(const Board& other, int hexagon) override;
    void showHint(const Hint& hint) override;
    void focusBoard() override;
    void showSelection(CellId cell) override;
    void showPopup(Point corner, bool upwards) override;
    void hidePopup() override;
    void showPalette(int pressedItem) override;
    void showPuzzle(const CurrentPuzzle& puzzle) override;
    void showPlay() override;
    void showSolved(CellId last) override;
    void showDifficulty(DifficultyChoice difficulty) override;
    void showSaveTarget(const std::filesystem::path& path) override;
    void showRecentFiles(const std::vector<std::filesystem::path>& paths) override;
    void showMessage(std::string_view text) override;
    void announce(std::string_view text) override;
    void showBusy(bool busy) override;
    void beginProgress(const std::filesystem::path& path) override;
    void showProgress(const RunProgress& progress) override;
    void endProgress() override;
    void yield() override;
    void afterwards(std::chrono::milliseconds delay, std::function<void()> what) override;
    bool waitFor(const std::filesystem::path& path, const std::function<bool()>& attempt) override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QWidget* arrangeRegions();
    void connectOptions();
    void connectFileDrop();
    void connectHelp();
    void connectRules();
    void closeRules();
    void connectPlay();
    void showTime();
    /// What makes no sense now shows so and cannot be chosen.
    void offerCommands();
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
    SidePanel* m_side;
    StatusLine* m_status;
    Announcer* m_announcer;
    /// None unless it is asked for.
    DeveloperRow* m_developerRow;
    ToldOnce m_toldOfRules;
    /// None but at the first start, nor where nothing is kept.
    RulesStrip* m_rules;
    FNDialog* m_picker; // gf1
    Form2x* m_options;
    Form4* m_help;
    AboutForm* m_about;
    StatisticsForm* m_statistics;
    /// Runs while the time is shown.
    QTimer* m_seconds;

    WindowCommands m_commands;
};

} // namespace tessaly
