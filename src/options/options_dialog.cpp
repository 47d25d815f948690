// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "options/options_dialog.h"

#include "options/choice_list.h"
#include "options/colour_picker.h"
#include "options/option_samples.h"
#include "options/sample_board.h"
#include "ui/box_control.h"
#include "ui/choice_buttons.h"
#include "ui/path_text.h"
#include "ui/qt_colour.h"
#include "ui/scheme_palette.h"

#include <QCheckBox>
#include <QFontDatabase>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSlider>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

constexpr int Margin = 16;
constexpr int Spacing = 12;
constexpr int ListWidth = 224;
constexpr int ListHeight = 150;
constexpr int ButtonHeight = 34;
constexpr int ButtonWidth = 104;
constexpr int ColourButtonWidth = 132;
constexpr int SampleWidth = 96;
constexpr int SamplePointSize = 18;
constexpr int LeastContrast = -100;
constexpr int MostContrast = 300;

/// Makes a widget of the dialog with its name.
template <class Widget>
Widget* named(const QString& name, Widget* widget) {
    widget->setObjectName(name);
    return widget;
}

int rowOf(std::optional<std::size_t> index) {
    return index ? static_cast<int>(*index) : -1;
}

} // namespace

Form2x::Form2x(Appearance& settings, const std::string& programFolder, Prompts& prompts,
               QWidget* parent)
    : QDialog(parent)
    , m_editor(settings, programFolder, prompts)
    , m_schemes(named(u"List1"_s, new ChoiceList(this)))
    , m_contrast(named(u"ContrastV"_s, new QSlider(Qt::Horizontal, this)))
    , m_fonts(named(u"List2"_s, new ChoiceList(this)))
    , m_selector(named(u"ColPik1"_s, new ColPik(this)))
    , m_givenSample(named(u"Label1"_s, new QLabel(u"1 2 3"_s, this)))
    , m_userSample(named(u"Label2"_s, new QLabel(u"4 5 6"_s, this)))
    , m_borderSample(named(u"Line2"_s, new LineSample(this)))
    , m_fillSample(named(u"Shape1"_s, new FillSample(this)))
    , m_numBorder(named(u"Check1"_s, new TickBox(u"Yes"_s, this)))
    , m_splitHexas(named(u"Check2"_s, new TickBox(u"Yes"_s, this)))
    , m_printLine(named(u"Text3"_s, new QLineEdit(this)))
    , m_board(named(u"sampleBoard"_s, new SampleBoard(this))) {
    setObjectName(u"Form2x"_s);
    setWindowTitle(u"Tessaly Options"_s);
    setModal(true);
    m_fonts->addItems(QFontDatabase::families());
    arrange();
    connectSchemes();
    connectSamples();
    showSchemeInForce();
}

QGroupBox* Form2x::makeFrame(const QString& name, const QString& caption, QBoxLayout* contents,
                             const QString& toolTip) {
    auto* frame = named(name, new QGroupBox(caption, this));
    frame->setToolTip(toolTip);
    contents->setSpacing(Spacing / 2);
    frame->setLayout(contents);
    return frame;
}

BoxControl* Form2x::makeButton(const QString& caption, const QString& name) {
    auto* button = named(name, new BoxControl(caption, this));
    button->setFixedHeight(ButtonHeight);
    return button;
}

BoxControl* Form2x::makeSchemeButton(Picture picture, const QString& name, const QString& toolTip) {
    return named(name, new BoxControl(picture, toolTip, this));
}

