#include "ui/options/options_dialog.h"

#include "core/play/board_geometry.h"
#include "ui/controls/box_control.h"
#include "ui/controls/choice_list.h"
#include "ui/controls/choice_mark.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/path_text.h"
#include "ui/controls/scheme_palette.h"
#include "ui/drawing/qt_colour.h"
#include "ui/options/colour_picker.h"
#include "ui/options/sample_board.h"

#include <QCheckBox>
#include <QFontDatabase>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QSignalBlocker>
#include <QSlider>
#include <QVBoxLayout>
#include <QWidget>

#include <algorithm>
#include <array>

class QCheckBox;
class QGroupBox;
class QLabel;
class QLayout;
class QLineEdit;
class QSlider;

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;
using dialog::Spacing;

constexpr int ListWidth = 224;
constexpr int ListHeight = 150;
constexpr int ButtonHeight = dialog::ButtonSize.height();
constexpr int ButtonWidth = 104;
constexpr int ColourButtonWidth = 132;
constexpr int SampleWidth = 96;
constexpr int LeastContrast = -100;
constexpr int MostContrast = 300;

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

void LineSample::setLine(const QColor& colour, int width) {
    m_colour = colour;
    m_width = width;
    update();
}

void LineSample::paintEvent(QPaintEvent*) {
    constexpr int Inset = 8;
    QPainter painter(this);
    painter.fillRect(Inset, (height() - m_width) / 2, width() - 2 * Inset, m_width, m_colour);
}

void FillSample::setFill(const QColor& fill) {
    m_fill = fill;
    update();
}

void FillSample::paintEvent(QPaintEvent*) {
    const double scale = (height() - 2) / (2 * HalfHeight);
    const double side = HexagonSide * scale;
    const double half = HalfHeight * scale;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(rect().toRectF().center());
    // Its edge shows where the shape is, the fill being the background's colour for a start.
    painter.setPen(blended(m_fill, readableOn(palette().color(QPalette::Window)), 0.35));
    painter.setBrush(m_fill);
    painter.drawPolygon(QPolygonF({{-side, 0},
                                   {-side / 2, -half},
                                   {side / 2, -half},
                                   {side, 0},
                                   {side / 2, half},
                                   {-side / 2, half}}));
}

/// The controls and the samples of the options dialog, and where they stand; what they do is the
/// dialog's.
class OptionsForm : public QWidget {
    Q_OBJECT

public:
    explicit OptionsForm(QWidget* parent = nullptr);

    /// Names a scheme over the list of schemes, as far as there is room.
    void showSchemeCaption(const QString& caption);

    ChoiceList* schemes;      // List1
    QSlider* contrast;        // ContrastV
    ChoiceList* fonts;        // List2
    ColPik* selector;         // ColPik1
    QLabel* givenSample;      // Label1
    QLabel* userSample;       // Label2
    LineSample* borderSample; // Line2
    FillSample* fillSample;   // Shape1
    QCheckBox* numBorder;     // Check1
    QCheckBox* splitHexas;    // Check2
    QLineEdit* printLine;     // Text3
    SampleBoard* board;
    BoxControl* ShowSch;
    BoxControl* AddSch;
    BoxControl* RepSch;
    BoxControl* DelSch;
    /// By `OptionsEditor::ColourButton`.
    std::array<BoxControl*, 4> cmdcol{};
    BoxControl* cmddef = nullptr;
    BoxControl* apply = nullptr; // Command1
    BoxControl* exit = nullptr;  // Command2

private:
    void setUpLists();
    void setUpContrast();
    BoxControl* makeButton(const QString& caption, const QString& name, int leastWidth);
    QGroupBox* makeFrame(const QString& name, const QString& caption, QLayout* contents);
    QGroupBox* makeFrame(const QString& name, const QString& caption, QWidget* contents,
                         const QString& toolTip = {});
    QGroupBox* makeSchemeFrame();
    QLayout* makeSamples();
    QLayout* makeSwitches();
    QLayout* makeLeftColumn();
    QLayout* makeRightColumn();
    QLayout* makeDialogButtons();

    QGroupBox* m_schemeFrame; // Frame1
};

