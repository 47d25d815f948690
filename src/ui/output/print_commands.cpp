#include "ui/output/print_commands.h"

#include "core/session/session.h"
#include "ui/controls/file_name_picker.h"
#include "ui/drawing/pdf_file.h"
#include "ui/output/print_progress.h"
#include "ui/output/printers.h"

#include <QPrinter>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

OutputFileQuestion pdfQuestion() {
    return {u"Select a PDF file to print to"_s, u"*.pdf"_s, u"PDF Files"_s,
            QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation), u".pdf"_s};
}

std::string pagesText(const PrintJob& job) {
    const int pages = job.booklet.pageCount();
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
        m_window.prompts.message(outcome.problem, "vbok+vbcritical");
}

void PrintCommands::printShown(bool puzzle, bool solution) {
    if (m_session.puzzle.PuzNum == 0) {
        m_window.prompts.message("There is no puzzle to print", "vbok+vbinformation");
        return;
    }
    const WhileSet running(m_session.busy.commandRunning);
    const PrintJob job = jobOf(m_session.game.board, m_session.puzzle.PuzNum, puzzle, solution);
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(QString::fromStdString(job.title));
    if (m_printer && !m_printer->isEmpty())
        printer.setPrinterName(*m_printer);
    if (m_printers.setUp(printer, m_window.window))
        tell(paint(printer, job), "Printed");
}

/// A file is written like every other one, so that it is whole and nothing is lost silently.
Outcome PrintCommands::paint(QPrinter& printer, const PrintJob& job) {
    const GoOn always = [](int) { return true; };
    const QString file = printer.outputFileName();
    if (!file.isEmpty())
        return writePdf(file.toStdString(), paperOf(printer), job, m_session.appearance, always)
            .outcome;
    // Without a printer Qt takes to PDF, whether a file is named or not.
    if (!printer.isValid() || printer.outputFormat() == QPrinter::PdfFormat)
        return Outcome::failed("There is no printer.");
    printer.setFullPage(true);
    return paintBooklet(printer, job, m_session.appearance, always).outcome;
}

void PrintCommands::printMultiple() {
    const WhileSet running(m_session.busy.commandRunning);
    const auto order =
        m_window.dialog.choose({m_session.puzzle.PuzPath, m_session.puzzle.PuzCount, m_printer});
    if (!order)
        return;
    m_printer = order->printer;
    m_closing = false;
    carryOut(*order);
}

void PrintCommands::carryOut(const PrintOrder& order) {
    const PrintJob job = jobOf(order.range, m_files);
    std::string target = order.printer.toStdString();
    if (order.printer.isEmpty()) {
        target = chooseOutputFile(pdfQuestion(), m_window.picker, m_window.prompts);
        if (target.empty())
            return;
    }
    m_window.progress.begin(u"Printing "_s + QString::fromStdString(job.title),
                            job.booklet.pageCount());
    const PrintResult result =
        order.printer.isEmpty() ? printToFile(target, job) : printTo(order.printer, job);
    m_window.progress.end();
    if (m_closing)
        return;
    if (result.stopped)
        m_window.display.showMessage("Nothing was printed");
    else
        tell(result.outcome, pagesText(job) + " printed to " + target);
}

PrintResult PrintCommands::write(const std::filesystem::path& pdf, PaperSize paper,
                                 const PrintJob& job) {
    return writePdf(pdf, paper, job, m_session.appearance,
                    [this](int page) { return m_window.progress.goOn(page); });
}

PrintResult PrintCommands::printToFile(const std::filesystem::path& path, const PrintJob& job) {
    return write(path, customaryPaper(), job);
}

/// The printer gets the whole document or none of it.
PrintResult PrintCommands::printTo(const QString& printer, const PrintJob& job) {
    const QTemporaryDir folder;
    if (!folder.isValid())
        return {Outcome::failed(folder.errorString().toStdString()), false};
    const std::filesystem::path pdf = folder.filePath(u"booklet.pdf"_s).toStdString();
    PrintResult result = write(pdf, m_printers.paperOf(printer), job);
    if (result.isComplete())
        result.outcome = m_printers.print(printer, pdf, QString::fromStdString(job.title));
    return result;
}

} // namespace tessaly
