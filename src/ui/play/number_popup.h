#pragma once

#include "core/play/board_input.h"

#include <QFrame>
#include <QTimer>

#include <array>

namespace tessaly {

class BoxControl;

/// The number pop-up (`Picture1`): a small panel with the numbers 1 to 6, an eraser, side copy,
/// close and the single candidate (`Num16`, items 0..9). It closes by itself after a while.
class NumberPopup : public QFrame {
    Q_OBJECT

public:
    static constexpr int ButtonCount = 10;

    explicit NumberPopup(QWidget* parent);

    /// Shows the panel with its top left corner (or, `upwards`, the bottom left one) at a point of
    /// the parent, moved as little as needed to lie inside, and starts the timer.
    void open(QPoint corner, bool upwards);
    void close();

Q_SIGNALS:
    void clicked(int button);
    void timedOut();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void addButton(int index, BoxControl* button, int row, int column);
    void moveFocus(int columns, int rows);

    std::array<BoxControl*, ButtonCount> m_buttons{};
    QTimer* m_timer; // Timer1
};

} // namespace tessaly
