#include "ui/output/print_commands.h"

#include "core/board/puzzle_store.h"
#include "core/session/session.h"
#include "ui/drawing/pdf_file.h"
#include "ui/drawing/qt_values.h"
#include "ui/output/print_progress.h"
#include "ui/output/printers.h"

#include <QTemporaryDir>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

/// How many pages jobs have on a paper; 0 when it is too small, which printing tells.
std::size_t pageCountOf(const std::vector<PrintJob>& jobs, PaperSize paper) {
    std::size_t count = 0;
    std::vector<BookletPage> pages;
    for (const PrintJob& job : jobs)
        if (layOutBooklet(job.design, paper, job.puzzleCount(), pages).ok())
            count += pages.size();
    return count;
}

std::string pagesText(std::size_t pages) {
    return std::to_string(pages) + (pages == 1 ? " page" : " pages");
}

} // namespace

PrintCommands::PrintCommands(Session& session, Printers& printers, const PrintWindow& window)
    : m_session(session)
    , m_printers(printers)
    , m_window(window) {}

void PrintCommands::stop() {
    m_closing = true;
    m_window.progress.stop();
}

void PrintCommands::tell(const Outcome& outcome, const std::string& success) {
    if (outcome.ok())
        m_window.display.showMessage(success);
    else
        m_window.prompts.message(outcome.problem, style::Critical);
}

void PrintCommands::printShown(bool puzzle, bool solution) {
    if (m_session.puzzle.PuzNum == 0 || !m_session.game.hasPuzzle()) {
        m_window.prompts.message("There is no puzzle to print", style::Information);
        return;
    }
    const WhileSet running(m_session.busy.commandRunning);
    const PrintJob job = jobOf(m_session.game.board, m_session.puzzle.PuzPath.filename(),
                               m_session.puzzle.PuzNum, puzzle, solution);
    const int pageCount = puzzle && solution ? 2 : 1;
    const PrintQuestion question{QString::fromStdString(job.title), pageCount,
                                 m_printer.value_or(QString())};
    if (const auto target = m_printers.setUp(question, m_window.window))
        carryOut({job}, *target, "Printed");
}

void PrintCommands::printMultiple() {
    const WhileSet running(m_session.busy.commandRunning);
    const CurrentPuzzle& puzzle = m_session.puzzle;
    auto order =
        m_window.dialog.choose({puzzle.PuzPath, puzzle.PuzNum, puzzle.PuzCount, m_printer});
    if (!order)
        return;
    m_printer = order->target.printer;
    m_closing = false;
    if (order->creation && !create(*order))
        return;
    std::vector<PrintJob> jobs;
    if (const Outcome made = makeJobs(order->request, jobs); !made.ok()) {
        tell(made, {});
        return;
    }
    const PrintTarget& target = order->target;
    const std::string name =
        target.file.empty() ? target.printer.toStdString() : target.file.native();
    carryOut(jobs, target, pagesText(pageCountOf(jobs, target.paper)) + " printed to " + name);
}

bool PrintCommands::create(PrintOrder& order) {
    const CreationOrder& wanted = *order.creation;
    if (!m_window.files.accepts(wanted.path))
        return false;
    int made = 0;
    int count = 0;
    Outcome outcome = m_window.creation.create(wanted, made);
    if (outcome.ok())
        outcome = PuzzleStore().CountLines(wanted.path, count);
    if (m_closing)
        return false;
    if (!outcome.ok() || made < wanted.count)
        tell(outcome, "Nothing was printed");
    order.request.selection.numbers = NumberList({count - made + 1, count});
    return outcome.ok() && made == wanted.count;
}

void PrintCommands::carryOut(std::vector<PrintJob> jobs, const PrintTarget& target,
                             const std::string& success) {
    m_closing = false;
    PrintResult result;
    PrintTarget each = target;
    for (PrintJob& job : jobs) {
        job.pages = target.pages;
        m_window.progress.begin(u"Printing "_s + QString::fromStdString(job.title));
        if (result.isComplete())
            result = print(job, each);
        if (!target.file.empty())
            each.file = solutionsFileOf(target.file);
    }
    m_window.progress.end();
    if (m_closing)
        return;
    if (result.stopped)
        m_window.display.showMessage("Nothing was printed");
    else
        tell(result.outcome, success);
}

/// A printer gets the whole document, finished, or none of it; so does a file.
PrintResult PrintCommands::print(const PrintJob& job, const PrintTarget& target) {
    if (!target.file.empty()) {
        PrintJob withCopies = job;
        withCopies.pages = pagesOfCopies(job.pages, target.sheets.copies);
        return write(target.file, target.paper, withCopies);
    }
    if (target.printer.isEmpty())
        return {Outcome::failed("There is no printer."), false};
    const QTemporaryDir folder;
    if (!folder.isValid())
        return {Outcome::failed(folder.errorString().toStdString()), false};
    const std::filesystem::path pdf = pathOf(folder.filePath(u"booklet.pdf"_s));
    PrintResult result = write(pdf, target.paper, job);
    if (result.isComplete())
        result.outcome =
            m_printers.print(target.printer, pdf, QString::fromStdString(job.title), target.sheets);
    return result;
}

PrintResult PrintCommands::write(const std::filesystem::path& pdf, PaperSize paper,
                                 const PrintJob& job) {
    const auto goOn = [this](int page, int pageCount) {
        return m_window.progress.goOn(page, pageCount);
    };
    return writePdf(pdf, paper, job, m_session.appearance, goOn, m_window.display.waiting());
}

} // namespace tessaly
