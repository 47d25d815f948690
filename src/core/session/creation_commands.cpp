#include "core/session/creation_commands.h"

#include "core/board/puzzle_record.h"
#include "core/solver/generator.h"
#include "core/solver/puzzle_of_day.h"

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

std::string inBrackets(Difficulty difficulty) {
    return " (" + std::string(nameOf(difficulty)) + ")";
}

/// The number of a record in a file; 0 when it is not there.
int numberOf(std::string_view record, const std::filesystem::path& path) {
    int number = 0;
    const Outcome read = forEachRecord(path, [&](RecordLine line) {
        number = line.text == record ? line.number : 0;
        return number == 0;
    });
    return read.ok() ? number : 0;
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
    m_display.showMessage("Creating Puzzle" + inBrackets(difficulty) + " ...");
    {
        const WhileSet running(m_session.busy.commandRunning);
        create(difficulty);
        save();
    }
    tellCreated(asked, "New Puzzle Created", difficulty);
}

void CreationCommands::mnutoday(std::chrono::year_month_day day) {
    const DifficultyChoice asked = m_session.difficulty;
    // Not those of the session, which are the player's own to change.
    const SearchFill fill(allArrangements());
    saveForDay(puzzleOfDay(day, asked, fill));
    tellCreated(asked, "Today's Puzzle", m_session.game.board.difficulty);
}

void CreationCommands::tellCreated(DifficultyChoice asked, std::string_view what,
                                   Difficulty difficulty) {
    // Showing the puzzle put its own difficulty on the label.
    m_session.difficulty = asked;
    m_display.showDifficulty(asked);
    m_display.showMessage(std::string(what) + inBrackets(difficulty));
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
    const bool isForDays = current == m_session.ProgramFolder / DayPuzzleFile;
    const std::filesystem::path path =
        current.empty() || isForDays ? m_files.temporaryFile() : current;
    int number = 0;
    const Outcome saved = m_files.append(path, number);
    showWhereItStands(path, number, saved);
}

void CreationCommands::saveForDay(std::string_view record) {
    const std::filesystem::path path = m_session.ProgramFolder / DayPuzzleFile;
    int number = numberOf(record, path);
    Outcome saved = Outcome::done();
    if (number == 0)
        saved = m_session.files.appendPuzzle(path, record, number);
    if (!saved.ok() && readRecord(record, m_session.game.board).ok())
        m_session.game.startPuzzle();
    showWhereItStands(path, number, saved);
}

void CreationCommands::showWhereItStands(const std::filesystem::path& path, int number,
                                         Outcome saved) {
    if (saved.ok())
        saved = {m_files.ReadPuzzle(path, number).reason};
    // A puzzle that cannot be saved can be played all the same.
    if (!saved.ok())
        m_files.showWithoutFile(saved);
}

} // namespace tessaly
