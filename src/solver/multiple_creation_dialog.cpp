// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "solver/multiple_creation_dialog.h"

#include "ui/box_control.h"
#include "ui/choice_buttons.h"
#include "ui/elided_label.h"
#include "ui/file_name_picker.h"
#include "ui/path_text.h"
#include "ui/scheme_palette.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

constexpr const char* DefaultFile = "multipuzfile.txt";
constexpr int Margin = 16;
constexpr int Spacing = 12;
constexpr int Width = 420;
constexpr QSize ButtonSize(96, 34);

template <class Widget>
Widget* named(Widget* widget, const QString& name) {
    widget->setObjectName(name);
    return widget;
}

} // namespace

Form3::Form3(const Appearance& appearance, FileDialogs& fileDialogs, Prompts& prompts,
             std::string programFolder, QWidget* parent)
    : QDialog(parent)
    , m_appearance(appearance)
    , m_prompts(prompts)
    , m_programFolder(std::move(programFolder)) {
    setObjectName(u"Form3"_s);
    setWindowTitle(tr("Create Multiple Puzzles"));
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(Margin, Margin, Margin, Margin);
    rows->setSpacing(Spacing);
    rows->addWidget(makeDifficultyFrame());
    rows->addWidget(makeNumberFrame());
    rows->addWidget(makeFileFrame(fileDialogs));
    rows->addStretch();
    rows->addWidget(makeButtons());
    setMinimumWidth(Width);
    showFile(m_programFolder + DefaultFile);
}

QWidget* Form3::makeDifficultyFrame() {
    auto* frame = new QGroupBox(tr("Difficulty Level"), this);
    auto* row = new QHBoxLayout(frame);
    row->setSpacing(2 * Spacing);
    m_random = named(new OptionDot(u"Random"_s, frame), u"Option1_0"_s);
    m_easy = named(new OptionDot(u"Easy"_s, frame), u"Option1_1"_s);
    m_hard = named(new OptionDot(u"Hard"_s, frame), u"Option1_2"_s);
    m_random->setChecked(true);
    for (QRadioButton* option : {m_random, m_easy, m_hard})
        row->addWidget(option);
    row->addStretch();
    return frame;
}

QWidget* Form3::makeNumberFrame() {
    auto* frame = new QGroupBox(tr("Number of Puzzles"), this);
    auto* row = new QHBoxLayout(frame);
    m_number = named(new QLineEdit(u"10"_s, frame), u"Text1"_s);
    m_number->setAccessibleName(frame->title());
    m_number->setMaximumWidth(ButtonSize.width());
    row->addWidget(m_number);
    row->addStretch();
    return frame;
}

QWidget* Form3::makeFileFrame(FileDialogs& fileDialogs) {
    auto* frame = new QGroupBox(tr("Output File"), this);
    auto* rows = new QVBoxLayout(frame);
    auto* row = new QHBoxLayout;
    m_file = named(new ElidedLabel(frame), u"Label2"_s);
    m_file->setTextFormat(Qt::PlainText);
    m_picker = named(new FNDialog(fileDialogs, m_prompts, frame), u"gf1"_s);
    m_picker->setFixedSize(ButtonSize.height(), ButtonSize.height());
    m_picker->setToolTip(tr("Choose another file"));
    row->addWidget(m_file, 1);
    row->addWidget(m_picker);
    m_default = named(new TickBox(tr("Use the default file"), frame), u"Check3"_s);
    m_default->setChecked(true);
    rows->addLayout(row);
    rows->addWidget(m_default);
    connect(m_picker, &FNDialog::clicked, this, &Form3::chooseFile);
    connect(m_default, &QCheckBox::toggled, this, [this](bool ticked) {
        if (ticked)
            showFile(m_programFolder + DefaultFile);
    });
    return frame;
}

QWidget* Form3::makeButtons() {
    auto* buttons = new QWidget(this);
    auto* row = new QHBoxLayout(buttons);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Spacing);
    m_ok = named(new BoxControl(u"OK"_s, buttons), u"Command1"_s);
    m_cancel = named(new BoxControl(u"Cancel"_s, buttons), u"Command2"_s);
    row->addStretch();
    for (BoxControl* button : {m_ok, m_cancel}) {
        button->setFixedSize(ButtonSize);
        row->addWidget(button);
    }
    connect(m_ok, &BoxControl::clicked, this, &Form3::acceptOrder);
    connect(m_cancel, &BoxControl::clicked, this, &QDialog::reject);
    connect(m_number, &QLineEdit::returnPressed, this, &Form3::acceptOrder);
    return buttons;
}

void Form3::chooseFile() {
    m_picker->setTitle(tr("Select an output Puzzle file"));
    m_picker->setFileTypes(u"*.txt;*.dat"_s);
    m_picker->setFileTypesName(u"Tessaly Files"_s);
    m_picker->setDefaultDir(pathText(m_programFolder));
    const QString chosen = m_picker->GetFileName(u"SAVE"_s);
    if (chosen.isEmpty())
        return;
    m_default->setChecked(false);
    showFile(chosen.toStdString());
}

void Form3::showFile(const std::string& path) {
    m_path = path;
    m_file->setText(pathText(path));
    m_file->setToolTip(pathText(path));
}

int Form3::number() const {
    const qlonglong number = m_number->text().trimmed().toLongLong();
    return static_cast<int>(std::min<qlonglong>(number, std::numeric_limits<int>::max()));
}

DifficultyChoice Form3::difficulty() const {
    if (m_easy->isChecked())
        return Difficulty::Easy;
    return m_hard->isChecked() ? DifficultyChoice(Difficulty::Hard) : std::nullopt;
}

void Form3::acceptOrder() {
    if (number() >= 1)
        accept();
    else
        m_prompts.message("Incorrect number of puzzles", "vbcritical+vbok");
}

std::optional<CreationOrder> Form3::choose() {
    setPalette(schemePalette(m_appearance));
    m_number->setFocus();
    m_number->selectAll();
    if (exec() != QDialog::Accepted)
        return {};
    return CreationOrder{m_path, difficulty(), number()};
}

} // namespace tessaly
