#include "ui/options/options_dialog.h"

#include "ui/controls/box_control.h"
#include "ui/controls/choice_mark.h"
#include "ui/controls/dialog_parts.h"
#include "ui/drawing/numerals.h"
#include "ui/drawing/qt_values.h"
#include "ui/options/colour_picker.h"
#include "ui/options/option_samples.h"

#include <QFontDatabase>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSlider>
#include <QVBoxLayout>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;
using dialog::Spacing;

/// The least that the lists need; they take more where there is room.
constexpr QSize SmallestList(168, 80);
constexpr int ButtonHeight = dialog::ButtonSize.height();
constexpr int ButtonWidth = 104;
constexpr int ColourButtonWidth = 132;
constexpr int SampleWidth = 60;
/// Two buttons, each with its sample.
constexpr int GridColumns = 4;
constexpr int SamplePointSize = 18;
constexpr int LeastContrast = -100;
constexpr int MostContrast = 300;

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

Form2x::Form2x(Appearance& settings, const std::filesystem::path& programFolder, Prompts& prompts,
               QWidget* parent, LockWait wait)
    : QDialog(parent)
    , m_editor(settings, programFolder, prompts, std::move(wait)) {
    setObjectName(u"Form2x"_s);
    setWindowTitle(u"Tessaly Options"_s);
    setModal(true);
    auto* contents = new QWidget(this);
    auto* columns = new QHBoxLayout(contents);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(Spacing);
    columns->addLayout(makeLeftColumn(), 1);
    columns->addLayout(makeRightColumn());
    QVBoxLayout* rows = addRows(*this);
    rows->addWidget(new ScrolledRegion(contents, this), 1);
    rows->addLayout(makeDialogButtons());
    m_editor.onNewList([this] { showSchemes(); });
    showSchemeInForce();
}

QLayout* Form2x::makeLeftColumn() {
    auto* lists = new QHBoxLayout;
    m_schemeFrame = makeSchemeFrame();
    lists->addWidget(m_schemeFrame);
    lists->addWidget(makeFontFrame());
    m_board = named(u"sampleBoard"_s, new SampleBoard(this));
    auto* column = new QVBoxLayout;
    column->addLayout(lists, 2);
    column->addWidget(m_board, 3);
    return column;
}

QLayout* Form2x::makeRightColumn() {
    m_selector = named(u"ColPik1"_s, new ColPik(this));
    auto* selectorRow = new QHBoxLayout;
    selectorRow->addWidget(m_selector, 0, Qt::AlignHCenter);
    auto* column = new QVBoxLayout;
    column->addWidget(makeFrame(u"Frame7"_s, u"Colour Selector"_s, selectorRow), 1);
    column->addLayout(makeSamples());
    column->addLayout(makeSwitches());
    return column;
}

QGroupBox* Form2x::makeFrame(const QString& name, const QString& caption, QLayout* contents) {
    auto* frame = named(name, new QGroupBox(caption, this));
    contents->setSpacing(Spacing / 2);
    contents->setContentsMargins(Spacing, Spacing / 2, Spacing, Spacing / 2);
    frame->setLayout(contents);
    return frame;
}

QGroupBox* Form2x::makeFrame(const QString& name, const QString& caption, QWidget* contents,
                             const QString& toolTip) {
    auto* row = new QHBoxLayout;
    row->addWidget(contents);
    contents->setAccessibleName(caption);
    QGroupBox* frame = makeFrame(name, caption, row);
    frame->setToolTip(toolTip);
    return frame;
}

BoxControl* Form2x::makeButton(const QString& caption, const QString& name, int leastWidth) {
    auto* button = named(name, new BoxControl(caption, this));
    button->setFixedHeight(ButtonHeight);
    button->setMinimumWidth(leastWidth);
    return button;
}

QGroupBox* Form2x::makeSchemeFrame() {
    m_schemes = named(u"List1"_s, new ChoiceList(this));
    m_schemes->setMinimumSize(SmallestList);
    m_schemes->setAccessibleName(tr("Colour schemes"));
    connect(m_schemes, &ChoiceList::chosen, this, [this](int row) {
        react([&] { m_editor.List1_MouseUp(static_cast<std::size_t>(row)); }, &Form2x::showScheme);
    });
    auto* contents = new QVBoxLayout;
    contents->addWidget(m_schemes, 1);
    contents->addLayout(makeContrast());
    contents->addLayout(makeSchemeButtons());
    return makeFrame(u"Frame1"_s, u"Colour Scheme"_s, contents);
}

