#pragma once

#include "core/base/prompts.h"
#include "core/play/board_input.h"
#include "core/session/play_keeping.h"
#include "core/session/session.h"

#include <filesystem>

namespace tessaly {

/// The commands that move through puzzle files and change them, by the names of the controls that
/// start them. The window lives on while a large file is read or copied; what arrives meanwhile is
/// ignored.
class PuzzleFileCommands {
public:
    PuzzleFileCommands(Session& session, PlayKeeping& keeping, BoardInput& input, Display& display,
                       Prompts& prompts, FileChoice chooseFile);

    /// Lets the user choose a puzzle file and shows its first puzzle.
    void mnuload();
    /// Shows a puzzle of a file, or the next that can be read, and remembers the file as a recent
    /// one.
    void load(const std::filesystem::path& path, int number = 1);
    /// Steps to the previous (item 0) or the next puzzle (item 1), around the ends of the file and
    /// over what cannot be read.
    void cmdarrow(int item);
    /// Shows a puzzle by its number. A line that is no puzzle is shown as such, on an empty board,
    /// so that it can be deleted; a number that the file does not have is only told.
    void goTo(int number);
    /// Appends the puzzle to a file that the user chooses, and shows it there.
    void mnusavex();
    /// The same with the file that "Save to" offers; one that is gone is made anew after a
    /// question.
    void mnusaveto();
    /// Removes the puzzle from its file, after a question.
    void mnudelete();
    /// Opens a recent file, by its place in the list.
    void oldfiles_Click(int item);

    /// Shows the puzzle that was shown when the program ended last, or the empty board, and the
    /// recent files. One that the play book remembers is shown even if its file has gone.
    void reopen(const std::filesystem::path& path, int number);

    /// Reads a puzzle onto the board and shows it. When that fails the board stays as it was and
    /// the message line says so.
    PuzzleRead ReadPuzzle(const std::filesystem::path& path, int number);
    /// Whether puzzles go to that file: never to one of the program's own, which is told, and to
    /// one that holds other text only if the user says so.
    bool accepts(const std::filesystem::path& target);
    /// Appends the puzzle on the board to a file; `number` gets its number there.
    Outcome append(const std::filesystem::path& path, int& number);
    /// The puzzle on the board stands in no file; the user is told why, if there is a problem.
    void showWithoutFile(const Outcome& why = {});
    /// The file of the puzzles that were created without a file.
    std::filesystem::path temporaryFile() const;

private:
    void showEmptyBoard();
    void showRemembered();
    PuzzleRead show(const std::filesystem::path& path, int number);
    /// Shows the puzzle `number` of a file or, in steps of `step` around the ends of the file, the
    /// first that can be read; the message line names the one that cannot.
    PuzzleRead showReadable(const std::filesystem::path& path, int number, int step = 1);
    /// Shows the first puzzle of a file that can be read, from `number` on; tells when there is
    /// none.
    bool open(const std::filesystem::path& path, int number);
    void showAsItIs(int number);
    /// Tells the user when the current file cannot be read.
    void tellUnreadable(const PuzzleRead& read);
    /// How many puzzles the current file holds now; as many as before when it cannot be read.
    int recount();
    bool appendTo(const std::filesystem::path& path);
    Outcome remove(const CurrentPuzzle& puzzle);
    void setSaveTarget(const std::filesystem::path& path);
    void tellCritical(const std::string& text);

    Session& m_session;
    PlayKeeping& m_keeping;
    BoardInput& m_input;
    Display& m_display;
    Prompts& m_prompts;
    FileChoice m_chooseFile;
};

} // namespace tessaly
