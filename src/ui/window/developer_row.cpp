#include "ui/window/developer_row.h"

#include "ui/controls/box_control.h"
#include "ui/controls/choice_mark.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <initializer_list>

namespace tessaly {

using namespace Qt::StringLiterals;

DeveloperRow::DeveloperRow(QWidget* parent)
    : QWidget(parent)
    , flipAndAdd(addButton(u"FlipandAdd"_s, u"Command1"_s,
                           tr("Eight variants of every puzzle: addnew.txt into addnewr.txt")))
    , verify(addButton(u"Verify"_s, u"Command2"_s,
                       tr("The puzzles that deduction solves: addnewr.txt into addnewrv.txt. "
                          "Hardly any hard one passes, for its hint is planted in the blank "
                          "hexagon; tessaly-cli check is the fair judge")))
    , randomize(addButton(u"Randomize"_s, u"Command4"_s,
                          tr("Shuffle, each line once: puzzles20k.txt into puzzles20u.txt")))
    , autoSolveHard(
          addButton(u"AutoSolveHard"_s, u"Command5"_s,
                    tr("Tell the hint; the right button also plants it in the blank hexagon, "
                       "where it seldom fits, and solves with it")))
    , solveLoop(addButton(u"SolveLoop"_s, u"Command12x"_s, tr("Check the board cell by cell")))
    , setValue(addButton(u"Set Manual Value"_s, u"Command3"_s, tr("Set any cell by hand")))
    , reread(addButton(u"ReReadPuzzle"_s, u"Command6"_s, tr("Read the puzzle again")))
    , debugSolve(addButton(u"DebugSolve"_s, u"DebugSolve"_s, tr("Solve rule by rule")))
    , xcellRule(addButton(u"Xcell Pairs"_s, u"FixXcellPairs"_s, tr("Apply the xcell rule once")))
    , m_debug(new TickBox(u"Debug"_s, this))
    , m_text(new QLabel(this)) {
    m_debug->setObjectName(u"Check1"_s);
    m_text->setObjectName(u"DeveloperText"_s);
    m_text->setToolTip(tr("Blank hexagon, hint position, hint number"));
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    const auto addRow = [rows](std::initializer_list<QWidget*> items, QWidget* last) {
        auto* row = new QHBoxLayout;
        rows->addLayout(row);
        for (QWidget* item : items)
            row->addWidget(item);
        row->addStretch();
        row->addWidget(last);
    };
    addRow({flipAndAdd, verify, randomize, setValue}, reread);
    addRow({debugSolve, m_debug, xcellRule, autoSolveHard, solveLoop}, m_text);
}

BoxControl* DeveloperRow::addButton(const QString& caption, const QString& name,
                                    const QString& toolTip) {
    auto* button = new BoxControl(caption, this);
    button->setObjectName(name);
    button->setToolTip(toolTip);
    return button;
}

bool DeveloperRow::debugs() const {
    return m_debug->isChecked();
}

void DeveloperRow::showText(const QString& text) {
    m_text->setText(text);
}

} // namespace tessaly
