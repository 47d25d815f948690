#pragma once

#include <QWidget>

#include <string_view>

class QLabel;

namespace tessaly {

class ElidedLabel;

/// The line beneath the board: the message, and the time.
class StatusLine : public QWidget {
    Q_OBJECT

public:
    explicit StatusLine(QWidget* parent = nullptr);

    void showMessage(std::string_view text);
    /// Shows how long the puzzle has been played, "" for nothing.
    void showTime(const QString& text);

private:
    ElidedLabel* m_message; // MsgLab
    QLabel* m_time;         // TimeLab
};

} // namespace tessaly
