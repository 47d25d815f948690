// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCheckBox>

namespace tessaly {

/// A check box whose box reads on every colour of ground, a dark one included.
class TickBox : public QCheckBox {
    Q_OBJECT

public:
    explicit TickBox(const QString& caption, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }
    void paintEvent(QPaintEvent* event) override;

private:
    void drawBox(QPainter& painter, const QRectF& box, const QColor& colour) const;
};

} // namespace tessaly
