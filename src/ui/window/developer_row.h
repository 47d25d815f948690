#pragma once

#include <QWidget>

class QCheckBox;
class QLabel;

namespace tessaly {

class BoxControl;

/// The developer's buttons beneath the tools: those for files above those for the board; shown only
/// when asked for on the command line.
class DeveloperRow : public QWidget {
    Q_OBJECT

public:
    explicit DeveloperRow(QWidget* parent = nullptr);

    bool debugs() const;
    void showText(const QString& text);

    BoxControl* flipAndAdd;    // Command1
    BoxControl* verify;        // Command2
    BoxControl* randomize;     // Command4
    BoxControl* autoSolveHard; // Command5
    BoxControl* solveLoop;     // Command12x
    BoxControl* setValue;      // Command3
    BoxControl* reread;        // Command6
    BoxControl* debugSolve;
    BoxControl* xcellRule;

private:
    BoxControl* addButton(const QString& caption, const QString& name, const QString& toolTip);

    QCheckBox* m_debug; // Check1
    QLabel* m_text;
};

} // namespace tessaly