QLayout* Form2x::makeContrast() {
    m_contrast = named(u"ContrastV"_s, new QSlider(Qt::Horizontal, this));
    m_contrast->setAccessibleName(tr("Contrast"));
    m_contrast->setRange(LeastContrast, MostContrast);
    m_contrast->setSingleStep(5);
    m_contrast->setPageStep(20);
    m_contrast->setValue(OptionsEditor::UsualContrast);
    connect(m_contrast, &QSlider::valueChanged, this, [this](int contrast) {
        react([&] { m_editor.ContrastV_Change(contrast); }, &Form2x::showScheme);
    });
    auto* caption = new QLabel(tr("Contrast"), this);
    caption->setBuddy(m_contrast);
    auto* row = new QHBoxLayout;
    row->addWidget(caption);
    row->addWidget(m_contrast, 1);
    return row;
}

QLayout* Form2x::makeSchemeButtons() {
    auto* row = new QHBoxLayout;
    row->setSpacing(Spacing / 2);
    const auto add = [&](const QString& name, Picture picture, const QString& toolTip,
                         void (OptionsEditor::*action)(), void (Form2x::*after)() = nullptr) {
        auto* button = named(name, new BoxControl(picture, toolTip, this));
        connect(button, &BoxControl::clicked, this,
                [this, action, after] { react([&] { (m_editor.*action)(); }, after); });
        row->addWidget(button);
    };
    add(u"ShowSch"_s, Picture::View, u"View current color setting"_s, &OptionsEditor::ShowSch,
        &Form2x::showScheme);
    add(u"AddSch"_s, Picture::Add, u"Add this color scheme"_s, &OptionsEditor::AddSch);
    add(u"RepSch"_s, Picture::Replace, u"Replace the current color scheme"_s,
        &OptionsEditor::RepSch);
    add(u"DelSch"_s, Picture::Delete, u"Delete the color scheme"_s, &OptionsEditor::DelSch);
    return row;
}

QGroupBox* Form2x::makeFontFrame() {
    m_fonts = named(u"List2"_s, new ChoiceList(this));
    m_fonts->setMinimumSize(SmallestList);
    connect(m_fonts, &ChoiceList::chosen, this, [this](int row) {
        react([&] { m_editor.List2_MouseUp(m_fonts->item(row)->text().toStdString()); });
    });
    return makeFrame(u"Frame12"_s, u"Fonts"_s, m_fonts);
}

QLayout* Form2x::makeSamples() {
    const QString number = u"Left click to set number colour; click colour selector first"_s;
    const QString border = u"Left click to set border colour; right click to set border width"_s;
    const QString fill = u"Left click to set hexagon fill colour; click colour selector first"_s;
    auto* grid = new QGridLayout;
    grid->setSpacing(Spacing / 2);
    const auto addRow = [&](OptionsEditor::ColourButton index, const QString& caption,
                            const QString& toolTip, QWidget* sample) {
        BoxControl* button = makeButton(caption, u"cmdcol_%1"_s.arg(index), ColourButtonWidth);
        button->setToolTip(toolTip);
        connect(button, &BoxControl::clicked, this,
                [this, index] { react([&] { m_editor.cmdcol(index); }); });
        sample->setFixedHeight(ButtonHeight);
        sample->setMinimumWidth(SampleWidth);
        const int place = grid->count();
        grid->addWidget(button, place / GridColumns, place % GridColumns);
        grid->addWidget(sample, place / GridColumns, place % GridColumns + 1);
        return button;
    };
    m_givenSample = named(u"Label1"_s, new QLabel(u"1 2 3"_s, this));
    m_userSample = named(u"Label2"_s, new QLabel(u"4 5 6"_s, this));
    m_borderSample = named(u"Line2"_s, new LineSample(this));
    m_fillSample = named(u"Shape1"_s, new FillSample(this));
    m_givenSample->setAlignment(Qt::AlignCenter);
    m_userSample->setAlignment(Qt::AlignCenter);
    addRow(OptionsEditor::FixedNumber, u"Fixed Number"_s, number, m_givenSample);
    addRow(OptionsEditor::UserNumber, u"User Number"_s, number, m_userSample);
    const auto* borderButton =
        addRow(OptionsEditor::HexaBorder, u"Hexa Border"_s, border, m_borderSample);
    connect(borderButton, &BoxControl::alternateClicked, this,
            [this] { react([this] { m_editor.widenBorder(); }); });
    addRow(OptionsEditor::HexaFill, u"Hexa Fill"_s, fill, m_fillSample);
    return grid;
}

