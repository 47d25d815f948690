#include "ui/window/window_commands.h"

#include "core/session/session.h"
#include "ui/controls/run_progress_bar.h"
#include "ui/play/board_view.h"
#include "ui/play/palette_panel.h"
#include "ui/window/main_menu.h"
#include "ui/window/status_line.h"
#include "ui/window/tool_row.h"

#include <QApplication>

namespace tessaly {

using namespace Qt::StringLiterals;

WindowDisplay::WindowDisplay(const Session& session, const WindowRegions& regions)
    : m_session(session)
    , m_regions(regions) {}

void WindowDisplay::DrawHexagon(int hexagon) {
    m_regions.board.DrawHexagon(hexagon);
}

void WindowDisplay::DrawBoard() {
    m_regions.board.DrawBoard();
}

void WindowDisplay::DrawSolution(Colour colour) {
    m_regions.board.DrawSolution(colour);
}

void WindowDisplay::showMessage(std::string_view text) {
    m_regions.status.showMessage(text);
}

void WindowDisplay::focusBoard() {
    m_regions.board.setFocus();
}

void WindowDisplay::yield() {
    QCoreApplication::processEvents();
}

void WindowDisplay::showSelection(CellId cell) {
    m_regions.board.showSelection(cell);
}

void WindowDisplay::showPopup(Point corner, bool upwards) {
    m_regions.board.showPopup(corner, upwards);
}

void WindowDisplay::hidePopup() {
    m_regions.board.hidePopup();
}

void WindowDisplay::showPalette(int pressedItem) {
    m_regions.palette.showPalette(pressedItem);
}

void WindowDisplay::showPuzzle(const CurrentPuzzle& puzzle) {
    m_regions.board.forgetSelection();
    m_regions.tools.showPuzzleNumber(puzzle.PuzNum, puzzle.PuzCount);
    showDifficulty(m_session.difficulty);
    m_regions.status.showFile(puzzle.PuzPath);
    m_regions.board.DrawBoard();
}

void WindowDisplay::showNoPuzzle() {
    m_regions.board.forgetSelection();
    m_regions.tools.showPuzzleNumber(0, 0);
    showDifficulty(m_session.difficulty);
    m_regions.status.showFileText(u"Create a New Puzzle"_s);
    m_regions.board.DrawBoard();
}

void WindowDisplay::showDifficulty(DifficultyChoice difficulty) {
    m_regions.tools.showDifficulty(difficulty);
}

void WindowDisplay::showSaveTarget(const std::filesystem::path& path) {
    m_regions.menu.showCurrentFile(path);
}

void WindowDisplay::showRecentFiles(const RecentFiles& files) {
    m_regions.menu.showRecentFiles(files.paths());
}

void WindowDisplay::showBusy(bool busy) {
    if (busy)
        QApplication::setOverrideCursor(Qt::BusyCursor);
    else
        QApplication::restoreOverrideCursor();
}

void WindowDisplay::beginProgress(const std::filesystem::path& path) {
    m_regions.status.showFile(path);
    m_regions.tools.showPuzzleNumber(0, 0);
    m_regions.tools.progress->begin();
}

void WindowDisplay::showProgress(const RunProgress& progress) {
    m_regions.tools.showPuzzleNumber(progress.made, progress.count);
    m_regions.tools.progress->show(progress);
}

void WindowDisplay::endProgress() {
    m_regions.tools.progress->end();
}

WindowCommands::WindowCommands(Session& session, const CommandWindow& window)
    : puzzleFiles(window.picker, session.ProgramFolder)
    , creationDialog(session.appearance, window.fileDialogs, window.prompts, session.ProgramFolder,
                     window.widget)
    , printDialog(session.appearance, window.printers, window.fileDialogs, window.prompts,
                  session.ProgramFolder, window.widget)
    , printProgress(session.appearance, window.widget)
    , play(session.game, session.busy, session.appearance, window.display, window.prompts)
    , input(session.game, session.busy, play, window.display, window.display, window.prompts)
    , library(session, window.display, window.display, window.prompts, puzzleFiles)
    , creation(session, library, window.display, window.display, window.prompts,
               Chance(Chance::freshSeed()))
    , multipleCreation(
          session, library,
          {window.display, window.display, window.display, window.prompts, creationDialog},
          Chance(Chance::freshSeed()))
    , developer(session, window.display, window.prompts)
    , maintenance(session, {window.display, window.display, window.display, window.prompts},
                  Chance(Chance::freshSeed()))
    , pictures(session, {window.widget, window.display, window.prompts, window.picker})
    , print(session, window.printers,
            {window.widget, window.display, window.prompts, window.picker, printDialog,
             printProgress}) {}

void WindowCommands::stop() {
    multipleCreation.stop();
    maintenance.stop();
    print.stop();
}

} // namespace tessaly
