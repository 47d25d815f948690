#pragma once

#include "core/output/print_selection.h"

#include <QWidget>

class QComboBox;
class QLineEdit;

namespace tessaly {

/// Which puzzles of the file are printed.
class SelectionTab : public QWidget {
    Q_OBJECT

public:
    explicit SelectionTab(QWidget* parent = nullptr);

    /// Starts anew with these numbers.
    void setRange(int from, int to);
    void setLast(int to);
    void focusFirst();

    /// What the boxes "From" and "To" hold: the whole number that each begins with, else 0.
    int from() const;
    int to() const;
    /// Whether a list is given, which takes the place of these two.
    bool hasList() const;
    /// What is selected; fails when the list is none.
    Outcome read(PrintSelection& selection) const;

Q_SIGNALS:
    void changed();
    /// Enter was pressed in one of the boxes.
    void confirmed();

private:
    QWidget* makeNumbersFrame();
    QWidget* makeFilterFrame();
    QLineEdit* makeBox(const QString& name, const QString& accessible);

    QLineEdit* m_from = nullptr; // Text1
    QLineEdit* m_to = nullptr;   // Text2
    QLineEdit* m_list = nullptr;
    QComboBox* m_difficulty = nullptr;
    QComboBox* m_leastStars = nullptr;
    QComboBox* m_mostStars = nullptr;
    QComboBox* m_order = nullptr;
};

} // namespace tessaly
