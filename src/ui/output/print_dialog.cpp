#include "ui/output/print_dialog.h"

#include "core/base/prompts.h"
#include "core/board/puzzle_store.h"
#include "ui/controls/box_control.h"
#include "ui/controls/dialog_parts.h"
#include "ui/drawing/qt_values.h"
#include "ui/output/new_puzzles_tab.h"
#include "ui/output/page_tabs.h"
#include "ui/output/paper_tab.h"
#include "ui/output/print_preview.h"
#include "ui/output/selection_tab.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QFileInfo>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QStandardPaths>
#include <QTabWidget>
#include <QVBoxLayout>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;
using dialog::ButtonSize;
using dialog::Spacing;

constexpr int ChoiceWidth = 430;
constexpr int PreviewWidth = 300;
constexpr int Height = 452;

/// Of a longer file the puzzle shown is suggested instead of all.
constexpr int ShortFile = 50;

/// Beside the puzzle file, where that can be.
OutputFileQuestion pdfQuestion(const std::filesystem::path& puzzles) {
    QString folder = pathText(puzzles.parent_path());
    if (folder.isEmpty() || !QFileInfo(folder).isWritable())
        folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return {u"Select a PDF file to print to"_s,  u"*.pdf"_s, u"PDF Files"_s, folder, {u".pdf"_s},
            pathText(puzzles.stem()) + u".pdf"_s};
}

} // namespace

Form5::Form5(const Appearance& appearance, Printers& printers, const FileDialog& fileDialog,
             Prompts& prompts, std::filesystem::path programFolder, QWidget* parent)
    : QDialog(parent)
    , m_appearance(appearance)
    , m_printers(printers)
    , m_prompts(prompts)
    , m_programFolder(std::move(programFolder))
    , m_tag(u"X"_s) {
    constexpr int Pause = 150; // in milliseconds, between a change and what it leads to
    setObjectName(u"Form5"_s);
    setWindowTitle(u"Print Puzzles From File"_s);
    auto* choices = new QVBoxLayout;
    choices->setSpacing(Spacing / 2);
    auto* columns = new QHBoxLayout(this);
    columns->setContentsMargins(dialog::Margin, Spacing, dialog::Margin, Spacing);
    columns->setSpacing(dialog::Margin);
    columns->addLayout(choices);
    makePrinterFrame(*choices);
    makeFileFrame(*choices, fileDialog);
    makeTabs(*choices);
    makeButtons(*choices);
    m_changed.setSingleShot(true);
    m_changed.setInterval(Pause);
    connect(&m_changed, &QTimer::timeout, this, &Form5::showPages);
}

QGroupBox* Form5::addFrame(QVBoxLayout& rows, const QString& title, const QString& name) {
    auto* frame = named(name, new QGroupBox(title, this));
    auto* row = new QHBoxLayout(frame);
    row->setSpacing(Spacing);
    rows.addWidget(frame);
    return frame;
}

void Form5::makePrinterFrame(QVBoxLayout& rows) {
    auto* frame = addFrame(rows, u"Printer"_s, u"Frame5"_s);
    m_printer = named(u"Combo1"_s, new QComboBox(frame));
    m_printer->setToolTip(u"Select a printer for output"_s);
    m_printer->setAccessibleName(frame->title());
    m_printer->setMinimumHeight(ButtonSize.height());
    m_printer->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    frame->layout()->addWidget(m_printer);
    connect(m_printer, &QComboBox::currentIndexChanged, this, &Form5::offerPaper);
}

void Form5::makeFileFrame(QVBoxLayout& rows, const FileDialog& fileDialog) {
    auto* frame = addFrame(rows, u"Puzzles File"_s, u"InFileFrame"_s);
    m_file = named(u"FileNow"_s, new QLineEdit(frame));
    m_file->setReadOnly(true);
    m_file->setAccessibleName(frame->title());
    m_file->setMinimumHeight(ButtonSize.height());
    m_picker = makeFilePicker(fileDialog, m_prompts, frame);
    frame->layout()->addWidget(m_file);
    frame->layout()->addWidget(m_picker);
    connect(m_picker, &FNDialog::clicked, this, &Form5::chooseFile);
}

