#pragma once

#include "core/board/vocabulary.h"
#include "ui/controls/painted_list.h"

namespace tessaly {

class BoardView;

/// The board as a screen reader meets it: a list of its 114 cells in the order of AllCells, and
/// after them the tags and the pop-up, which are widgets.
class BoardAccessible : public PaintedList {
public:
    explicit BoardAccessible(BoardView& view);

    /// Lets Qt make these for board views, and buttons of the tags; it may be called again.
    static void install();
    /// Says which cell the keys go to now, if the board has the focus.
    static void tellFocus(BoardView& view);
    /// Says that a cell reads differently now.
    static void tellEntry(BoardView& view, CellId cell);
    /// The child that a cell is; -1 for no cell.
    static int indexOf(CellId cell);

    QAccessibleInterface* childAt(int x, int y) const override;

protected:
    PaintedItem* makeItem(int index) const override;
    int currentItem() const override;

private:
    BoardView& m_view;
};

} // namespace tessaly