QLayout* Form2x::makeSwitches() {
    m_splitHexas = named(u"Check2"_s, new TickBox(u"Yes"_s, this));
    m_numBorder = named(u"Check1"_s, new TickBox(u"Yes"_s, this));
    m_printLine = named(u"Text3"_s, new QLineEdit(this));
    connect(m_splitHexas, &QCheckBox::toggled, this,
            [this](bool on) { react([&] { m_editor.Check2_Click(on); }); });
    connect(m_numBorder, &QCheckBox::toggled, this,
            [this](bool on) { react([&] { m_editor.Check1_Click(on); }); });
    auto* switches = new QHBoxLayout;
    switches->addWidget(
        makeFrame(u"Frame3"_s, u"Split Hexas"_s, m_splitHexas, u"Display spaced hexagons"_s));
    switches->addWidget(makeFrame(u"Frame2"_s, u"Num Border"_s, m_numBorder,
                                  u"Draw border around number in the centre of a hexagon"_s));
    switches->addWidget(makeFrame(u"Frame6"_s, u"Print Line"_s, m_printLine,
                                  u"Size of the border lines in printed puzzles"_s));
    return switches;
}

QLayout* Form2x::makeDialogButtons() {
    BoxControl* cmddef = makeButton(u"Default"_s, u"cmddef"_s, ButtonWidth);
    BoxControl* apply = makeButton(u"Apply"_s, u"Command1"_s, ButtonWidth);
    BoxControl* exit = makeButton(u"Exit"_s, u"Command2"_s, ButtonWidth);
    connect(cmddef, &BoxControl::clicked, this, [this] {
        m_editor.cmddef();
        activate();
    });
    connect(apply, &BoxControl::clicked, this, &Form2x::apply);
    connect(exit, &BoxControl::clicked, this, &QDialog::reject);
    auto* row = new QHBoxLayout;
    row->setSpacing(Spacing);
    row->addWidget(cmddef);
    row->addStretch();
    row->addWidget(apply);
    row->addWidget(exit);
    return row;
}

template <class Action>
void Form2x::react(Action action, void (Form2x::*after)()) {
    m_editor.setSelectedColour(m_selector->SelColor());
    action();
    showSamples();
    if (after != nullptr)
        (this->*after)();
}

void Form2x::showOptions() {
    m_editor.open();
    activate();
    setAttribute(Qt::WA_Moved, false); // in the middle of its window, wherever it stood last
    resizeOnScreen(*this, sizeHint());
    show();
    m_schemes->setFocus();
}

void Form2x::activate() {
    const Appearance& samples = m_editor.samples();
    showSamples();
    showScheme();
    showSchemes();
    m_printLine->setText(QString::number(samples.PrintLineWidth));
    if (m_fonts->count() == 0)
        for (const QString& family : QFontDatabase::families(QFontDatabase::Latin))
            if (hasDigits(family))
                m_fonts->addItem(family);
    selectFont(*m_fonts, QString::fromStdString(samples.NumberFont));
}

void Form2x::showSchemes() {
    m_schemes->clear();
    for (const std::string& name : m_editor.schemeNames())
        m_schemes->addItem(QString::fromStdString(name));
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
    QFont font(QString::fromStdString(m_editor.samples().NumberFont), SamplePointSize);
    label.setFont(font);
    QPalette colours = palette();
    colours.setColor(QPalette::WindowText, toQColor(colour));
    label.setPalette(colours);
}

void Form2x::showSchemeCaption() {
    // A wider one would widen the dialog.
    constexpr int Widest = SmallestList.width() - dialog::Margin;
    const QString caption = QString::fromStdString(m_editor.schemeCaption());
    QString shown = fontMetrics().elidedText(caption, Qt::ElideRight, Widest);
    m_schemeFrame->setTitle(shown.replace(u'&', u"&&"_s));
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
