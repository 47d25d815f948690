#pragma once

#include <QWidget>

#include <filesystem>
#include <string>
#include <string_view>

class QLabel;

namespace tessaly {

class BoxControl;
class ElidedLabel;

/// The line beneath the board: the puzzle file, the message, and the check of the solution.
class StatusLine : public QWidget {
    Q_OBJECT

public:
    explicit StatusLine(QWidget* parent = nullptr);

    /// Shows a file by its name, with its whole path as the tooltip.
    void showFile(const std::filesystem::path& path);
    /// Shows a text in the place of a file's name.
    void showFileText(const QString& text);
    void showMessage(std::string_view text);
    /// Shows how long the puzzle has been played, "" for nothing.
    void showTime(const QString& text);

    BoxControl* StatLab;

private:
    ElidedLabel* m_fileName; // PuzFileName
    ElidedLabel* m_message;  // MsgLab
    QLabel* m_time;          // TimeLab
};

} // namespace tessaly
