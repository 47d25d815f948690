#include "ui/drawing/page_text.h"

#include <QFontMetricsF>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace tessaly {
namespace {

/// Text is set this much larger and scaled down: sizes of fonts are whole pixels, and so are the
/// widths of letters.
constexpr double Finer = 32;

double shareBefore(TextAnchor anchor) {
    switch (anchor) {
    case TextAnchor::Left:
        return 0;
    case TextAnchor::Middle:
        return 0.5;
    case TextAnchor::Right:
        break;
    }
    return 1;
}

/// Such a picture holds no fonts, and the one meant may be missing where it is shown.
bool isVectorPicture(const QPainter& painter) {
    return painter.paintEngine()->type() == QPaintEngine::SVG;
}

} // namespace

void drawText(QPainter& painter, QPointF point, const QString& text, const PageText& style,
              TextAnchor anchor, double widest) {
    QFont font(style.family);
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(style.size * Finer))));
    font.setWeight(style.weight);
    font.setHintingPreference(QFont::PreferNoHinting);
    const double width = QFontMetricsF(font, painter.device()).horizontalAdvance(text) / Finer;
    const double condensed = width > widest ? widest / width : 1;
    painter.save();
    painter.setFont(font);
    painter.translate(point.x() - shareBefore(anchor) * width * condensed, point.y());
    painter.scale(condensed / Finer, condensed / Finer);
    if (isVectorPicture(painter)) {
        QPainterPath outline;
        outline.addText(QPointF(), font, text);
        painter.fillPath(outline, painter.pen().color());
    } else {
        painter.drawText(QPointF(), text);
    }
    painter.restore();
}

} // namespace tessaly
