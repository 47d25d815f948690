#include "core/session/creation_commands.h"

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

CreationCommands::CreationCommands(Session& session, PuzzleFileCommands& files, Display& display,
                                   Chance chance)
    : m_session(session)
    , m_files(files)
    , m_display(display)
    , m_fill(arrangementsOf(session.arrangements))
    , m_chance(chance) {}

void CreationCommands::DifLab() {
    m_session.difficulty = stepAfter(m_session.difficulty);
    m_display.showDifficulty(m_session.difficulty);
}

void CreationCommands::cmdcreate() {
    const DifficultyChoice asked = m_session.difficulty;
    const Difficulty difficulty = drawDifficulty(asked, m_chance);
    const std::string inBrackets = " (" + std::string(nameOf(difficulty)) + ")";
    m_display.showMessage("Creating Puzzle" + inBrackets + " ...");
    {
        const WhileSet running(m_session.busy.commandRunning);
        create(difficulty);
        save();
    }
    // Showing the puzzle put its own difficulty on the label.
    m_session.difficulty = asked;
    m_display.showDifficulty(asked);
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

void CreationCommands::save() {
    const std::filesystem::path current = m_session.puzzle.PuzPath;
    const std::filesystem::path path = current.empty() ? m_files.temporaryFile() : current;
    int number = 0;
    Outcome saved = m_files.append(path, number);
    if (saved.ok())
        saved = {m_files.ReadPuzzle(path, number).reason};
    // A puzzle that cannot be saved can be played all the same.
    if (!saved.ok())
        m_files.showWithoutFile(saved);
}

} // namespace tessaly
