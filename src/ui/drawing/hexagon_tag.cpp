#include "ui/drawing/hexagon_tag.h"

#include "core/play/board_geometry.h"
#include "ui/drawing/numerals.h"
#include "ui/drawing/qt_values.h"

#include <QPainter>
#include <QString>

#include <algorithm>
#include <cmath>

namespace tessaly {
namespace {

struct TagColours {
    QColor face;
    QColor text;
};

/// Quieter than the numbers of the game, and inverted while the tag is held down.
TagColours tagColours(const QColor& fill, TagState state) {
    constexpr double LeastContrast = 6; // a little more than WCAG 2 asks of text, for it is small
    const QColor text = standingOut(fill, LeastContrast);
    switch (state) {
    case TagState::Hovered:
        return {blended(fill, text, 0.15), readableOn(fill)};
    case TagState::Pressed:
        return {text, fill};
    case TagState::Plain:
        break;
    }
    return {fill, text};
}

/// The digits of a hexagon's number side by side about `centre`, `size` units of text high. They
/// stand on a row of pixels and are a whole number of rows high, for at this size a smoothed edge
/// is half of the digit.
QPainterPath tagText(const DigitFace& face, int hexagon, double size, QPointF centre,
                     const QTransform& toDevice) {
    QPainterPath text;
    double pen = 0;
    for (const QChar digit : QString::number(hexagon)) {
        text.addPath(face.outline(digit.digitValue()).translated(pen, 0));
        pen += face.advance(digit.digitValue());
    }
    double height = size * face.height();
    double baseline = centre.y() + height / 2;
    if (const double rows = toDevice.m22(); rows > 0) {
        height = std::max(std::round(height * rows), 1.0) / rows;
        baseline = (std::round(baseline * rows + toDevice.dy()) - toDevice.dy()) / rows;
    }
    text = QTransform::fromScale(size, height / face.height()).map(text);
    return text.translated(centre.x() - text.boundingRect().center().x(), baseline);
}

} // namespace

void drawTag(QPainter& painter, const QRectF& area, int hexagon, const Appearance& appearance,
             TagState state) {
    const double unit = area.height() / TagHeight;
    const TagColours colours = tagColours(toQColor(appearance.HexaFillColour), state);
    const DigitFace face(appearance.NumberFont);
    const QRectF frame = area.adjusted(unit, unit, -unit, -unit);
    const double radius = frame.height() / 2;

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(colours.face);
    painter.setPen(appearance.NumBorder ? QPen(toQColor(appearance.HexaBorderColour), unit)
                                        : QPen(Qt::NoPen));
    painter.drawRoundedRect(frame, radius, radius);
    painter.fillPath(
        tagText(face, hexagon, MarkSize * unit, frame.center(), painter.deviceTransform()),
        colours.text);
    painter.restore();
}

void drawTags(QPainter& painter, const Board& board, const Appearance& appearance) {
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon)
        if (!board.isBlank(hexagon))
            drawTag(painter, toQt(tagRectangle(hexagon)), hexagon, appearance);
}

} // namespace tessaly