OptionsForm::OptionsForm(QWidget* parent)
    : QWidget(parent)
    , schemes(named(u"List1"_s, new ChoiceList(this)))
    , contrast(named(u"ContrastV"_s, new QSlider(Qt::Horizontal, this)))
    , fonts(named(u"List2"_s, new ChoiceList(this)))
    , selector(named(u"ColPik1"_s, new ColPik(this)))
    , givenSample(named(u"Label1"_s, new QLabel(u"1 2 3"_s, this)))
    , userSample(named(u"Label2"_s, new QLabel(u"4 5 6"_s, this)))
    , borderSample(named(u"Line2"_s, new LineSample(this)))
    , fillSample(named(u"Shape1"_s, new FillSample(this)))
    , numBorder(named(u"Check1"_s, new TickBox(u"Yes"_s, this)))
    , splitHexas(named(u"Check2"_s, new TickBox(u"Yes"_s, this)))
    , printLine(named(u"Text3"_s, new QLineEdit(this)))
    , board(named(u"sampleBoard"_s, new SampleBoard(this)))
    , ShowSch(
          named(u"ShowSch"_s, new BoxControl(Picture::View, u"View current color setting"_s, this)))
    , AddSch(named(u"AddSch"_s, new BoxControl(Picture::Add, u"Add this color scheme"_s, this)))
    , RepSch(named(u"RepSch"_s,
                   new BoxControl(Picture::Replace, u"Replace the current color scheme"_s, this)))
    , DelSch(
          named(u"DelSch"_s, new BoxControl(Picture::Delete, u"Delete the color scheme"_s, this)))
    , m_schemeFrame(makeSchemeFrame()) {
    setUpLists();
    setUpContrast();
    auto* columns = new QHBoxLayout;
    columns->setSpacing(Spacing);
    columns->addLayout(makeLeftColumn(), 1);
    columns->addLayout(makeRightColumn());
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(Spacing);
    rows->addLayout(columns, 1);
    rows->addLayout(makeDialogButtons());
}

void OptionsForm::showSchemeCaption(const QString& caption) {
    constexpr int Widest = ListWidth - dialog::Margin; // a wider one would widen the dialog
    QString shown = fontMetrics().elidedText(caption, Qt::ElideRight, Widest);
    m_schemeFrame->setTitle(shown.replace(u'&', u"&&"_s));
}

void OptionsForm::setUpLists() {
    schemes->setMinimumSize(ListWidth, ListHeight);
    schemes->setAccessibleName(tr("Colour schemes"));
    fonts->setMinimumSize(ListWidth, ListHeight);
    fonts->addItems(QFontDatabase::families());
}

void OptionsForm::setUpContrast() {
    contrast->setAccessibleName(tr("Contrast"));
    contrast->setRange(LeastContrast, MostContrast);
    contrast->setSingleStep(5);
    contrast->setPageStep(20);
    contrast->setValue(OptionsEditor::UsualContrast);
}

BoxControl* OptionsForm::makeButton(const QString& caption, const QString& name, int leastWidth) {
    auto* button = named(name, new BoxControl(caption, this));
    button->setFixedHeight(ButtonHeight);
    button->setMinimumWidth(leastWidth);
    return button;
}

QGroupBox* OptionsForm::makeFrame(const QString& name, const QString& caption, QLayout* contents) {
    auto* frame = named(name, new QGroupBox(caption, this));
    contents->setSpacing(Spacing / 2);
    frame->setLayout(contents);
    return frame;
}

/// A frame around one control, which goes by the frame's caption.
QGroupBox* OptionsForm::makeFrame(const QString& name, const QString& caption, QWidget* contents,
                                  const QString& toolTip) {
    auto* row = new QHBoxLayout;
    row->addWidget(contents);
    contents->setAccessibleName(caption);
    QGroupBox* frame = makeFrame(name, caption, row);
    frame->setToolTip(toolTip);
    return frame;
}

QGroupBox* OptionsForm::makeSchemeFrame() {
    auto* contrastCaption = new QLabel(tr("Contrast"), this);
    contrastCaption->setBuddy(contrast);
    auto* contrastRow = new QHBoxLayout;
    contrastRow->addWidget(contrastCaption);
    contrastRow->addWidget(contrast, 1);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(Spacing / 2);
    for (BoxControl* button : {ShowSch, AddSch, RepSch, DelSch})
        buttons->addWidget(button);
    auto* contents = new QVBoxLayout;
    contents->addWidget(schemes, 1);
    contents->addLayout(contrastRow);
    contents->addLayout(buttons);
    return makeFrame(u"Frame1"_s, u"Colour Scheme"_s, contents);
}

