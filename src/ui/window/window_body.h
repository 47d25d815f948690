#pragma once

#include <QList>
#include <QWidget>

namespace tessaly {

class BoardView;
class SidePanel;

/// All beneath the menus: rows, then the board with the side panel close beside it, then the status
/// line. The board is as large as it can be, and the rows are no wider than board and panel, but
/// where they need to be. Takes its parts as children; hidden rows take no room.
class WindowBody : public QWidget {
    Q_OBJECT

public:
    WindowBody(QList<QWidget*> rows, BoardView* board, SidePanel* side, QWidget* status);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

private:
    /// The size around a middle of that size.
    QSize sizeAround(QSize middle) const;
    int heightOfRows() const;
    int widestPanel(int width, int widestBoard) const;
    void arrange();
    /// Places a row from `top` downwards, over board and panel; where it ends.
    int placeRow(QWidget& row, int top, const QRect& middle) const;

    QList<QWidget*> m_rows;
    BoardView* m_board;
    SidePanel* m_side;
    QWidget* m_status;
};

} // namespace tessaly