void Form5::makeTabs(QVBoxLayout& rows) {
    auto* tabs = named(u"tabs"_s, new QTabWidget(this));
    m_selection = new SelectionTab;
    m_pages = new PageTab;
    m_solutions = new SolutionTab;
    m_paper = new PaperTab;
    m_newPuzzles = new NewPuzzlesTab;
    tabs->addTab(m_selection, tr("Puzzles"));
    tabs->addTab(m_pages, tr("Pages"));
    tabs->addTab(m_solutions, tr("Solutions"));
    tabs->addTab(m_paper, tr("Paper"));
    tabs->addTab(m_newPuzzles, tr("New Puzzles"));
    tabs->setFixedWidth(ChoiceWidth);
    rows.addWidget(tabs, 1);
    const auto change = [this] { m_changed.start(); };
    connect(m_selection, &SelectionTab::changed, this, change);
    connect(m_pages, &PageTab::changed, this, change);
    connect(m_solutions, &SolutionTab::changed, this, change);
    connect(m_paper, &PaperTab::changed, this, change);
    connect(m_selection, &SelectionTab::confirmed, this, &Form5::acceptRange);
    connect(m_newPuzzles, &NewPuzzlesTab::confirmed, this, &Form5::acceptNewPuzzles);
}

void Form5::makeButtons(QVBoxLayout& rows) {
    // Children of the form itself: the file-name picker has a button of the same name.
    auto* print = named(u"Command1"_s, new BoxControl(u"Print"_s, this));
    auto* exit = named(u"Command2"_s, new BoxControl(u"Exit"_s, this));
    connect(print, &BoxControl::clicked, this, &Form5::acceptRange);
    connect(exit, &BoxControl::clicked, this, &QDialog::reject);
    m_pageCount = named(u"pageCount"_s, new QLabel(this));
    m_pageCount->setTextFormat(Qt::PlainText);
    m_pageCount->setWordWrap(true);
    QHBoxLayout* row = makeButtonRow({print, exit});
    row->insertWidget(0, m_pageCount, 1);
    rows.addLayout(row);
}

