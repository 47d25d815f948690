#pragma once

#include "core/base/prompts.h"
#include "core/output/print_job.h"
#include "core/play/display.h"
#include "ui/drawing/pdf_file.h"
#include "ui/output/print_dialog.h"

#include <filesystem>

class QWidget;

namespace tessaly {

class PrintProgress;
class Printers;
struct PrintTarget;
struct Session;

/// What the window lends to printing.
struct PrintWindow {
    QWidget* window;
    Display& display;
    Prompts& prompts;
    Form5& dialog;
    PrintProgress& progress;
    /// Whether new puzzles go to a file, and the making of them.
    PuzzleFileCommands& files;
    MultipleCreation& creation;
};

/// The items of the "Print" menu (`mnuprintx`).
class PrintCommands {
public:
    PrintCommands(Session& session, Printers& printers, const PrintWindow& window);

    /// Prints the puzzle shown, as it stands on the board, its solution, or both, as the user sets
    /// it up in the platform's dialog.
    void printShown(bool puzzle, bool solution);
    /// Prints some puzzles of a file, or new ones, and their solutions, as the user sets it up in
    /// the dialog.
    void printMultiple();
    /// Ends a print that is under way; nothing of it is printed.
    void stop();

private:
    /// Makes the puzzles that are to be printed, and asks for them instead of others; false when
    /// that failed, which was told.
    bool create(PrintOrder& order);
    /// Prints jobs, whatever kind of target; tells `success` or what went wrong.
    void carryOut(std::vector<PrintJob> jobs, const PrintTarget& target,
                  const std::string& success);
    PrintResult print(const PrintJob& job, const PrintTarget& target);
    PrintResult write(const std::filesystem::path& pdf, PaperSize paper, const PrintJob& job);
    void tell(const Outcome& outcome, const std::string& success);

    Session& m_session;
    Printers& m_printers;
    PrintWindow m_window;
    /// The program's printer once one was chosen; empty for a PDF file.
    std::optional<QString> m_printer;
    bool m_closing = false;
};

} // namespace tessaly
