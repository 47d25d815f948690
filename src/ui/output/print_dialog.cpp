#include "ui/output/print_dialog.h"

#include "core/base/prompts.h"
#include "core/base/text.h"
#include "core/board/puzzle_store.h"
#include "ui/controls/box_control.h"
#include "ui/controls/choice_mark.h"
#include "ui/controls/dialog_parts.h"
#include "ui/drawing/qt_values.h"
#include "ui/output/printers.h"

#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;
using dialog::ButtonSize;
using dialog::Spacing;

constexpr int Width = 440;
constexpr int NumberWidth = 96;

int numberIn(const QLineEdit& box) {
    return leadingWholeNumber(box.text().toStdString());
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
    setObjectName(u"Form5"_s);
    setWindowTitle(u"Print Puzzles From File"_s);
    QVBoxLayout* rows = addRows(*this);
    makePrinterFrame();
    makeFileFrame(fileDialog);
    makeRangeFrame();
    makePageFrame();
    rows->addStretch();
    rows->addLayout(makeButtons());
    setMinimumWidth(Width);
}

QGroupBox* Form5::addFrame(const QString& title, const QString& name) {
    auto* frame = named(name, new QGroupBox(title, this));
    auto* row = new QHBoxLayout(frame);
    row->setSpacing(Spacing);
    layout()->addWidget(frame);
    return frame;
}

void Form5::makePrinterFrame() {
    auto* frame = addFrame(u"Printer"_s, u"Frame5"_s);
    m_printer = named(u"Combo1"_s, new QComboBox(frame));
    m_printer->setToolTip(u"Select a printer for output"_s);
    m_printer->setAccessibleName(frame->title());
    m_printer->setMinimumHeight(ButtonSize.height());
    m_printer->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    frame->layout()->addWidget(m_printer);
}

void Form5::makeFileFrame(const FileDialog& fileDialog) {
    auto* frame = addFrame(u"Puzzles File"_s, u"InFileFrame"_s);
    m_file = named(u"FileNow"_s, new QLineEdit(frame));
    m_file->setReadOnly(true);
    m_file->setAccessibleName(frame->title());
    m_file->setMinimumHeight(ButtonSize.height());
    m_picker = makeFilePicker(fileDialog, m_prompts, frame);
    frame->layout()->addWidget(m_file);
    frame->layout()->addWidget(m_picker);
    connect(m_picker, &FNDialog::clicked, this, &Form5::chooseFile);
}

void Form5::makeRangeFrame() {
    auto* frame = addFrame(u"Number of Puzzles"_s, u"Frame1"_s);
    auto* row = static_cast<QHBoxLayout*>(frame->layout());
    m_from = named(u"Text1"_s, new QLineEdit(frame));
    m_to = named(u"Text2"_s, new QLineEdit(frame));
    auto* from = named(u"Label1"_s, new QLabel(u"From"_s, frame));
    auto* to = named(u"Label2"_s, new QLabel(u"To"_s, frame));
    for (const auto& [label, box] : {std::pair(from, m_from), std::pair(to, m_to)}) {
        label->setBuddy(box);
        box->setAccessibleName(label->text());
        box->setFixedSize(NumberWidth, ButtonSize.height());
        row->addWidget(label);
        row->addWidget(box);
        row->addSpacing(Spacing);
        connect(box, &QLineEdit::returnPressed, this, &Form5::acceptRange);
    }
    row->addStretch();
}

void Form5::makePageFrame() {
    auto* frame = addFrame(tr("Puzzles per Page"), u"pageFrame"_s);
    auto* row = static_cast<QHBoxLayout*>(frame->layout());
    for (std::size_t i = 0; i < m_perPage.size(); ++i) {
        const QString count = QString::number(PuzzlesPerPage[i]);
        m_perPage[i] = named(u"perPage_"_s + count, new OptionDot(count, frame));
        m_perPage[i]->setChecked(PuzzlesPerPage[i] == PageDesign::UsualPuzzlesPerPage);
        row->addWidget(m_perPage[i]);
    }
    row->addStretch();
    m_solutions = named(u"withSolutions"_s, new TickBox(tr("Solutions at the end"), frame));
    m_solutions->setChecked(true);
    row->addWidget(m_solutions);
}

QHBoxLayout* Form5::makeButtons() {
    // Children of the form itself: the file-name picker has a button of the same name.
    auto* print = named(u"Command1"_s, new BoxControl(u"Print"_s, this));
    auto* exit = named(u"Command2"_s, new BoxControl(u"Exit"_s, this));
    connect(print, &BoxControl::clicked, this, &Form5::acceptRange);
    connect(exit, &BoxControl::clicked, this, &QDialog::reject);
    return makeButtonRow({print, exit});
}

/// Frames and labels lie on the background; what can be set is in the buttons' colour.
void Form5::paint() {
    QPalette palette = schemePalette(m_appearance);
    setPalette(palette);
    const QColor field = palette.color(QPalette::Button);
    palette.setColor(QPalette::Base, field);
    palette.setColor(QPalette::Text, readableOn(field));
    for (QWidget* box : {static_cast<QWidget*>(m_printer), static_cast<QWidget*>(m_file),
                         static_cast<QWidget*>(m_from), static_cast<QWidget*>(m_to)})
        box->setPalette(palette);
}

void Form5::load(const PrintSuggestion& suggestion) {
    m_printer->clear();
    m_printer->addItems(m_printers.names());
    m_printer->addItem(QString::fromLatin1(PrintToPdf));
    const QString current = suggestion.printer.value_or(m_printers.defaultName());
    const int index = current.isEmpty() ? -1 : m_printer->findText(current, Qt::MatchExactly);
    m_printer->setCurrentIndex(index >= 0 ? index : m_printer->count() - 1);
    m_path = suggestion.path;
    m_count = suggestion.count;
    m_file->setText(pathText(m_path));
    m_file->setToolTip(u"Puzzles to be printed are stored in this file"_s);
    m_from->setText(u"1"_s);
    m_to->setText(QString::number(m_count));
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
    m_to->setText(QString::number(count));
}

void Form5::acceptRange() {
    const int from = numberIn(*m_from);
    const int to = numberIn(*m_to);
    if (!(from >= 1 && to <= m_count)) {
        m_prompts.message("Invalid from or to puzzle number", style::Critical);
    } else if (to >= from) {
        m_tag = u"Y"_s;
        accept();
    } else {
        m_prompts.message("Invalid from or to puzzle number", "vbcritical+vbok");
    }
}

PrintOrder Form5::order() const {
    PrintOrder order;
    order.request.files = {m_path};
    order.request.selection.numbers = NumberList({numberIn(*m_from), numberIn(*m_to)});
    for (std::size_t i = 0; i < m_perPage.size(); ++i)
        if (m_perPage[i]->isChecked())
            order.request.design.puzzlesPerPage = PuzzlesPerPage[i];
    if (!m_solutions->isChecked())
        order.request.design.solutions = SolutionsAt::None;
    const bool toPdf = m_printer->currentIndex() == m_printer->count() - 1;
    order.printer = toPdf ? QString() : m_printer->currentText();
    return order;
}

std::optional<PrintOrder> Form5::choose(const PrintSuggestion& suggestion) {
    paint();
    load(suggestion);
    m_from->setFocus();
    m_from->selectAll();
    m_tag = u"X"_s;
    exec();
    if (m_tag != u"Y"_s)
        return {};
    return order();
}

} // namespace tessaly
