#include "ui/play/solved_wave.h"

#include "core/play/board_geometry.h"
#include "core/play/board_style.h"
#include "ui/drawing/qt_values.h"

#include <QPainter>
#include <QPolygonF>
#include <QStyle>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tessaly {
namespace {

constexpr int WholeTime = 900; // milliseconds
/// The part of that time for which one hexagon is lit.
constexpr double LitPart = 0.4;
constexpr double LightStrength = 0.55;
constexpr int MiddleHexagon = 10;

double distanceBetween(int from, int to) {
    const Point a = hexagonCentre(from);
    const Point b = hexagonCentre(to);
    return std::hypot(a.x - b.x, a.y - b.y);
}

double farthest(int from) {
    double most = 0;
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon)
        most = std::max(most, distanceBetween(from, hexagon));
    return most;
}

/// How bright a hexagon is while it is lit; `time` from 0 to 1.
double brightness(double time) {
    return time <= 0 || time >= 1 ? 0 : std::sin(time * std::numbers::pi);
}

} // namespace

SolvedWave::SolvedWave(const Appearance& appearance, QWidget* parent)
    : QWidget(parent)
    , m_appearance(appearance) {
    setObjectName(QStringLiteral("SolvedWave"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    m_progress.setStartValue(0.0);
    m_progress.setEndValue(1.0);
    m_progress.setDuration(WholeTime);
    connect(&m_progress, &QVariantAnimation::valueChanged, this, QOverload<>::of(&QWidget::update));
    connect(&m_progress, &QVariantAnimation::finished, this, &QWidget::hide);
    hide();
}

void SolvedWave::start(int hexagon) {
    if (style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) == 0)
        return;
    m_from = isHexagon(hexagon) ? hexagon : MiddleHexagon;
    raise();
    show();
    m_progress.start();
}

void SolvedWave::stop() {
    m_progress.stop();
    hide();
}

void SolvedWave::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setTransform(m_boardToWidget, true);
    painter.setPen(Qt::NoPen);
    QColor light = toQColor(solutionColour(m_appearance));
    const double progress = m_progress.currentValue().toDouble();
    const double farthestAway = farthest(m_from);
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon) {
        const double begin = (1 - LitPart) * distanceBetween(m_from, hexagon) / farthestAway;
        light.setAlphaF(
            static_cast<float>(LightStrength * brightness((progress - begin) / LitPart)));
        QPolygonF outline;
        for (Point corner : hexagonCorners(hexagon))
            outline << toQt(corner);
        painter.setBrush(light);
        painter.drawPolygon(outline);
    }
}

} // namespace tessaly
