#include "ui/play/side_panel.h"

#include "ui/controls/box_control.h"
#include "ui/controls/button_grid.h"
#include "ui/play/palette_panel.h"

#include <algorithm>
#include <utility>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

constexpr int SmallestButtonSide = 24;
constexpr int UsualButtonSide = 44;
constexpr int LargestButtonSide = 56;
constexpr int PanelColumns = PalettePanel::Columns;
constexpr int PaletteRows = 2;
constexpr int PanelRows = 7;
/// What sets a group of rows apart from the one above it, in gaps.
constexpr int GroupGaps = 2;
constexpr int PanelGroups = 3;

QSize panelSize(ButtonGrid grid) {
    return {grid.width(PanelColumns),
            grid.width(PanelRows) + (PanelGroups - 1) * GroupGaps * grid.gap()};
}

} // namespace

SidePanel::SidePanel(const Appearance& appearance, QWidget* parent)
    : QWidget(parent)
    , palette(new PalettePanel(appearance, this))
    , cmdundo(addButton(Picture::Undo, u"Undo"_s, u"cmdundo"_s))
    , cmdredo(addButton(Picture::Redo, u"Redo"_s, u"cmdredo"_s))
    , cmdhint(addButton(Picture::Hint, u"Hint: where, why, what"_s, u"cmdhint"_s))
    , cmdshowsol(addButton(Picture::ShowSolution, u"Show Solution"_s, u"cmdshowsol"_s))
    , StatLab(addButton(Picture::Solved, u"Check Solution"_s, u"StatLab"_s))
    , cmdreset(addButton(Picture::Reset, u"Reset Puzzle"_s, u"cmdreset"_s))
    , cmdallpencil(addAssist(Picture::PencilMarks, tr("All Pencilmarks"),
                             u"Display All Pencilmarks; rightclick to clear"_s, u"cmdallpencil"_s))
    , cmdsetpairs(addAssist(Picture::SetPairs, tr("Fill Pairs"),
                            u"Fill ALL Single Value Paired Cells"_s, u"cmdsetpairs"_s))
    , cmdset1s(addAssist(Picture::SetSingles, tr("Set Singles"),
                         u"Set ALL empty cell to a unique single"_s, u"cmdset1s"_s)) {
    StatLab->setText(tr("Check"));
    cmdshowsol->setHeld(true);
}

BoxControl* SidePanel::addButton(Picture picture, const QString& toolTip, const QString& name) {
    auto* button = new BoxControl(picture, toolTip, this);
    button->setObjectName(name);
    return button;
}

BoxControl* SidePanel::addAssist(Picture picture, const QString& words, const QString& toolTip,
                                 const QString& name) {
    BoxControl* button = addButton(picture, toolTip, name);
    button->setText(words);
    button->setLeftAligned(true);
    return button;
}

QSize SidePanel::sizeWithin(QSize room) {
    constexpr int HeightParts =
        PanelRows * (ButtonGrid::Parts + 1) - 1 + (PanelGroups - 1) * GroupGaps;
    const int side = std::min(room.height() * ButtonGrid::Parts / HeightParts,
                              ButtonGrid::across(room.width(), PanelColumns).side);
    return panelSize({std::clamp(side, SmallestButtonSide, LargestButtonSide)});
}

QSize SidePanel::minimumSizeHint() const {
    return panelSize({SmallestButtonSide});
}

QSize SidePanel::sizeHint() const {
    return panelSize({UsualButtonSide});
}

void SidePanel::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    const ButtonGrid grid = ButtonGrid::across(width(), PanelColumns);
    const int apart = GroupGaps * grid.gap();
    palette->setGeometry(0, 0, grid.width(PanelColumns), grid.width(PaletteRows));
    const auto place = [&grid](BoxControl* button, const QRect& where) {
        button->setGeometry(where);
        button->setIconSize(grid.pictureSize());
    };
    int column = 0;
    for (BoxControl* button : {cmdundo, cmdredo, cmdhint, cmdshowsol})
        place(button, grid.place(column++, PaletteRows, 1, apart));
    place(StatLab, grid.place(0, PaletteRows + 1, PanelColumns - 1, apart));
    place(cmdreset, grid.place(PanelColumns - 1, PaletteRows + 1, 1, apart));
    int row = PaletteRows + 2;
    for (BoxControl* assist : {cmdallpencil, cmdsetpairs, cmdset1s})
        place(assist, grid.place(0, row++, PanelColumns, 2 * apart));
}

} // namespace tessaly