QGroupBox* Form2x::makeSchemeFrame() {
    m_schemes->setMinimumSize(ListWidth, ListHeight);
    m_schemes->setAccessibleName(tr("Colour schemes"));
    m_contrast->setRange(LeastContrast, MostContrast);
    m_contrast->setSingleStep(5);
    m_contrast->setPageStep(20);
    m_contrast->setValue(OptionsEditor::UsualContrast);
    auto* contrastCaption = new QLabel(tr("Contrast"), this);
    contrastCaption->setBuddy(m_contrast);
    m_contrast->setAccessibleName(tr("Contrast"));

    auto* contrast = new QHBoxLayout;
    contrast->addWidget(contrastCaption);
    contrast->addWidget(m_contrast, 1);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(Spacing / 2);
    for (BoxControl* button :
         {makeSchemeButton(Picture::View, u"ShowSch"_s, u"View current color setting"_s),
          makeSchemeButton(Picture::Add, u"AddSch"_s, u"Add this color scheme"_s),
          makeSchemeButton(Picture::Replace, u"RepSch"_s, u"Replace the current color scheme"_s),
          makeSchemeButton(Picture::Delete, u"DelSch"_s, u"Delete the color scheme"_s)})
        buttons->addWidget(button);
    auto* contents = new QVBoxLayout;
    contents->addWidget(m_schemes, 1);
    contents->addLayout(contrast);
    contents->addLayout(buttons);
    m_schemeFrame = makeFrame(u"Frame1"_s, u"Colour Scheme"_s, contents);
    return m_schemeFrame;
}

QGroupBox* Form2x::makeFontFrame() {
    m_fonts->setMinimumSize(ListWidth, ListHeight);
    m_fonts->setAccessibleName(tr("Fonts"));
    auto* contents = new QVBoxLayout;
    contents->addWidget(m_fonts);
    return makeFrame(u"Frame12"_s, u"Fonts"_s, contents);
}

QGroupBox* Form2x::makeSelectorFrame() {
    auto* contents = new QHBoxLayout;
    contents->addWidget(m_selector, 0, Qt::AlignCenter);
    return makeFrame(u"Frame7"_s, u"Colour Selector"_s, contents);
}

QGroupBox* Form2x::makeSwitchFrame(const QString& frame, const QString& caption,
                                   const QString& toolTip, QCheckBox* box) {
    box->setAccessibleName(caption);
    auto* contents = new QHBoxLayout;
    contents->addWidget(box);
    return makeFrame(frame, caption, contents, toolTip);
}

QGroupBox* Form2x::makePrintLineFrame() {
    m_printLine->setAccessibleName(u"Print Line"_s);
    auto* contents = new QHBoxLayout;
    contents->addWidget(m_printLine);
    return makeFrame(u"Frame6"_s, u"Print Line"_s, contents,
                     u"Size of the border lines in printed puzzles"_s);
}

BoxControl* Form2x::makeColourButton(int index, const QString& caption, const QString& toolTip) {
    auto* button = makeButton(caption, u"cmdcol_%1"_s.arg(index));
    button->setToolTip(toolTip);
    button->setMinimumWidth(ColourButtonWidth);
    m_colourButtons[static_cast<std::size_t>(index)] = button;
    return button;
}

QLayout* Form2x::makeSamples() {
    const QString number = u"Left click to set number colour; click colour selector first"_s;
    auto* grid = new QGridLayout;
    grid->setSpacing(Spacing / 2);
    const auto addRow = [grid](int row, BoxControl* button, QWidget* sample) {
        sample->setFixedSize(SampleWidth, ButtonHeight + 4);
        grid->addWidget(button, row, 0);
        grid->addWidget(sample, row, 1);
    };
    m_givenSample->setAlignment(Qt::AlignCenter);
    m_userSample->setAlignment(Qt::AlignCenter);
    addRow(0, makeColourButton(OptionsEditor::FixedNumber, u"Fixed Number"_s, number),
           m_givenSample);
    addRow(1, makeColourButton(OptionsEditor::UserNumber, u"User Number"_s, number), m_userSample);
    addRow(2,
           makeColourButton(OptionsEditor::HexaBorder, u"Hexa Border"_s,
                            u"Left click to set border colour; right click to set border width"_s),
           m_borderSample);
    addRow(
        3,
        makeColourButton(OptionsEditor::HexaFill, u"Hexa Fill"_s,
                         u"Left click to set hexagon fill colour; click colour selector first"_s),
        m_fillSample);
    return grid;
}

