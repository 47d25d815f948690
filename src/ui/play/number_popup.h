#pragma once

#include "core/play/board_input.h"

#include <QFrame>
#include <QTimer>

#include <array>

namespace tessaly {

class BoxControl;

/// The number pop-up (`Picture1`): a small panel with the numbers 1 to 6, an eraser, side copy,
/// close and the single candidate (`Num16`, items 0..9). It closes by itself after a while, but not
/// while the pointer or the focus is in it.
class NumberPopup : public QFrame {
    Q_OBJECT

public:
    static constexpr int ButtonCount = 10;

    explicit NumberPopup(QWidget* parent);

    /// Shows the panel with its top left corner (or, `upwards`, the bottom left one) at a point of
    /// the parent, moved as little as needed to lie inside, and starts the timer.
    void open(QPoint corner, bool upwards);
    void close();
    /// Lets the time until it closes begin anew.
    void restartTimer();

Q_SIGNALS:
    void clicked(int button);
    void timedOut();

protected:
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    /// Of the whole program, while the panel is open: a press elsewhere in the window closes it,
    /// and the arrow keys walk it as it lies, where a button would take them for the next one.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool takes(const QEvent& event);
    bool takesKey(int key);
    void addButton(int index, BoxControl* button, int row, int column);
    void moveFocus(int columns, int rows);

    std::array<BoxControl*, ButtonCount> m_buttons{};
    QTimer* m_timer; // Timer1
};

} // namespace tessaly