QLayout* OptionsForm::makeSamples() {
    const QString number = u"Left click to set number colour; click colour selector first"_s;
    const QString border = u"Left click to set border colour; right click to set border width"_s;
    const QString fill = u"Left click to set hexagon fill colour; click colour selector first"_s;
    auto* grid = new QGridLayout;
    grid->setSpacing(Spacing / 2);
    const auto addRow = [&](std::size_t index, const QString& caption, const QString& toolTip,
                            QWidget* sample) {
        cmdcol[index] = makeButton(caption, u"cmdcol_%1"_s.arg(index), ColourButtonWidth);
        cmdcol[index]->setToolTip(toolTip);
        sample->setFixedSize(SampleWidth, ButtonHeight + 4);
        const int row = grid->count() / 2;
        grid->addWidget(cmdcol[index], row, 0);
        grid->addWidget(sample, row, 1);
    };
    givenSample->setAlignment(Qt::AlignCenter);
    userSample->setAlignment(Qt::AlignCenter);
    addRow(OptionsEditor::FixedNumber, u"Fixed Number"_s, number, givenSample);
    addRow(OptionsEditor::UserNumber, u"User Number"_s, number, userSample);
    addRow(OptionsEditor::HexaBorder, u"Hexa Border"_s, border, borderSample);
    addRow(OptionsEditor::HexaFill, u"Hexa Fill"_s, fill, fillSample);
    return grid;
}

QLayout* OptionsForm::makeSwitches() {
    auto* switches = new QVBoxLayout;
    switches->addWidget(
        makeFrame(u"Frame3"_s, u"Split Hexas"_s, splitHexas, u"Display spaced hexagons"_s));
    switches->addWidget(makeFrame(u"Frame2"_s, u"Num Border"_s, numBorder,
                                  u"Draw border around number in the centre of a hexagon"_s));
    switches->addWidget(makeFrame(u"Frame6"_s, u"Print Line"_s, printLine,
                                  u"Size of the border lines in printed puzzles"_s));
    return switches;
}

QLayout* OptionsForm::makeLeftColumn() {
    auto* lists = new QHBoxLayout;
    lists->addWidget(m_schemeFrame);
    lists->addWidget(makeFrame(u"Frame12"_s, u"Fonts"_s, fonts));
    auto* column = new QVBoxLayout;
    column->addLayout(lists, 2);
    column->addWidget(board, 3);
    return column;
}

QLayout* OptionsForm::makeRightColumn() {
    auto* selectorRow = new QHBoxLayout;
    selectorRow->addWidget(selector, 0, Qt::AlignCenter);
    auto* details = new QHBoxLayout;
    details->setSpacing(Spacing);
    details->addLayout(makeSamples());
    details->addLayout(makeSwitches(), 1);
    auto* column = new QVBoxLayout;
    column->addWidget(makeFrame(u"Frame7"_s, u"Colour Selector"_s, selectorRow));
    column->addLayout(details);
    column->addStretch();
    return column;
}

QLayout* OptionsForm::makeDialogButtons() {
    cmddef = makeButton(u"Default"_s, u"cmddef"_s, ButtonWidth);
    apply = makeButton(u"Apply"_s, u"Command1"_s, ButtonWidth);
    exit = makeButton(u"Exit"_s, u"Command2"_s, ButtonWidth);
    auto* row = new QHBoxLayout;
    row->setSpacing(Spacing);
    row->addWidget(cmddef);
    row->addStretch();
    row->addWidget(apply);
    row->addWidget(exit);
    return row;
}

Form2x::Form2x(Appearance& settings, const std::filesystem::path& programFolder, Prompts& prompts,
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
    selectFont(*m_form->fonts, textOf(samples.NumberFont));
}

void Form2x::showSchemes() {
    m_form->schemes->clear();
    for (const std::string& name : m_editor.schemeNames())
        m_form->schemes->addItem(textOf(name));
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
    QFont font(textOf(m_editor.samples().NumberFont), SamplePointSize);
    label.setFont(font);
    QPalette colours = palette();
    colours.setColor(QPalette::WindowText, toQColor(colour));
    label.setPalette(colours);
}

void Form2x::showSchemeCaption() {
    m_form->showSchemeCaption(textOf(m_editor.schemeCaption()));
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

#include "options_dialog.moc"
