#include "ui/options/options_dialog.h"

#include "ui/controls/box_control.h"
#include "ui/controls/choice_list.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/path_text.h"
#include "ui/controls/scheme_palette.h"
#include "ui/drawing/qt_colour.h"
#include "ui/options/colour_picker.h"
#include "ui/options/option_samples.h"
#include "ui/options/options_form.h"
#include "ui/options/sample_board.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSlider>
#include <QVBoxLayout>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

constexpr int SamplePointSize = 18;

void selectFont(ChoiceList& fonts, const QString& font) {
    for (int row = 0; row < fonts.count(); ++row)
        if (fonts.item(row)->text().compare(font, Qt::CaseInsensitive) == 0) {
            fonts.select(row);
            fonts.scrollToItem(fonts.item(row), ChoiceList::PositionAtTop);
            return;
        }
}

int rowOf(std::optional<std::size_t> index) {
    return index ? static_cast<int>(*index) : -1;
}

} // namespace

Form2x::Form2x(Appearance& settings, const std::string& programFolder, Prompts& prompts,
               QWidget* parent)
    : QDialog(parent)
    , m_editor(settings, programFolder, prompts)
    , m_form(new OptionsForm(this)) {
    setObjectName(u"Form2x"_s);
    setWindowTitle(u"Tessaly Options"_s);
    setModal(true);
    addRows(*this)->addWidget(m_form);
    connectSchemes();
    connectSamples();
    connectDialogButtons();
    showSchemeInForce();
}

template <class Action>
void Form2x::react(Action action) {
    m_editor.setSelectedColour(m_form->selector->SelColor());
    action();
    showSamples();
}

template <class Action>
void Form2x::reactWithScheme(Action action) {
    react(action);
    showScheme();
}

template <class Action>
void Form2x::reactWithLibrary(Action action) {
    react(action);
    showSchemes();
}

void Form2x::connectSchemes() {
    connect(m_form->schemes, &ChoiceList::chosen, this, [this](int row) {
        reactWithScheme([&] { m_editor.List1_MouseUp(static_cast<std::size_t>(row)); });
    });
    connect(m_form->contrast, &QSlider::valueChanged, this, [this](int contrast) {
        reactWithScheme([&] { m_editor.ContrastV_Change(contrast); });
    });
    connect(m_form->ShowSch, &BoxControl::clicked, this,
            [this] { reactWithScheme([this] { m_editor.ShowSch(); }); });
    connect(m_form->AddSch, &BoxControl::clicked, this,
            [this] { reactWithLibrary([this] { m_editor.AddSch(); }); });
    connect(m_form->RepSch, &BoxControl::clicked, this,
            [this] { reactWithLibrary([this] { m_editor.RepSch(); }); });
    connect(m_form->DelSch, &BoxControl::clicked, this,
            [this] { reactWithLibrary([this] { m_editor.DelSch(); }); });
}

void Form2x::connectSamples() {
    for (std::size_t index = 0; index < m_form->cmdcol.size(); ++index)
        connect(m_form->cmdcol[index], &BoxControl::clicked, this, [this, index] {
            react([this, index] { m_editor.cmdcol(static_cast<int>(index)); });
        });
    connect(m_form->cmdcol[OptionsEditor::HexaBorder], &BoxControl::alternateClicked, this,
            [this] { react([this] { m_editor.widenBorder(); }); });
    connect(m_form->fonts, &ChoiceList::chosen, this, [this](int row) {
        react([&] { m_editor.List2_MouseUp(m_form->fonts->item(row)->text().toStdString()); });
    });
    connect(m_form->numBorder, &QCheckBox::toggled, this,
            [this](bool on) { react([&] { m_editor.Check1_Click(on); }); });
    connect(m_form->splitHexas, &QCheckBox::toggled, this,
            [this](bool on) { react([&] { m_editor.Check2_Click(on); }); });
}

void Form2x::connectDialogButtons() {
    connect(m_form->cmddef, &BoxControl::clicked, this, [this] {
        m_editor.cmddef();
        activate();
    });
    connect(m_form->apply, &BoxControl::clicked, this, &Form2x::apply);
    connect(m_form->exit, &BoxControl::clicked, this, &QDialog::reject);
}

void Form2x::showOptions() {
    m_editor.open();
    activate();
    show();
    m_form->schemes->setFocus();
}

void Form2x::activate() {
    const Appearance& samples = m_editor.samples();
    showSamples();
    showScheme();
    showSchemes();
    m_form->printLine->setText(QString::number(samples.PrintLineWidth));
    selectFont(*m_form->fonts, pathText(samples.NumberFont));
}

void Form2x::showSchemes() {
    m_form->schemes->clear();
    for (const std::string& name : m_editor.schemeNames())
        m_form->schemes->addItem(pathText(name));
    m_form->schemes->showRow(rowOf(m_editor.schemeInForce()));
    m_form->schemes->select(rowOf(m_editor.selectedScheme()));
    showSchemeCaption();
}

/// The colours that the selector and the contrast start from.
void Form2x::showScheme() {
    const QSignalBlocker blocker(m_form->contrast);
    m_form->contrast->setValue(m_editor.contrast());
    m_form->selector->setSchemeColor(m_editor.samples().SchemeColours[slot::Background]);
    m_form->selector->setSelColor(m_editor.selectedColour());
    showSchemeCaption();
}

void Form2x::showSamples() {
    const Appearance& samples = m_editor.samples();
    setPalette(schemePalette(samples));
    QPalette printLine = palette();
    printLine.setColor(QPalette::Base, printLine.color(QPalette::Button));
    printLine.setColor(QPalette::Text, printLine.color(QPalette::ButtonText));
    m_form->printLine->setPalette(printLine);
    showNumberSample(*m_form->givenSample, samples.FixedNumberColour);
    showNumberSample(*m_form->userSample, samples.UserNumberColour);
    m_form->borderSample->setLine(toQColor(samples.HexaBorderColour), samples.HexaBorderWidth);
    m_form->fillSample->setFill(toQColor(samples.HexaFillColour));
    const QSignalBlocker numBorder(m_form->numBorder);
    const QSignalBlocker splitHexas(m_form->splitHexas);
    m_form->numBorder->setChecked(samples.NumBorder);
    m_form->splitHexas->setChecked(samples.SplitHexas);
    m_form->board->showAppearance(samples);
}

void Form2x::showNumberSample(QLabel& label, Colour colour) {
    QFont font(pathText(m_editor.samples().NumberFont), SamplePointSize);
    label.setFont(font);
    QPalette colours = palette();
    colours.setColor(QPalette::WindowText, toQColor(colour));
    label.setPalette(colours);
}

void Form2x::showSchemeCaption() {
    m_form->showSchemeCaption(pathText(m_editor.schemeCaption()));
}

void Form2x::showSchemeInForce() {
    m_editor.showSchemeInForce();
    showSchemeCaption();
}

void Form2x::apply() {
    m_editor.Apply(m_form->printLine->text().toStdString());
    hide();
    Q_EMIT applied();
}

} // namespace tessaly