/// Frames and labels lie on the background; what can be set is in the buttons' colour.
void Form5::paint() {
    QPalette palette = schemePalette(m_appearance);
    setPalette(palette);
    const QColor field = palette.color(QPalette::Button);
    palette.setColor(QPalette::Base, field);
    palette.setColor(QPalette::Text, readableOn(field));
    palette.setColor(QPalette::PlaceholderText, fadedOn(field));
    for (const auto role : {QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, fadedOn(field));
    const auto inButtonsColour = [&palette](const auto& fields) {
        for (QWidget* each : fields)
            each->setPalette(palette);
    };
    inButtonsColour(findChildren<QComboBox*>());
    inButtonsColour(findChildren<QLineEdit*>());
    inButtonsColour(findChildren<QAbstractSpinBox*>());
}

void Form5::load(const PrintSuggestion& suggestion) {
    listPrinters(suggestion.printer.value_or(m_printers.defaultName()));
    m_path = suggestion.path;
    m_count = suggestion.count;
    m_file->setText(pathText(m_path));
    m_file->setToolTip(u"Puzzles to be printed are stored in this file"_s);
    const bool isShort = m_count <= ShortFile;
    m_selection->setRange(isShort ? 1 : suggestion.number, isShort ? m_count : suggestion.number);
}

void Form5::listPrinters(const QString& current) {
    const QSignalBlocker quiet(m_printer);
    m_printer->clear();
    m_printer->addItems(m_printers.names());
    m_printer->addItem(QString::fromLatin1(PrintToPdf));
    const int index = current.isEmpty() ? -1 : m_printer->findText(current, Qt::MatchExactly);
    m_printer->setCurrentIndex(index >= 0 ? index : m_printer->count() - 1);
    offerPaper();
}

bool Form5::isToPdf() const {
    return m_printer->currentIndex() == m_printer->count() - 1;
}

QString Form5::printer() const {
    return isToPdf() ? QString() : m_printer->currentText();
}

void Form5::offerPaper() {
    m_paper->offer(isToPdf() ? customaryPapers() : m_printers.offerOf(printer()), isToPdf());
}

void Form5::chooseFile() {
    const std::filesystem::path chosen =
        choosePuzzleFile(*m_picker, m_path.empty() ? m_programFolder : m_path.parent_path(),
                         FileUse::Open, "Select a Puzzle file to print");
    if (chosen.empty())
        return;
    int count = 0;
    if (const Outcome counted = PuzzleStore().CountLines(chosen, count); !counted.ok()) {
        m_prompts.message(counted.problem, style::Critical);
        return;
    }
    m_path = chosen;
    m_count = count;
    m_file->setText(pathText(chosen));
    m_file->setToolTip(plainToolTip(pathText(chosen)));
    m_selection->setLast(count);
    m_changed.start();
}

Outcome Form5::readRequest(PrintRequest& request) const {
    if (m_path.empty())
        return Outcome::failed("there is no puzzle file");
    request.files = {m_path};
    m_pages->addTo(request.design);
    m_solutions->addTo(request.design);
    return m_selection->read(request.selection);
}

/// Shows how many pages it would be now, and how they would look.
void Form5::showPages() {
    PrintRequest request;
    std::vector<PrintJob> jobs;
    std::vector<BookletPage> pages;
    std::size_t pageCount = 0;
    Outcome outcome = readRequest(request);
    if (outcome.ok())
        outcome = makeJobs(request, jobs);
    for (auto job = jobs.rbegin(); outcome.ok() && job != jobs.rend(); ++job) {
        outcome = layOutBooklet(job->design, m_paper->paper(), job->puzzleCount(), pages);
        pageCount += pages.size();
    }
    // Without the folders, for which there is no room.
    m_pageCount->setText(
        !outcome.ok()
            ? QString::fromStdString(outcome.problem).remove(pathText(m_path.parent_path()) + u'/')
        : pageCount == 1 ? tr("1 page")
                         : tr("%1 pages").arg(pageCount));
    m_pageCount->setToolTip(plainToolTip(m_pageCount->text()));
    if (outcome.ok())
        m_preview->showJob(std::move(jobs.front()), m_paper->paper(), std::move(pages));
    else
        m_preview->clear();
}

void Form5::acceptRange() {
    const int from = m_selection->from();
    const int to = m_selection->to();
    if (!m_selection->hasList() && !(from >= 1 && to <= m_count)) {
        m_prompts.message("Invalid from or to puzzle number", style::Critical);
        return;
    }
    if (!m_selection->hasList() && to < from) {
        m_prompts.message("Invalid from or to puzzle number", "vbcritical+vbok");
        return;
    }
    PrintOrder order;
    std::vector<PrintJob> jobs;
    Outcome outcome = readRequest(order.request);
    if (outcome.ok())
        outcome = makeJobs(order.request, jobs);
    if (outcome.ok())
        finish(std::move(order), jobs.front().puzzleCount());
    else
        m_prompts.message(outcome.problem, style::Critical);
}

void Form5::acceptNewPuzzles() {
    const int count = m_newPuzzles->count();
    if (count < 1) {
        m_prompts.message("Incorrect number of puzzles", "vbcritical+vbok");
        return;
    }
    PrintOrder order;
    const std::filesystem::path file =
        m_path.empty() ? m_programFolder / TemporaryPuzzleFile : m_path;
    order.request.files = {file};
    m_pages->addTo(order.request.design);
    m_solutions->addTo(order.request.design);
    order.creation = CreationOrder{file, m_newPuzzles->difficulty(), count};
    finish(std::move(order), count);
}

/// Closes the dialog if the pages can be made and have somewhere to go.
void Form5::finish(PrintOrder order, int puzzles) {
    order.target.paper = m_paper->paper();
    order.target.sheets = m_paper->sheets();
    order.target.printer = printer();
    Outcome fits = checkTitle(order.request.design.title);
    std::vector<BookletPage> pages;
    for (const PageDesign& design : documentsOf(order.request.design))
        if (fits.ok())
            fits = layOutBooklet(design, order.target.paper, puzzles, pages);
    if (!fits.ok()) {
        m_prompts.message(fits.problem, style::Critical);
        return;
    }
    if (!hasPrinter())
        return;
    if (isToPdf()) {
        order.target.file =
            chooseOutputFile(pdfQuestion(order.request.files.front()), *m_picker, m_prompts);
        const bool hasTwo = order.request.design.solutions == SolutionsAt::OwnFile;
        if (order.target.file.empty() ||
            (hasTwo && !mayReplace(solutionsFileOf(order.target.file), m_prompts)))
            return;
    }
    m_order = std::move(order);
    m_tag = u"Y"_s;
    accept();
}

/// Printers come and go while the dialog is open.
bool Form5::hasPrinter() {
    if (isToPdf() || m_printers.names().contains(printer()))
        return true;
    m_prompts.message(printer().toStdString() + ": this printer is not there any more",
                      style::Critical);
    listPrinters({});
    return false;
}

std::optional<PrintOrder> Form5::choose(const PrintSuggestion& suggestion) {
    if (m_preview == nullptr) {
        m_preview = new PrintPreview(m_appearance, this);
        m_preview->setMinimumWidth(PreviewWidth);
        static_cast<QHBoxLayout*>(layout())->addWidget(m_preview, 1);
        resizeOnScreen(*this, {ChoiceWidth + PreviewWidth + 3 * dialog::Margin, Height});
    }
    load(suggestion);
    paint();
    showPages();
    m_selection->focusFirst();
    m_tag = u"X"_s;
    exec();
    m_changed.stop();
    if (m_tag != u"Y"_s)
        return {};
    return m_order;
}

} // namespace tessaly
