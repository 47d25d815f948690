#pragma once

#include "core/board/difficulty.h"

#include <QWidget>

class QLineEdit;

namespace tessaly {

class DotRow;

/// How many new puzzles are made and printed at once.
class NewPuzzlesTab : public QWidget {
    Q_OBJECT

public:
    explicit NewPuzzlesTab(QWidget* parent = nullptr);

    /// 0 when it is none, or more than can be counted.
    int count() const;
    DifficultyChoice difficulty() const;

Q_SIGNALS:
    /// They are to be created and printed.
    void confirmed();

private:
    QLineEdit* m_count;
    DotRow* m_difficulty;
};

} // namespace tessaly
