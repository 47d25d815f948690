#pragma once

#include <QTextEdit>

namespace tessaly {

/// A text of any length, wrapped to a comfortable width: between words where it can, within a
/// word (a long path) where it must. It can be selected with the pointer and copied. What does
/// not fit on the screen scrolls.
class MessageText : public QTextEdit {
    Q_OBJECT

public:
    explicit MessageText(QWidget* parent = nullptr);

    /// Shows `text` and takes the size that it needs.
    void showText(const QString& text);
};

} // namespace tessaly
