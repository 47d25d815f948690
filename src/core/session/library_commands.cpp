#include "core/session/library_commands.h"

#include "core/board/puzzle_record.h"
#include "core/files/file_access.h"

#include <algorithm>

namespace tessaly {
namespace {

constexpr std::string_view Information = "vbok+vbinformation";
constexpr std::string_view Critical = "vbok+vbcritical";
constexpr std::string_view FileProblem = "vbcritical+vbok";

std::string trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(" \t");
    return first == std::string::npos
               ? std::string()
               : text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

/// For as long as it lives the pointer is busy and other commands are refused.
class WhileAtWork {
public:
    WhileAtWork(Session& session, LibraryDisplay& display)
        : m_running(session.busy.commandRunning)
        , m_display(display) {
        m_display.showBusy(true);
    }
    ~WhileAtWork() { m_display.showBusy(false); }
    WhileAtWork(const WhileAtWork&) = delete;
    WhileAtWork& operator=(const WhileAtWork&) = delete;

private:
    WhileSet m_running;
    LibraryDisplay& m_display;
};

} // namespace

LibraryCommands::LibraryCommands(Session& session, Display& display, LibraryDisplay& libraryDisplay,
                                 Prompts& prompts, FileChoice& fileChoice)
    : m_session(session)
    , m_display(display)
    , m_libraryDisplay(libraryDisplay)
    , m_prompts(prompts)
    , m_fileChoice(fileChoice) {
    m_session.files = PuzzleFiles([&display] { display.yield(); });
}

void LibraryCommands::tellCritical(const std::string& text) {
    m_prompts.message(text, Critical);
}

PuzzleRead LibraryCommands::ReadPuzzle(const std::filesystem::path& path, int number) {
    const WhileAtWork atWork(m_session, m_libraryDisplay);
    PuzzleRead read = m_session.files.ReadPuzzle(path, number, m_session.game.board);
    if (!read.ok()) {
        m_display.showMessage("Error reading p# " + std::to_string(number));
        return read;
    }
    m_session.game.startPuzzle();
    m_session.puzzle = {path, number, read.count, read.record};
    m_session.difficulty = m_session.game.board.difficulty;
    m_libraryDisplay.showPuzzle(m_session.puzzle);
    m_display.showMessage("");
    return read;
}

void LibraryCommands::mnuload() {
    if (m_session.busy.refuses(m_prompts))
        return;
    const std::filesystem::path path = m_fileChoice.chooseToOpen("Select a Puzzle file to open");
    if (!path.empty())
        load(path);
}

void LibraryCommands::load(const std::filesystem::path& path, int number) {
    if (m_session.busy.refuses(m_prompts))
        return;
    if (!ReadPuzzle(path, number).ok()) {
        m_prompts.message("Error reading file:\r\n" + path.native(), FileProblem);
        return;
    }
    setSaveTarget(path);
    if (path == temporaryFile())
        return;
    m_session.recentFiles.AddRecentFile(path);
    m_libraryDisplay.showRecentFiles(m_session.recentFiles);
}

void LibraryCommands::step(int number) {
    const PuzzleRead read = ReadPuzzle(m_session.puzzle.PuzPath, number);
    if (read.status == PuzzleRead::Status::CannotRead)
        tellCritical(read.reason);
}

void LibraryCommands::cmdarrow(int item) {
    if (m_session.busy.refuses(m_prompts))
        return;
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

std::filesystem::path LibraryCommands::temporaryFile() const {
    return m_session.ProgramFolder / TemporaryPuzzleFile;
}

int LibraryCommands::recount() {
    const WhileAtWork atWork(m_session, m_libraryDisplay);
    CurrentPuzzle& puzzle = m_session.puzzle;
    static_cast<void>(m_session.files.CountLines(puzzle.PuzPath, puzzle.PuzCount).ok());
    return puzzle.PuzCount;
}

void LibraryCommands::goTo(int number) {
    if (m_session.busy.refuses(m_prompts))
        return;
    if (m_session.puzzle.PuzNum > 0 && number >= 1 && number <= recount())
        step(number);
}

void LibraryCommands::setSaveTarget(const std::filesystem::path& path) {
    m_session.saveTarget = path;
    m_libraryDisplay.showSaveTarget(path);
}

Outcome LibraryCommands::appendAndShow(const std::filesystem::path& path, int& number) {
    const WhileAtWork atWork(m_session, m_libraryDisplay);
    const std::string record = PuzzleRecord(m_session.game.board);
    if (Outcome saved = m_session.files.appendPuzzle(path, record, number); !saved.ok())
        return saved;
    return {ReadPuzzle(path, number).reason};
}

bool LibraryCommands::appendTo(const std::filesystem::path& path) {
    int number = 0;
    if (const Outcome saved = appendAndShow(path, number); !saved.ok()) {
        tellCritical(saved.problem);
        return false;
    }
    m_prompts.message("Puzzle#" + std::to_string(number) + " added to file " + path.native(),
                      Information);
    return true;
}

void LibraryCommands::mnusavex() {
    if (m_session.busy.refuses(m_prompts) || !m_session.game.hasPuzzle())
        return;
    const std::filesystem::path path = m_fileChoice.chooseToSave("Select an output Puzzle file");
    if (path.empty())
        return;
    if (appendTo(path))
        setSaveTarget(path);
}

void LibraryCommands::mnusaveto() {
    if (m_session.busy.refuses(m_prompts))
        return;
    if (FileExists(m_session.saveTarget))
        appendTo(m_session.saveTarget);
}

void LibraryCommands::mnudelete() {
    if (m_session.busy.refuses(m_prompts))
        return;
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

Outcome LibraryCommands::remove(const CurrentPuzzle& puzzle) {
    const WhileAtWork atWork(m_session, m_libraryDisplay);
    return m_session.files.DeletePuzzle(puzzle.PuzPath, puzzle.PuzNum, puzzle.record,
                                        m_session.ProgramFolder);
}

void LibraryCommands::oldfiles_Click(int item) {
    if (m_session.busy.refuses(m_prompts, "Cancel Puzzle Creation first"))
        return;
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

void LibraryCommands::reopen(const std::filesystem::path& path, int number) {
    int count = 0;
    m_libraryDisplay.showRecentFiles(m_session.recentFiles);
    if (trimmed(path.native()).empty() || path == temporaryFile() || !FileExists(path) ||
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

void LibraryCommands::showEmptyBoard() {
    setSaveTarget({});
    m_libraryDisplay.showNoPuzzle();
    m_display.focusBoard();
}

} // namespace tessaly
