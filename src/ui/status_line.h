// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>
#include <QWidget>

#include <string>
#include <string_view>

namespace tessaly {

class BoxControl;

/// A label that cuts its text in the middle where there is no room for all of it.
class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// The line beneath the board: the puzzle file, the message, and the check of the solution.
class StatusLine : public QWidget {
    Q_OBJECT

public:
    explicit StatusLine(QWidget* parent = nullptr);

    /// Shows a file by its name, with its whole path as the tooltip.
    void showFile(const std::string& path);
    /// Shows a text in the place of a file's name.
    void showFileText(const QString& text);
    void showMessage(std::string_view text);

    BoxControl* StatLab;

private:
    ElidedLabel* m_fileName; // PuzFileName
    ElidedLabel* m_message;  // MsgLab
};

} // namespace tessaly
