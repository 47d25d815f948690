#pragma once

#include "core/board/vocabulary.h"

#include <QAccessibleWidget>

#include <array>

namespace tessaly {

class BoardView;

/// The board as a screen reader meets it: a list of its 114 cells in the order of AllCells, and
/// after them the tags and the pop-up, which are widgets.
class BoardAccessible : public QAccessibleWidget {
public:
    explicit BoardAccessible(BoardView& view);
    ~BoardAccessible() override;

    /// Lets Qt make these for board views, and buttons of the tags; it may be called again.
    static void install();
    /// Says which cell the keys go to now, if the board has the focus.
    static void tellFocus(BoardView& view);
    /// Says that the selected cell reads differently now.
    static void tellEntry(BoardView& view);
    /// The child that a cell is.
    static int indexOf(CellId cell);

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    /// The selected cell while the board has the focus.
    QAccessibleInterface* focusChild() const override;

private:
    QAccessibleInterface* cellAtIndex(int index) const;

    BoardView& m_view;
    /// Made when they are asked for; 0 is none yet.
    mutable std::array<QAccessible::Id, BoardCellCount> m_cells{};
};

} // namespace tessaly
