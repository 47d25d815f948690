#pragma once

#include "core/options/appearance.h"

#include <QWidget>

namespace tessaly {

/// The small tag in the middle of a hexagon (`Celltags`): it shows the hexagon's number, and while
/// it is held down the hexagon shows the candidates of its cells.
class HexagonTagWidget : public QWidget {
    Q_OBJECT

public:
    HexagonTagWidget(int hexagon, const Appearance& appearance, QWidget* parent);

    int hexagon() const { return m_hexagon; }
    /// Where the tag is seen; around it the widget is as large as a pointer or a finger needs.
    void place(const QRect& tag);
    /// Holds it down until the next time, or until the focus goes.
    void toggle();

Q_SIGNALS:
    void pressed(int hexagon);
    void released();
    /// An arrow key leads to the tag in that direction.
    void walked(int hexagon, int columns, int rows);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    QRect tag() const { return rect().marginsRemoved(m_around); }
    void drawFocus(QPainter& painter) const;
    void press();
    void release();

    int m_hexagon;
    const Appearance& m_appearance;
    QMargins m_around;
    bool m_down = false;
};

} // namespace tessaly
