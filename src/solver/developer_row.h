// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class QCheckBox;
class QLabel;

namespace tessaly {

class BoxControl;

/// The developer's buttons beneath the tools, shown only when asked for on the command line.
class DeveloperRow : public QWidget {
    Q_OBJECT

public:
    explicit DeveloperRow(QWidget* parent = nullptr);

    bool debugs() const;
    void showText(const QString& text);

    BoxControl* debugSolve;
    BoxControl* xcellRule;

private:
    QCheckBox* m_debug; // Check1
    QLabel* m_text;
};

} // namespace tessaly
