#include "ui/drawing/star_drawing.h"

#include "core/solver/rating.h"

#include <QPainter>
#include <QPolygonF>

#include <cmath>
#include <numbers>

namespace tessaly {
namespace {

QPolygonF starAbout(QPointF centre, double radius) {
    constexpr int Tips = 5;
    constexpr double Waist = 0.42;
    QPolygonF star;
    for (int i = 0; i < 2 * Tips; ++i) {
        const double angle = std::numbers::pi * i / Tips;
        const double distance = i % 2 == 0 ? radius : Waist * radius;
        star << centre + distance * QPointF(std::sin(angle), -std::cos(angle));
    }
    return star;
}

} // namespace

void drawStars(QPainter& painter, int stars, const QRectF& area) {
    constexpr double Radius = 0.46; // of the place that a star has
    const double place = area.width() / MostStars;
    for (int star = 0; star < MostStars; ++star) {
        painter.setBrush(star < stars ? QBrush(painter.pen().color()) : QBrush(Qt::NoBrush));
        painter.drawPolygon(
            starAbout({area.left() + (star + 0.5) * place, area.center().y()}, Radius * place));
    }
}

} // namespace tessaly
