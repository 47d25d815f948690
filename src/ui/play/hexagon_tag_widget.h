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
    void drawFocus(QPainter& painter) const;
    void press();
    void release();

    int m_hexagon;
    const Appearance& m_appearance;
    bool m_down = false;
};

} // namespace tessaly
