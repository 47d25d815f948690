#include "core/session/creation_commands.h"

#include "core/board/puzzle_record.h"
#include "core/solver/generator.h"

#include <string>

namespace tessaly {
namespace {

DifficultyChoice stepAfter(DifficultyChoice shown) {
    if (!shown)
        return Difficulties.front().difficulty;
    const auto next = static_cast<std::size_t>(*shown) + 1;
    return next < Difficulties.size() ? DifficultyChoice(Difficulties[next].difficulty)
                                      : std::nullopt;
}

} // namespace

CreationCommands::CreationCommands(Session& session, LibraryCommands& library, Display& display,
                                   LibraryDisplay& libraryDisplay, Prompts& prompts, Chance chance)
    : m_session(session)
    , m_library(library)
    , m_display(display)
    , m_libraryDisplay(libraryDisplay)
    , m_prompts(prompts)
    , m_fill(arrangementsOf(session.arrangements))
    , m_chance(chance) {}

void CreationCommands::DifLab() {
    m_session.difficulty = stepAfter(m_session.difficulty);
    m_libraryDisplay.showDifficulty(m_session.difficulty);
}

void CreationCommands::cmdcreate() {
    if (m_session.busy.refuses(m_prompts)) {
        m_display.yield();
        return;
    }
    const DifficultyChoice asked = m_session.difficulty;
    const Difficulty difficulty = drawDifficulty(asked, m_chance);
    const std::string inBrackets = " (" + std::string(nameOf(difficulty)) + ")";
    m_display.showMessage("Creating Puzzle" + inBrackets + " ...");
    {
        const WhileSet running(m_session.busy.commandRunning);
        create(difficulty);
        appendAndShow();
    }
    // Showing the puzzle put its own difficulty on the label.
    m_session.difficulty = asked;
    m_libraryDisplay.showDifficulty(asked);
    m_display.showMessage("New Puzzle Created" + inBrackets);
    m_display.focusBoard();
}

void CreationCommands::create(Difficulty difficulty) {
    CreationObserver observer;
    observer.yield = [this] { m_display.yield(); };
    observer.redraw = [this](int hexagon) { m_display.DrawHexagon(hexagon); };
    observer.message = [this](const std::string& text) { m_display.showMessage(text); };
    CreatePuzzle(m_session.game.board, difficulty, m_chance, m_fill, observer);
    m_session.game.startPuzzle();
}

void CreationCommands::appendAndShow() {
    const std::filesystem::path path = m_session.puzzle.PuzPath.empty()
                                           ? m_session.ProgramFolder / TemporaryPuzzleFile
                                           : m_session.puzzle.PuzPath;
    int number = 0;
    const Outcome saved =
        m_session.files.appendPuzzle(path, PuzzleRecord(m_session.game.board), number);
    if (!saved.ok() || !m_library.ReadPuzzle(path, number).ok())
        showUnsaved();
}

/// The puzzle can be played all the same; it only stands in no file.
void CreationCommands::showUnsaved() {
    m_session.puzzle.PuzNum = 0;
    m_libraryDisplay.showNoPuzzle();
}

} // namespace tessaly
