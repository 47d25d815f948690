#include "core/session/puzzle_file_commands.h"

#include "core/base/text.h"
#include "core/board/puzzle_record.h"
#include "core/files/file_access.h"
#include "core/session/program_folder.h"
#include "core/session/while_at_work.h"

#include <algorithm>

namespace tessaly {
namespace {

constexpr std::string_view FileProblem = "vbcritical+vbok";

/// A file whose first lines are no records is not searched through to its end.
constexpr int MostTried = 1000;

std::string errorReading(int number, const PuzzleRead& read) {
    return "Error reading p# " + std::to_string(number) +
           (read.flaw.empty() ? "" : ": " + read.flaw);
}

/// Whether a file has text in it, but no puzzle among its first lines.
bool holdsOtherText(const std::filesystem::path& path) {
    int lines = 0;
    bool found = false;
    Board board;
    const Outcome read = forEachRecord(path, [&](RecordLine line) {
        found = line.read(board).ok();
        return !found && ++lines < MostTried;
    });
    return read.ok() && lines > 0 && !found;
}

} // namespace

PuzzleFileCommands::PuzzleFileCommands(Session& session, PlayKeeping& keeping, BoardInput& input,
                                       Display& display, Prompts& prompts, FileChoice chooseFile)
    : m_session(session)
    , m_keeping(keeping)
    , m_input(input)
    , m_display(display)
    , m_prompts(prompts)
    , m_chooseFile(std::move(chooseFile)) {
    m_session.files = PuzzleStore([&display] { display.yield(); }, display.waiting());
}

void PuzzleFileCommands::tellCritical(const std::string& text) {
    m_prompts.message(text, style::Critical);
}

PuzzleRead PuzzleFileCommands::show(const std::filesystem::path& path, int number) {
    const WhileAtWork atWork(m_session, m_display);
    m_keeping.leave();
    PuzzleRead read = m_session.files.ReadPuzzle(path, number, m_session.game.board);
    if (!read.ok())
        return read;
    m_session.game.startPuzzle();
    m_session.puzzle = {path, number, read.count, read.record};
    m_keeping.resume();
    m_session.difficulty = m_session.game.board.difficulty;
    m_input.forgetSelection();
    m_display.showPuzzle(m_session.puzzle);
    m_display.showMessage("");
    return read;
}

PuzzleRead PuzzleFileCommands::ReadPuzzle(const std::filesystem::path& path, int number) {
    PuzzleRead read = show(path, number);
    if (!read.ok())
        m_display.showMessage(errorReading(number, read));
    return read;
}

PuzzleRead PuzzleFileCommands::showReadable(const std::filesystem::path& path, int number,
                                            int step) {
    PuzzleRead read = ReadPuzzle(path, number);
    const std::string error = errorReading(number, read);
    const int tries = std::min(read.count, MostTried);
    int next = number;
    for (int tried = 1; read.status == PuzzleRead::Status::NoRecord && tried < tries; ++tried) {
        next = (next - 1 + step + read.count) % read.count + 1;
        read = show(path, next);
    }
    if (read.ok() && next != number)
        m_display.showMessage(error);
    return read;
}

void PuzzleFileCommands::mnuload() {
    const std::filesystem::path path = m_chooseFile(FileUse::Open, "Select a Puzzle file to open");
    if (!path.empty())
        load(path);
}

bool PuzzleFileCommands::open(const std::filesystem::path& path, int number) {
    const PuzzleRead read = showReadable(path, number);
    if (read.ok()) {
        setSaveTarget(path);
        return true;
    }
    const std::string named = path.native() + ": ";
    std::string reason = read.reason;
    if (reason.starts_with(named))
        reason.erase(0, named.size());
    m_prompts.message("Error reading file:\r\n" + path.native() + "\r\n" + reason, FileProblem);
    return false;
}

void PuzzleFileCommands::load(const std::filesystem::path& path, int number) {
    if (!open(path, number) || path == temporaryFile())
        return;
    m_session.recentFiles.AddRecentFile(path);
    m_display.showRecentFiles(m_session.recentFiles.paths());
}

void PuzzleFileCommands::tellUnreadable(const PuzzleRead& read) {
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
    tellUnreadable(showReadable(m_session.puzzle.PuzPath, std::max(item == 0 ? previous : next, 1),
                                item == 0 ? -1 : 1));
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
    if (m_session.puzzle.PuzNum == 0)
        return;
    const int count = recount();
    if (number >= 1 && number <= count)
        showAsItIs(number);
    else
        m_display.showMessage("There is no puzzle " + std::to_string(number) + " among the " +
                              std::to_string(count));
}

void PuzzleFileCommands::showAsItIs(int number) {
    const std::filesystem::path path = m_session.puzzle.PuzPath;
    PuzzleRead read = ReadPuzzle(path, number);
    tellUnreadable(read);
    if (read.flaw.empty())
        return;
    m_session.game.takeAway();
    m_session.puzzle = {path, number, read.count, std::move(read.record)};
    m_input.forgetSelection();
    m_display.showPuzzle(m_session.puzzle);
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
                      style::Information);
    if (!shown.ok())
        tellCritical(shown.reason);
    return true;
}

