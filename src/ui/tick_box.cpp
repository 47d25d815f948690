// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "ui/tick_box.h"

#include "ui/qt_colour.h"

#include <QPainter>

#include <algorithm>

namespace tessaly {
namespace {

constexpr int BoxSize = 16;
constexpr int Inset = 3;
constexpr int Gap = 8;

} // namespace

TickBox::TickBox(const QString& caption, QWidget* parent)
    : QCheckBox(caption, parent) {
    setAttribute(Qt::WA_Hover);
}

QSize TickBox::sizeHint() const {
    const QSize caption = fontMetrics().size(Qt::TextShowMnemonic, text());
    return {BoxSize + Gap + caption.width() + 2 * Inset,
            std::max(BoxSize, caption.height()) + 2 * Inset};
}

void TickBox::paintEvent(QPaintEvent*) {
    const QColor ground = palette().color(QPalette::Active, QPalette::Window);
    const QColor colour = isEnabled() ? readableOn(ground) : fadedOn(ground);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF box(Inset, (height() - BoxSize) / 2.0, BoxSize, BoxSize);
    if (underMouse() || isDown())
        painter.fillRect(box, blended(ground, colour, isDown() ? 0.2 : 0.1));
    drawBox(painter, box, colour);
    painter.setPen(colour);
    painter.drawText(rect().adjusted(Inset + BoxSize + Gap, 0, 0, 0),
                     Qt::AlignVCenter | Qt::TextShowMnemonic, text());
}

void TickBox::drawBox(QPainter& painter, const QRectF& box, const QColor& colour) const {
    const QColor ground = palette().color(QPalette::Active, QPalette::Window);
    painter.setPen(QPen(blended(ground, colour, 0.65), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(box.adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    if (hasFocus()) {
        painter.setPen(QPen(blended(ground, colour, 0.5), 2));
        painter.drawRoundedRect(box.adjusted(-2, -2, 2, 2), 4, 4);
    }
    if (!isChecked())
        return;
    painter.setPen(QPen(colour, 2.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({{box.left() + 3.6, box.top() + 8.2},
                                    {box.left() + 6.8, box.top() + 11.4},
                                    {box.left() + 12.4, box.top() + 4.8}}));
}

} // namespace tessaly
