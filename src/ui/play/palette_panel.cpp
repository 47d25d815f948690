#include "ui/play/palette_panel.h"

#include "ui/controls/box_control.h"
#include "ui/controls/button_grid.h"
#include "ui/drawing/qt_values.h"

#include <algorithm>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

constexpr int NumbersInARow = 3;
/// How high a number stands on its button, in parts of the button's side.
constexpr double DigitPart = 0.46;

} // namespace

PalettePanel::PalettePanel(const Appearance& appearance, QWidget* parent)
    : QWidget(parent)
    , m_appearance(appearance) {
    for (int index = 0; index < ItemCount; ++index)
        m_items[static_cast<std::size_t>(index)] = makeItem(index);
    cmdpencil = new BoxControl(Picture::Pencil, tr("Make pencil marks instead of numbers"), this);
    cmdpencil->setObjectName(u"cmdpencil"_s);
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

/// The numbers stand left in two rows, the eraser and beneath it the pencil at their right.
void PalettePanel::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    const ButtonGrid grid = ButtonGrid::across(width(), Columns);
    QFont digits = font();
    digits.setPixelSize(std::max(1, static_cast<int>(grid.side * DigitPart)));
    for (int index = 0; index < BoardInput::PaletteEraser; ++index) {
        BoxControl* item = m_items[static_cast<std::size_t>(index)];
        item->setGeometry(grid.place(index % NumbersInARow, index / NumbersInARow));
        item->setFont(digits);
    }
    m_items[BoardInput::PaletteEraser]->setGeometry(grid.place(NumbersInARow, 0));
    cmdpencil->setGeometry(grid.place(NumbersInARow, 1));
    for (BoxControl* pictured : {m_items[BoardInput::PaletteEraser], cmdpencil})
        pictured->setIconSize(grid.pictureSize());
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
