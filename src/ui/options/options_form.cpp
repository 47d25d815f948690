#include "ui/options/options_form.h"

#include "core/session/options_editor.h"
#include "ui/controls/box_control.h"
#include "ui/controls/choice_buttons.h"
#include "ui/controls/choice_list.h"
#include "ui/controls/dialog_parts.h"
#include "ui/options/colour_picker.h"
#include "ui/options/option_samples.h"
#include "ui/options/sample_board.h"

#include <QFontDatabase>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>

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

} // namespace

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

} // namespace tessaly
