#pragma once

#include "core/play/play_switches.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include <array>
#include <filesystem>
#include <string>
#include <vector>

namespace tessaly {

class Game;

/// The menus of the main window. Each action and menu carries its name as object name; a command
/// that is still to come is there, but disabled.
class MainMenu {
public:
    static constexpr int RecentFileCount = 5;

    explicit MainMenu(QMenuBar& bar);

    /// Shows the recently used puzzle files, most recent first.
    void showRecentFiles(const std::vector<std::filesystem::path>& paths);
    /// Offers saving to the current file; an empty path takes the offer away.
    void showCurrentFile(const std::filesystem::path& path);

    /// Offers what makes sense now: with a puzzle on the board or none, one that stands in a file
    /// or not, and a play book or none.
    void offer(const Game& game, bool inFile, bool hasBook);

    QAction* mnuload;
    QMenu* mnucopyclip;
    QAction* mnuclippuz;
    QAction* mnuclipsol;
    QAction* mnuopts;
    QAction* mnuhelp;
    QAction* mnuabout;
    /// Five paths and the separator beneath them.
    std::array<QAction*, RecentFileCount + 1> oldfiles;
    QAction* cmdexit;

    QAction* createSingle;   // mnucreaten, item 0
    QAction* createMultiple; // mnucreaten, item 1
    QAction* mnutoday;

    QMenu* mnusavez;
    QAction* mnusavex;
    QAction* mnusaveto;
    QAction* mnucapwin;
    QAction* mnudelete;

    QAction* printPuzzle;   // mnuprintx, item 0
    QAction* printSolution; // mnuprintx, item 1
    QAction* printBoth;     // mnuprintx, item 2
    QAction* printMultiple; // mnuprintx, item 4

    QAction* mnuundo;
    QAction* mnuredo;
    QAction* mnucheck;
    QAction* mnureset;
    QAction* mnuallpencil;
    QAction* mnuclearpencil;
    QAction* mnusetpairs;
    QAction* mnuset1s;
    QAction* mnuhint;
    /// In the order of `AllPlaySwitches`.
    std::array<QAction*, AllPlaySwitches.size()> switches{};
    QAction* mnunextunsolved;
    QAction* mnustatistics;
    QAction* mnushowtime;
    QAction* mnuforgetpuzzle;
    QAction* mnuforgetfile;

private:
    void buildFileMenu(QMenu& menu);
    void buildCreateMenu(QMenu& menu);
    void buildSaveMenu(QMenu& menu);
    void buildPrintMenu(QMenu& menu);
    void buildPlayMenu(QMenu& menu);
    void buildHelpMenu(QMenu& menu);
};

} // namespace tessaly
