#include "core/session/puzzle_file_commands.h"

#include "core/base/text.h"
#include "core/board/puzzle_record.h"
#include "core/files/file_access.h"

#include <algorithm>

namespace tessaly {
namespace {

constexpr std::string_view Information = "vbok+vbinformation";
constexpr std::string_view Critical = "vbok+vbcritical";
constexpr std::string_view FileProblem = "vbcritical+vbok";

/// For as long as it lives the pointer is busy and other commands are refused.
class WhileAtWork {
public:
    WhileAtWork(Session& session, Display& display)
        : m_running(session.busy.commandRunning)
        , m_display(display) {
        m_display.showBusy(true);
    }
    ~WhileAtWork() { m_display.showBusy(false); }
    WhileAtWork(const WhileAtWork&) = delete;
    WhileAtWork& operator=(const WhileAtWork&) = delete;

private:
    WhileSet m_running;
    Display& m_display;
};

} // namespace

PuzzleFileCommands::PuzzleFileCommands(Session& session, BoardInput& input, Display& display,
                                       Prompts& prompts, FileChoice chooseFile)
    : m_session(session)
    , m_input(input)
    , m_display(display)
    , m_prompts(prompts)
    , m_chooseFile(std::move(chooseFile)) {
    m_session.files = PuzzleStore([&display] { display.yield(); });
}

void PuzzleFileCommands::tellCritical(const std::string& text) {
    m_prompts.message(text, Critical);
}

PuzzleRead PuzzleFileCommands::ReadPuzzle(const std::filesystem::path& path, int number) {
    const WhileAtWork atWork(m_session, m_display);
    PuzzleRead read = m_session.files.ReadPuzzle(path, number, m_session.game.board);
    if (!read.ok()) {
        m_display.showMessage("Error reading p# " + std::to_string(number));
        return read;
    }
    m_session.game.startPuzzle();
    m_session.puzzle = {path, number, read.count, read.record};
    m_session.difficulty = m_session.game.board.difficulty;
    m_input.forgetSelection();
    m_display.showPuzzle(m_session.puzzle);
    m_display.showMessage("");
    return read;
}

void PuzzleFileCommands::mnuload() {
    const std::filesystem::path path = m_chooseFile(FileUse::Open, "Select a Puzzle file to open");
    if (!path.empty())
        load(path);
}

void PuzzleFileCommands::load(const std::filesystem::path& path, int number) {
    if (!ReadPuzzle(path, number).ok()) {
        m_prompts.message("Error reading file:\r\n" + path.native(), FileProblem);
        return;
    }
    setSaveTarget(path);
    if (path == temporaryFile())
        return;
    m_session.recentFiles.AddRecentFile(path);
    m_display.showRecentFiles(m_session.recentFiles.paths());
}

void PuzzleFileCommands::step(int number) {
    const PuzzleRead read = ReadPuzzle(m_session.puzzle.PuzPath, number);
    if (read.status == PuzzleRead::Status::CannotRead)
        tellCritical(read.reason);
}

void PuzzleFileCommands::cmdarrow(int item) {
    const int number = m_session.puzzle.PuzNum;
    if (number == 0)
        return;
    const int count = recount();
    if (count <= 1 && number == 1)
        return;
    const int previous = number > 1 ? std::min(number - 1, count) : count;
    const int next = number < count ? number + 1 : 1;
    step(std::max(item == 0 ? previous : next, 1));
}

std::filesystem::path PuzzleFileCommands::temporaryFile() const {
    return m_session.ProgramFolder / TemporaryPuzzleFile;
}

int PuzzleFileCommands::recount() {
    const WhileAtWork atWork(m_session, m_display);
    CurrentPuzzle& puzzle = m_session.puzzle;
    static_cast<void>(m_session.files.CountLines(puzzle.PuzPath, puzzle.PuzCount).ok());
    return puzzle.PuzCount;
}

void PuzzleFileCommands::goTo(int number) {
    if (m_session.puzzle.PuzNum > 0 && number >= 1 && number <= recount())
        step(number);
}

void PuzzleFileCommands::setSaveTarget(const std::filesystem::path& path) {
    m_session.saveTarget = path;
    m_display.showSaveTarget(path);
}

Outcome PuzzleFileCommands::append(const std::filesystem::path& path, int& number) {
    const WhileAtWork atWork(m_session, m_display);
    return m_session.files.appendPuzzle(path, PuzzleRecord(m_session.game.board), number);
}

bool PuzzleFileCommands::appendTo(const std::filesystem::path& path) {
    int number = 0;
    if (const Outcome saved = append(path, number); !saved.ok()) {
        tellCritical(saved.problem);
        return false;
    }
    const PuzzleRead shown = ReadPuzzle(path, number);
    m_prompts.message("Puzzle#" + std::to_string(number) + " added to file " + path.native(),
                      Information);
    if (!shown.ok())
        tellCritical(shown.reason);
    return true;
}

void PuzzleFileCommands::mnusavex() {
    if (!m_session.game.hasPuzzle())
        return;
    const std::filesystem::path path = m_chooseFile(FileUse::Save, "Select an output Puzzle file");
    if (path.empty())
        return;
    if (appendTo(path))
        setSaveTarget(path);
}

void PuzzleFileCommands::mnusaveto() {
    if (FileExists(m_session.saveTarget))
        appendTo(m_session.saveTarget);
}

void PuzzleFileCommands::mnudelete() {
    const CurrentPuzzle puzzle = m_session.puzzle;
    if (puzzle.PuzNum == 0)
        return;
    if (m_prompts.message("Delete current puzzle from file?", "vbyesno+vbquestion") != answer::Yes)
        return;
    if (const Outcome deleted = remove(puzzle); !deleted.ok()) {
        tellCritical(deleted.problem);
        return;
    }
    if (!ReadPuzzle(puzzle.PuzPath, 1).ok())
        m_session.puzzle.PuzCount = 0;
    m_prompts.message("Done", "vbinformation+vbok");
}

Outcome PuzzleFileCommands::remove(const CurrentPuzzle& puzzle) {
    const WhileAtWork atWork(m_session, m_display);
    return m_session.files.DeletePuzzle(puzzle.PuzPath, puzzle.PuzNum, puzzle.record);
}

void PuzzleFileCommands::oldfiles_Click(int item) {
    const std::filesystem::path path =
        m_session.recentFiles.paths().at(static_cast<std::size_t>(item));
    if (!FileExists(path)) {
        m_prompts.message("File not found:\r\n" + path.native(), FileProblem);
        return;
    }
    if (const PuzzleRead read = ReadPuzzle(path, 1); read.ok())
        setSaveTarget(path);
    else
        m_prompts.message("Error reading file:\r\n" + path.native(), FileProblem);
}

void PuzzleFileCommands::reopen(const std::filesystem::path& path, int number) {
    int count = 0;
    m_display.showRecentFiles(m_session.recentFiles.paths());
    if (isBlank(path.native()) || path == temporaryFile() || !FileExists(path) ||
        !m_session.files.CountLines(path, count).ok()) {
        showEmptyBoard();
        return;
    }
    if (ReadPuzzle(path, number > count ? 1 : number).ok())
        setSaveTarget(path);
    else
        showEmptyBoard();
    m_display.showMessage("");
    m_display.focusBoard();
}

void PuzzleFileCommands::showWithoutFile() {
    m_session.puzzle.PuzNum = 0;
    m_input.forgetSelection();
    m_display.showPuzzle(m_session.puzzle);
}

void PuzzleFileCommands::showEmptyBoard() {
    setSaveTarget({});
    showWithoutFile();
    m_display.focusBoard();
}

} // namespace tessaly
