// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "output/print_dialog.h"

#include "board/leading_number.h"
#include "board/prompts.h"
#include "board/puzzle_file.h"
#include "output/printers.h"
#include "ui/box_control.h"
#include "ui/choice_buttons.h"
#include "ui/file_name_picker.h"
#include "ui/path_text.h"
#include "ui/qt_colour.h"
#include "ui/scheme_palette.h"

#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

constexpr int Margin = 16;
constexpr int Spacing = 12;
constexpr int Width = 440;
constexpr int NumberWidth = 96;
constexpr QSize ButtonSize(96, 34);

template <class Widget>
Widget* named(Widget* widget, const QString& name) {
    widget->setObjectName(name);
    return widget;
}

int numberIn(const QLineEdit& box) {
    return leadingWholeNumber(box.text().toStdString());
}

} // namespace

Form5::Form5(const Appearance& appearance, Printers& printers, FileDialogs& fileDialogs,
             Prompts& prompts, std::string programFolder, QWidget* parent)
    : QDialog(parent)
    , m_appearance(appearance)
    , m_printers(printers)
    , m_prompts(prompts)
    , m_programFolder(std::move(programFolder))
    , m_tag(u"X"_s) {
    setObjectName(u"Form5"_s);
    setWindowTitle(u"Print Puzzles From File"_s);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(Margin, Margin, Margin, Margin);
    rows->setSpacing(Spacing);
    makePrinterFrame();
    makeFileFrame(fileDialogs);
    makeRangeFrame();
    makePageFrame();
    rows->addStretch();
    rows->addLayout(makeButtons());
    setMinimumWidth(Width);
}

QGroupBox* Form5::addFrame(const QString& title, const QString& name) {
    auto* frame = named(new QGroupBox(title, this), name);
    auto* row = new QHBoxLayout(frame);
    row->setSpacing(Spacing);
    layout()->addWidget(frame);
    return frame;
}

void Form5::makePrinterFrame() {
    auto* frame = addFrame(u"Printer"_s, u"Frame5"_s);
    m_printer = named(new QComboBox(frame), u"Combo1"_s);
    m_printer->setToolTip(u"Select a printer for output"_s);
    m_printer->setAccessibleName(frame->title());
    m_printer->setMinimumHeight(ButtonSize.height());
    m_printer->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    frame->layout()->addWidget(m_printer);
}

void Form5::makeFileFrame(FileDialogs& fileDialogs) {
    auto* frame = addFrame(u"Puzzles File"_s, u"InFileFrame"_s);
    m_file = named(new QLineEdit(frame), u"FileNow"_s);
    m_file->setReadOnly(true);
    m_file->setAccessibleName(frame->title());
    m_file->setMinimumHeight(ButtonSize.height());
    m_picker = named(new FNDialog(fileDialogs, m_prompts, frame), u"gf1"_s);
    m_picker->setTitle(u"Select a Puzzle file to print"_s);
    m_picker->setFileTypes(u"*.txt;*.dat"_s);
    m_picker->setFileTypesName(u"Tessaly Files"_s);
    m_picker->setDefaultDir(pathText(m_programFolder));
    m_picker->setToolTip(tr("Choose another file"));
    m_picker->setFixedSize(ButtonSize.height(), ButtonSize.height());
    frame->layout()->addWidget(m_file);
    frame->layout()->addWidget(m_picker);
    connect(m_picker, &FNDialog::clicked, this, &Form5::chooseFile);
}

void Form5::makeRangeFrame() {
    auto* frame = addFrame(u"Number of Puzzles"_s, u"Frame1"_s);
    auto* row = static_cast<QHBoxLayout*>(frame->layout());
    m_from = named(new QLineEdit(frame), u"Text1"_s);
    m_to = named(new QLineEdit(frame), u"Text2"_s);
    auto* from = named(new QLabel(u"From"_s, frame), u"Label1"_s);
    auto* to = named(new QLabel(u"To"_s, frame), u"Label2"_s);
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
        m_perPage[i] = named(new OptionDot(count, frame), u"perPage_"_s + count);
        m_perPage[i]->setChecked(PuzzlesPerPage[i] == PrintRange::UsualPuzzlesPerPage);
        row->addWidget(m_perPage[i]);
    }
    row->addStretch();
    m_solutions = named(new TickBox(tr("Solutions at the end"), frame), u"withSolutions"_s);
    m_solutions->setChecked(true);
    row->addWidget(m_solutions);
}

QHBoxLayout* Form5::makeButtons() {
    auto* row = new QHBoxLayout;
    row->setSpacing(Spacing);
    // Children of the form itself: the file-name picker has a button of the same name.
    m_print = named(new BoxControl(u"Print"_s, this), u"Command1"_s);
    m_exit = named(new BoxControl(u"Exit"_s, this), u"Command2"_s);
    row->addStretch();
    for (BoxControl* button : {m_print, m_exit}) {
        button->setFixedSize(ButtonSize);
        row->addWidget(button);
    }
    connect(m_print, &BoxControl::clicked, this, &Form5::acceptRange);
    connect(m_exit, &BoxControl::clicked, this, &QDialog::reject);
    return row;
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
    const QString chosen = m_picker->GetFileName(u"OPEN"_s);
    if (chosen.isEmpty())
        return;
    int count = 0;
    if (const Outcome counted = PuzzleFiles().CountLines(chosen.toStdString(), count);
        !counted.ok()) {
        m_prompts.message(counted.problem, "vbok+vbcritical");
        return;
    }
    m_path = chosen.toStdString();
    m_count = count;
    m_file->setText(chosen);
    m_file->setToolTip(chosen);
    m_to->setText(QString::number(count));
}

void Form5::acceptRange() {
    const int from = numberIn(*m_from);
    const int to = numberIn(*m_to);
    if (!(from >= 1 && to <= m_count)) {
        m_prompts.message("Invalid from or to puzzle number", "vbok+vbcritical");
    } else if (to >= from) {
        m_tag = u"Y"_s;
        accept();
    } else {
        m_prompts.message("Invalid from or to puzzle number", "vbcritical+vbok");
    }
}

PrintOrder Form5::order() const {
    PrintOrder order;
    order.range.path = m_path;
    order.range.from = numberIn(*m_from);
    order.range.to = numberIn(*m_to);
    for (std::size_t i = 0; i < m_perPage.size(); ++i)
        if (m_perPage[i]->isChecked())
            order.range.puzzlesPerPage = PuzzlesPerPage[i];
    order.range.solutions = m_solutions->isChecked();
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
