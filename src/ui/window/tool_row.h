#pragma once

#include "core/board/difficulty.h"

#include <QWidget>

#include <array>

class QHBoxLayout;
class QLabel;
class QLineEdit;

namespace tessaly {

class BoxControl;
class RunProgressBar;
enum class Picture;

/// The row of commands above the board.
class ToolRow : public QWidget {
    Q_OBJECT

public:
    explicit ToolRow(QWidget* parent = nullptr);

    /// Shows which puzzle of how many is on the board; 0 of 0 clears both.
    void showPuzzleNumber(int number, int count);
    void showDifficulty(DifficultyChoice difficulty);
    /// Lets the player go to other puzzles of a file, or not where there is none.
    void offerOthers(bool inFile);

    BoxControl* cmdload;
    std::array<BoxControl*, 2> cmdarrow;
    BoxControl* cmdcreate;
    BoxControl* DifLab;
    RunProgressBar* progress;
    BoxControl* cmdundo;
    BoxControl* cmdredo;
    BoxControl* cmdreset;
    BoxControl* cmdshowsol;

Q_SIGNALS:
    /// Enter was pressed in the box; `number` is 0 when what it holds is no number.
    void numberEntered(int number);

private:
    BoxControl* addButton(Picture picture, const QString& toolTip, const QString& name);
    void addGap();
    void addNumberBox();
    BoxControl* addDifficultyLabel();

    QHBoxLayout* m_row;
    QLineEdit* m_puzNumNow = nullptr; // PuzNumNow
    QLabel* m_puzNumber = nullptr;    // puznumber
    QString m_shownNumber;
};

} // namespace tessaly