void PuzzleFileCommands::mnusavex() {
    if (!m_session.game.hasPuzzle())
        return;
    const std::filesystem::path path = m_chooseFile(FileUse::Save, "Select an output Puzzle file");
    if (!path.empty() && accepts(path) && appendTo(path))
        setSaveTarget(path);
}

bool PuzzleFileCommands::accepts(const std::filesystem::path& target) {
    if (isOwnFile(m_session.ProgramFolder, target)) {
        tellCritical("Puzzles cannot be saved to this file, which the program needs:\r\n" +
                     target.native());
        return false;
    }
    const std::string question =
        "There is no puzzle in this file:\r\n" + target.native() + "\r\nSave to it all the same?";
    return !holdsOtherText(target) ||
           m_prompts.message(question, "vbyesno+vbquestion+vbdefaultbutton2") == answer::Yes;
}

void PuzzleFileCommands::mnusaveto() {
    if (!m_session.game.hasPuzzle())
        return;
    const std::filesystem::path& path = m_session.saveTarget;
    const std::string question = "File not found:\r\n" + path.native() + "\r\nMake it anew?";
    if (FileExists(path) || m_prompts.message(question, "vbyesno+vbquestion") == answer::Yes)
        appendTo(path);
}

void PuzzleFileCommands::mnudelete() {
    const CurrentPuzzle puzzle = m_session.puzzle;
    if (puzzle.PuzNum == 0)
        return;
    if (m_prompts.message("Delete current puzzle from file?",
                          "vbyesno+vbquestion+vbdefaultbutton2") != answer::Yes)
        return;
    if (const Outcome deleted = remove(puzzle); !deleted.ok()) {
        tellCritical(deleted.problem);
        return;
    }
    if (!showReadable(puzzle.PuzPath, 1).ok()) {
        m_session.game.takeAway();
        showWithoutFile();
    }
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
    open(path, 1);
}

void PuzzleFileCommands::reopen(const std::filesystem::path& path, int number) {
    const LastPuzzle& last = m_session.last;
    int count = 0;
    m_display.showRecentFiles(m_session.recentFiles.paths());
    const bool isKept = path != temporaryFile() || !last.record.empty();
    const bool isThere = isKept && number > 0 && !isBlank(path.native()) && FileExists(path) &&
                         m_session.files.CountLines(path, count).ok();
    if (isThere && showReadable(path, number > count ? 1 : number).ok())
        setSaveTarget(path);
    else if (path != last.path || !readRecord(last.record, m_session.game.board).ok())
        showEmptyBoard();
    else
        showRemembered();
    m_display.showMessage("");
    m_display.focusBoard();
}

/// The puzzle that was shown last is on the board, but where it stood it no longer is.
void PuzzleFileCommands::showRemembered() {
    m_session.game.startPuzzle();
    m_session.difficulty = m_session.game.board.difficulty;
    setSaveTarget({});
    showWithoutFile();
}

void PuzzleFileCommands::showWithoutFile(const Outcome& why) {
    m_session.puzzle.PuzNum = 0;
    m_keeping.resume();
    m_input.forgetSelection();
    m_display.showPuzzle(m_session.puzzle);
    if (!why.ok())
        tellCritical("The puzzle stands in no file:\r\n" + why.problem);
}

void PuzzleFileCommands::showEmptyBoard() {
    setSaveTarget({});
    showWithoutFile();
    m_display.focusBoard();
}

} // namespace tessaly
