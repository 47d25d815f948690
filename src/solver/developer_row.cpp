// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "solver/developer_row.h"

#include "ui/box_control.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>

namespace tessaly {

using namespace Qt::StringLiterals;

DeveloperRow::DeveloperRow(QWidget* parent)
    : QWidget(parent)
    , debugSolve(new BoxControl(u"DebugSolve"_s, this))
    , xcellRule(new BoxControl(u"Xcell Pairs"_s, this))
    , m_debug(new QCheckBox(u"Debug"_s, this))
    , m_text(new QLabel(this)) {
    debugSolve->setObjectName(u"DebugSolve"_s);
    xcellRule->setObjectName(u"FixXcellPairs"_s);
    m_debug->setObjectName(u"Check1"_s);
    m_text->setObjectName(u"DeveloperText"_s);
    m_text->setToolTip(tr("Blank hexagon, hint position, hint number"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    for (QWidget* item : {static_cast<QWidget*>(debugSolve), static_cast<QWidget*>(m_debug),
                          static_cast<QWidget*>(xcellRule)})
        row->addWidget(item);
    row->addStretch();
    row->addWidget(m_text);
}

bool DeveloperRow::debugs() const {
    return m_debug->isChecked();
}

void DeveloperRow::showText(const QString& text) {
    m_text->setText(text);
}

} // namespace tessaly
