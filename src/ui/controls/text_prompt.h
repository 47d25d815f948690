#pragma once

#include "core/options/appearance.h"

#include <QDialog>

class QLabel;
class QLineEdit;

namespace tessaly {

/// Asks for one line of text, in the scheme that is in force.
class TextPrompt : public QDialog {
    Q_OBJECT

public:
    explicit TextPrompt(const Appearance& appearance, QWidget* parent = nullptr);

    /// Shows the question and waits; nothing when the user gives no text.
    QString ask(const QString& question);

private:
    QLabel* m_question;
    QLineEdit* m_line;
};

} // namespace tessaly
