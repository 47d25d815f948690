#include "ui/window/multiple_creation_dialog.h"

#include "ui/controls/box_control.h"
#include "ui/controls/choice_mark.h"
#include "ui/controls/dialog_parts.h"
#include "ui/drawing/qt_values.h"

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

constexpr const char* DefaultFile = "multipuzfile.txt";
constexpr int CreationDialogWidth = 420;

} // namespace

Form3::Form3(const Appearance& appearance, const FileDialog& fileDialog, Prompts& prompts,
             std::filesystem::path programFolder, QWidget* parent)
    : QDialog(parent)
    , m_appearance(appearance)
    , m_prompts(prompts)
    , m_programFolder(std::move(programFolder)) {
    setObjectName(u"Form3"_s);
    setWindowTitle(tr("Create Multiple Puzzles"));
    QVBoxLayout* rows = addRows(*this);
    rows->addWidget(makeDifficultyFrame());
    rows->addWidget(makeNumberFrame());
    rows->addWidget(makeFileFrame(fileDialog));
    rows->addStretch();
    rows->addLayout(makeButtons());
    setMinimumWidth(CreationDialogWidth);
    showFile(m_programFolder / DefaultFile);
}

QWidget* Form3::makeDifficultyFrame() {
    auto* frame = new QGroupBox(tr("Difficulty Level"), this);
    auto* row = new QHBoxLayout(frame);
    row->setSpacing(2 * Spacing);
    m_random = named(u"Option1_0"_s, new OptionDot(u"Random"_s, frame));
    m_easy = named(u"Option1_1"_s, new OptionDot(u"Easy"_s, frame));
    m_hard = named(u"Option1_2"_s, new OptionDot(u"Hard"_s, frame));
    m_random->setChecked(true);
    for (QRadioButton* option : {m_random, m_easy, m_hard})
        row->addWidget(option);
    row->addStretch();
    return frame;
}

QWidget* Form3::makeNumberFrame() {
    auto* frame = new QGroupBox(tr("Number of Puzzles"), this);
    auto* row = new QHBoxLayout(frame);
    m_number = named(u"Text1"_s, new QLineEdit(u"10"_s, frame));
    m_number->setAccessibleName(frame->title());
    m_number->setMaximumWidth(ButtonSize.width());
    row->addWidget(m_number);
    row->addStretch();
    return frame;
}

QWidget* Form3::makeFileFrame(const FileDialog& fileDialog) {
    auto* frame = new QGroupBox(tr("Output File"), this);
    auto* rows = new QVBoxLayout(frame);
    auto* row = new QHBoxLayout;
    m_file = named(u"Label2"_s, new ElidedLabel(frame));
    m_file->setTextFormat(Qt::PlainText);
    m_picker = makeFilePicker(fileDialog, m_prompts, frame);
    row->addWidget(m_file, 1);
    row->addWidget(m_picker);
    m_default = named(u"Check3"_s, new TickBox(tr("Use the default file"), frame));
    m_default->setChecked(true);
    rows->addLayout(row);
    rows->addWidget(m_default);
    connect(m_picker, &FNDialog::clicked, this, &Form3::chooseFile);
    connect(m_default, &QCheckBox::clicked, this, [this](bool ticked) {
        if (ticked)
            showFile(m_programFolder / DefaultFile);
        else
            chooseFile();
    });
    return frame;
}

QHBoxLayout* Form3::makeButtons() {
    auto* ok = named(u"Command1"_s, new BoxControl(u"Ok"_s, this));
    auto* cancel = named(u"Command2"_s, new BoxControl(u"Cancel"_s, this));
    connect(ok, &BoxControl::clicked, this, &Form3::acceptOrder);
    connect(cancel, &BoxControl::clicked, this, &QDialog::reject);
    connect(m_number, &QLineEdit::returnPressed, this, &Form3::acceptOrder);
    return makeButtonRow({ok, cancel});
}

void Form3::chooseFile() {
    const std::filesystem::path chosen = choosePuzzleFile(
        *m_picker, m_path.parent_path(), FileUse::Save, "Select an output Puzzle file");
    if (!chosen.empty())
        showFile(chosen);
    m_default->setChecked(m_path == m_programFolder / DefaultFile);
}

void Form3::showFile(const std::filesystem::path& path) {
    m_path = path;
    m_file->setText(pathText(path));
    m_file->setToolTip(plainToolTip(pathText(path)));
}

/// 0 when it is none, or more than can be counted.
int Form3::number() const {
    return m_number->text().trimmed().toInt();
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
