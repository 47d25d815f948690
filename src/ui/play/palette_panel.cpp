#include "ui/play/palette_panel.h"

#include "ui/controls/box_control.h"
#include "ui/drawing/qt_values.h"

#include <algorithm>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

constexpr int SmallestButton = 24;
constexpr int LargestButton = 64;
constexpr int UsualButton = 48;
constexpr int AssistCount = 3;
constexpr int ButtonCount = PalettePanel::ItemCount + 1 + AssistCount;
/// All lengths in eighths of a button's side: a button, the space between two, the wider space
/// between the palette and the assists.
constexpr int ButtonPart = 8;
constexpr int SpacePart = 1;
constexpr int GroupSpacePart = 3;
constexpr int AllParts = ButtonCount * ButtonPart + (ButtonCount - 2) * SpacePart + GroupSpacePart;
/// Sizes of what stands on a button, in parts of the button's.
constexpr double PicturePart = 0.6;
constexpr double DigitPart = 0.46;

int heightOf(int button) {
    return button * AllParts / ButtonPart;
}

} // namespace

PalettePanel::PalettePanel(const Appearance& appearance, QWidget* parent)
    : QWidget(parent)
    , m_appearance(appearance) {
    for (int index = 0; index < ItemCount; ++index)
        m_items[static_cast<std::size_t>(index)] = makeItem(index);
    cmdpencil =
        makeAssist(Picture::Pencil, tr("Make pencil marks instead of numbers"), u"cmdpencil"_s);
    cmdallpencil = makeAssist(Picture::PencilMarks,
                              u"Display All Pencilmarks; rightclick to clear"_s, u"cmdallpencil"_s);
    cmdsetpairs =
        makeAssist(Picture::SetPairs, u"Fill ALL Single Value Paired Cells"_s, u"cmdsetpairs"_s);
    cmdset1s =
        makeAssist(Picture::SetSingles, u"Set ALL empty cell to a unique single"_s, u"cmdset1s"_s);
    applyAppearance();
}

BoxControl* PalettePanel::makeItem(int index) {
    auto* item = index == BoardInput::PaletteEraser
                     ? new BoxControl(Picture::Eraser, tr("Empty the cells that are clicked"), this)
                     : new BoxControl(QString::number(index + 1), this);
    item->setObjectName(u"digt_%1"_s.arg(index));
    if (index != BoardInput::PaletteEraser)
        item->setToolTip(tr("Number %1 for the cells that are clicked").arg(index + 1));
    connect(item, &BoxControl::clicked, this,
            [this, index] { Q_EMIT itemReleased(index, PointerButton::Left); });
    connect(item, &BoxControl::alternateClicked, this,
            [this, index] { Q_EMIT itemReleased(index, PointerButton::Right); });
    return item;
}

BoxControl* PalettePanel::makeAssist(Picture picture, const QString& toolTip, const QString& name) {
    auto* button = new BoxControl(picture, toolTip, this);
    button->setObjectName(name);
    return button;
}

int PalettePanel::widthForHeight(int height) {
    return std::clamp(height * ButtonPart / AllParts, SmallestButton, LargestButton);
}

QSize PalettePanel::sizeHint() const {
    return {UsualButton, heightOf(UsualButton)};
}

QSize PalettePanel::minimumSizeHint() const {
    return {SmallestButton, heightOf(SmallestButton)};
}

void PalettePanel::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    placeButtons();
}

void PalettePanel::placeButtons() {
    const int side = widthForHeight(height());
    const int space = side * SpacePart / ButtonPart;
    int top = (height() - heightOf(side)) / 2;
    const auto place = [side, space, &top](BoxControl* button) {
        button->setGeometry(0, top, side, side);
        const int picture = static_cast<int>(side * PicturePart);
        button->setIconSize({picture, picture});
        QFont font = button->font();
        font.setPixelSize(static_cast<int>(side * DigitPart));
        button->setFont(font);
        top += side + space;
    };
    for (BoxControl* item : m_items)
        place(item);
    place(cmdpencil);
    top += side * GroupSpacePart / ButtonPart - space;
    for (BoxControl* assist : {cmdallpencil, cmdsetpairs, cmdset1s})
        place(assist);
}

void PalettePanel::showPalette(int pressedItem) {
    m_pressedItem = pressedItem;
    applyAppearance();
}

void PalettePanel::showPencil(bool on) {
    m_pencilOn = on;
    applyAppearance();
}

void PalettePanel::applyAppearance() {
    for (std::size_t i = 0; i < m_items.size(); ++i)
        showPressed(*m_items[i], static_cast<int>(i) == m_pressedItem);
    showPressed(*cmdpencil, m_pencilOn);
}

void PalettePanel::showPressed(BoxControl& button, bool pressed) {
    const Colour face = m_appearance.SchemeColours[pressed ? slot::Button : slot::Background];
    button.setFaceColour(toQColor(face));
    button.setLatched(pressed);
}

} // namespace tessaly
