#include "ui/options/option_samples.h"

#include "core/play/board_geometry.h"
#include "ui/drawing/qt_colour.h"

#include <QPainter>

#include <algorithm>

namespace tessaly {

void LineSample::setLine(const QColor& colour, int width) {
    m_colour = colour;
    m_width = width;
    update();
}

void LineSample::paintEvent(QPaintEvent*) {
    constexpr int Inset = 8;
    QPainter painter(this);
    painter.fillRect(Inset, (height() - m_width) / 2, width() - 2 * Inset, m_width, m_colour);
}

void FillSample::setFill(const QColor& fill) {
    m_fill = fill;
    update();
}

void FillSample::paintEvent(QPaintEvent*) {
    const double scale = (height() - 2) / (2 * HalfHeight);
    const double side = HexagonSide * scale;
    const double half = HalfHeight * scale;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(rect().toRectF().center());
    // Its edge shows where the shape is, the fill being the background's colour for a start.
    painter.setPen(blended(m_fill, readableOn(palette().color(QPalette::Window)), 0.35));
    painter.setBrush(m_fill);
    painter.drawPolygon(QPolygonF({{-side, 0},
                                   {-side / 2, -half},
                                   {side / 2, -half},
                                   {side, 0},
                                   {side / 2, half},
                                   {-side / 2, half}}));
}

} // namespace tessaly