QLayout* Form2x::makeDialogButtons() {
    auto* row = new QHBoxLayout;
    row->setSpacing(Spacing);
    const auto add = [this, row](const QString& caption, const QString& name) {
        BoxControl* button = makeButton(caption, name);
        button->setMinimumWidth(ButtonWidth);
        row->addWidget(button);
        return button;
    };
    BoxControl* defaults = add(u"Default"_s, u"cmddef"_s);
    row->addStretch();
    BoxControl* apply = add(u"Apply"_s, u"Command1"_s);
    BoxControl* exit = add(u"Exit"_s, u"Command2"_s);
    connect(defaults, &BoxControl::clicked, this, [this] {
        m_editor.cmddef();
        activate();
    });
    connect(apply, &BoxControl::clicked, this, [this] { this->apply(); });
    connect(exit, &BoxControl::clicked, this, &QDialog::reject);
    return row;
}

void Form2x::arrange() {
    auto* lists = new QHBoxLayout;
    lists->addWidget(makeSchemeFrame());
    lists->addWidget(makeFontFrame());
    auto* left = new QVBoxLayout;
    left->addLayout(lists, 2);
    left->addWidget(m_board, 3);

    auto* switches = new QVBoxLayout;
    switches->addWidget(
        makeSwitchFrame(u"Frame3"_s, u"Split Hexas"_s, u"Display spaced hexagons"_s, m_splitHexas));
    switches->addWidget(makeSwitchFrame(u"Frame2"_s, u"Num Border"_s,
                                        u"Draw border around number in the centre of a hexagon"_s,
                                        m_numBorder));
    switches->addWidget(makePrintLineFrame());
    auto* details = new QHBoxLayout;
    details->setSpacing(Spacing);
    details->addLayout(makeSamples());
    details->addLayout(switches, 1);
    auto* right = new QVBoxLayout;
    right->addWidget(makeSelectorFrame());
    right->addLayout(details);
    right->addStretch();

    auto* columns = new QHBoxLayout;
    columns->setSpacing(Spacing);
    columns->addLayout(left, 1);
    columns->addLayout(right);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(Margin, Margin, Margin, Margin);
    rows->setSpacing(Spacing);
    rows->addLayout(columns, 1);
    rows->addLayout(makeDialogButtons());
}

template <class Action>
void Form2x::react(Action action) {
    m_editor.setSelectedColour(m_selector->SelColor());
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
    connect(m_schemes, &ChoiceList::chosen, this, [this](int row) {
        reactWithScheme([&] { m_editor.List1_MouseUp(static_cast<std::size_t>(row)); });
    });
    connect(m_contrast, &QSlider::valueChanged, this, [this](int contrast) {
        reactWithScheme([&] { m_editor.ContrastV_Change(contrast); });
    });
    const auto button = [this](const char16_t* name) {
        return findChild<BoxControl*>(QString::fromUtf16(name));
    };
    connect(button(u"ShowSch"), &BoxControl::clicked, this,
            [this] { reactWithScheme([this] { m_editor.ShowSch(); }); });
    connect(button(u"AddSch"), &BoxControl::clicked, this,
            [this] { reactWithLibrary([this] { m_editor.AddSch(); }); });
    connect(button(u"RepSch"), &BoxControl::clicked, this,
            [this] { reactWithLibrary([this] { m_editor.RepSch(); }); });
    connect(button(u"DelSch"), &BoxControl::clicked, this,
            [this] { reactWithLibrary([this] { m_editor.DelSch(); }); });
}

