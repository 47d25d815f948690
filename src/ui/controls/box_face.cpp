#include "ui/controls/box_face.h"

#include "ui/drawing/qt_colour.h"

#include <QLinearGradient>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tessaly {
namespace {

constexpr double CornerRadius = 4;

bool isDark(const QColor& face) {
    return readableOn(face) == QColor(Qt::white);
}

/// How long one pixel of the border is, in the painter's units: a whole number of device pixels.
double borderWidth(const QPainter& painter) {
    const double scale = std::max(painter.deviceTransform().m11(), 0.1);
    return std::max(1.0, std::floor(scale)) / scale;
}

/// `area` moved to the nearest whole pixels of the device.
QRectF onPixels(const QPainter& painter, const QRectF& area) {
    const QTransform toDevice = painter.deviceTransform();
    const QRectF device = toDevice.mapRect(area);
    const QRectF whole(QPointF(std::round(device.left()), std::round(device.top())),
                       QPointF(std::round(device.right()), std::round(device.bottom())));
    return toDevice.inverted().mapRect(whole);
}

/// Light above and left, dark below and right, changing at the upper right and lower left corners.
QBrush borderBrush(const QRectF& area, const QColor& face, bool sunk) {
    QColor lit = blended(face, Qt::white, isDark(face) ? 0.3 : 0.65);
    QColor shaded = blended(face, Qt::black, 0.4);
    if (sunk)
        std::swap(lit, shaded);
    // Across the line between those two corners, as long as the upper left one is away from it.
    const double width = area.width();
    const double height = area.height();
    const QPointF axis =
        QPointF(height, width) * (width * height / std::max(1.0, width * width + height * height));
    QLinearGradient gradient(area.center() - axis, area.center() + axis);
    gradient.setColorAt(0, lit);
    gradient.setColorAt(0.45, lit);
    gradient.setColorAt(0.55, shaded);
    gradient.setColorAt(1, shaded);
    return gradient;
}

QColor faceShade(const BoxFace& face) {
    if (!face.enabled)
        return face.colour;
    if (face.sunk)
        return blended(face.colour, readableOn(face.colour), 0.10);
    if (face.hovered)
        return blended(face.colour, Qt::white, isDark(face.colour) ? 0.12 : 0.35);
    return face.colour;
}

void drawRing(QPainter& painter, const QRectF& area, const QColor& colour, double inset) {
    const double width = 2 * borderWidth(painter);
    inset += width / 2;
    painter.setPen(QPen(colour, width));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(area.adjusted(inset, inset, -inset, -inset), CornerRadius - inset / 2,
                            CornerRadius - inset / 2);
}

} // namespace

void drawBoxFace(QPainter& painter, const QRectF& area, const BoxFace& face) {
    const QRectF outer = onPixels(painter, area);
    const double border = borderWidth(painter);
    const QColor shade = faceShade(face);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(borderBrush(outer, face.colour, face.sunk));
    painter.drawRoundedRect(outer, CornerRadius, CornerRadius);
    painter.setBrush(shade);
    painter.drawRoundedRect(outer.adjusted(border, border, -border, -border), CornerRadius - border,
                            CornerRadius - border);
    if (face.latched)
        drawRing(painter, outer, readableOn(shade), 0);
    if (face.focused)
        drawRing(painter, outer, blended(shade, readableOn(shade), 0.5), 2 * border);
    painter.restore();
}

} // namespace tessaly