void Form2x::connectSamples() {
    for (int index = 0; index < static_cast<int>(m_colourButtons.size()); ++index)
        connect(m_colourButtons[static_cast<std::size_t>(index)], &BoxControl::clicked, this,
                [this, index] { react([this, index] { m_editor.cmdcol(index); }); });
    connect(m_colourButtons[OptionsEditor::HexaBorder], &BoxControl::alternateClicked, this,
            [this] { react([this] { m_editor.widenBorder(); }); });
    connect(m_fonts, &ChoiceList::chosen, this, [this](int row) {
        react([&] { m_editor.List2_MouseUp(m_fonts->item(row)->text().toStdString()); });
    });
    connect(m_numBorder, &QCheckBox::toggled, this,
            [this](bool on) { react([&] { m_editor.Check1_Click(on); }); });
    connect(m_splitHexas, &QCheckBox::toggled, this,
            [this](bool on) { react([&] { m_editor.Check2_Click(on); }); });
}

void Form2x::showOptions() {
    m_editor.open();
    activate();
    show();
    m_schemes->setFocus();
}

void Form2x::activate() {
    const Appearance& samples = m_editor.samples();
    showSamples();
    showScheme();
    showSchemes();
    m_printLine->setText(QString::number(samples.PrintLineWidth));
    const QString font = pathText(samples.NumberFont);
    for (int row = 0; row < m_fonts->count(); ++row)
        if (m_fonts->item(row)->text().compare(font, Qt::CaseInsensitive) == 0) {
            m_fonts->select(row);
            m_fonts->scrollToItem(m_fonts->item(row), ChoiceList::PositionAtTop);
            break;
        }
}

void Form2x::showSchemes() {
    m_schemes->clear();
    for (const std::string& name : m_editor.schemeNames())
        m_schemes->addItem(pathText(name));
    m_schemes->showRow(rowOf(m_editor.schemeInForce()));
    m_schemes->select(rowOf(m_editor.selectedScheme()));
    showSchemeCaption();
}

/// The colours that the selector and the contrast start from.
void Form2x::showScheme() {
    const QSignalBlocker blocker(m_contrast);
    m_contrast->setValue(m_editor.contrast());
    m_selector->setSchemeColor(m_editor.samples().SchemeColours[slot::Background]);
    m_selector->setSelColor(m_editor.selectedColour());
    showSchemeCaption();
}

void Form2x::showSamples() {
    const Appearance& samples = m_editor.samples();
    setPalette(schemePalette(samples));
    QPalette printLine = palette();
    printLine.setColor(QPalette::Base, printLine.color(QPalette::Button));
    printLine.setColor(QPalette::Text, printLine.color(QPalette::ButtonText));
    m_printLine->setPalette(printLine);
    showNumberSample(*m_givenSample, samples.FixedNumberColour);
    showNumberSample(*m_userSample, samples.UserNumberColour);
    m_borderSample->setLine(toQColor(samples.HexaBorderColour), samples.HexaBorderWidth);
    m_fillSample->setFill(toQColor(samples.HexaFillColour));
    const QSignalBlocker numBorder(m_numBorder);
    const QSignalBlocker splitHexas(m_splitHexas);
    m_numBorder->setChecked(samples.NumBorder);
    m_splitHexas->setChecked(samples.SplitHexas);
    m_board->showAppearance(samples);
}

void Form2x::showNumberSample(QLabel& label, Colour colour) {
    QFont font(pathText(m_editor.samples().NumberFont), SamplePointSize);
    label.setFont(font);
    QPalette colours = palette();
    colours.setColor(QPalette::WindowText, toQColor(colour));
    label.setPalette(colours);
}

void Form2x::showSchemeCaption() {
    constexpr int Widest = ListWidth - Margin; // a wider one would widen the dialog
    const QString caption =
        fontMetrics().elidedText(pathText(m_editor.schemeCaption()), Qt::ElideRight, Widest);
    m_schemeFrame->setTitle(QString(caption).replace(u'&', u"&&"_s));
}

void Form2x::showSchemeInForce() {
    m_editor.showSchemeInForce();
    showSchemeCaption();
}

void Form2x::apply() {
    m_editor.Apply(m_printLine->text().toStdString());
    hide();
    Q_EMIT applied();
}

} // namespace tessaly
