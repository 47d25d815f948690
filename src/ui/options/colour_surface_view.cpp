#include "ui/options/colour_surface_view.h"

#include "ui/drawing/qt_colour.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tessaly {

using namespace Qt::StringLiterals;
namespace surface = colour_surface;

namespace {

/// Four rows of boxes as high as these look well.
constexpr QSize UsualSize(surface::Width, surface::Height / 5);

} // namespace

ColourSurfaceView::ColourSurfaceView(QWidget* parent)
    : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAccessibleName(tr("Colours and shades"));
    setAccessibleDescription(tr("The arrow keys move, Space picks"));
}

QSize ColourSurfaceView::sizeHint() const {
    return UsualSize;
}

void ColourSurfaceView::setRampColour(Colour colour) {
    m_rampColour = colour;
    update();
}

void ColourSurfaceView::setBackground(Colour colour) {
    m_background = colour;
}

QPointF ColourSurfaceView::toWidget(double x, double y) const {
    return {x * width() / surface::Width, y * height() / surface::Height};
}

QRectF ColourSurfaceView::onPixels(surface::Box box) const {
    const double ratio = devicePixelRatioF();
    const auto rounded = [ratio](QPointF point) {
        return QPointF(std::round(point.x() * ratio), std::round(point.y() * ratio)) / ratio;
    };
    return {rounded(toWidget(box.left, box.top)),
            rounded(toWidget(box.left + box.width, box.top + box.height))};
}

void ColourSurfaceView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    for (int index = 0; index < static_cast<int>(ClassicPalette.size()); ++index)
        painter.fillRect(onPixels(surface::paletteBox(index)),
                         toQColor(ClassicPalette[static_cast<std::size_t>(index)]));
    for (int v = 0; v <= ShadeSteps; ++v) {
        painter.fillRect(onPixels(surface::blackLine(v)), toQColor(clrBlackness(m_rampColour, v)));
        painter.fillRect(onPixels(surface::whiteLine(v)), toQColor(clrWhiteness(m_rampColour, v)));
    }
    if (hasFocus())
        drawFocus(painter);
}

/// Two lines, one of which stands out against whatever lies there.
void ColourSurfaceView::drawFocus(QPainter& painter) const {
    const QRectF place = onPixels(surface::boxOf(m_place)).adjusted(-2, -2, 2, 2);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::white, 1));
    painter.drawRect(place.adjusted(-0.5, -0.5, 0.5, 0.5));
    painter.setPen(QPen(Qt::black, 1));
    painter.drawRect(place.adjusted(-1.5, -1.5, 1.5, 1.5));
}

void ColourSurfaceView::pick(double x, double y) {
    Q_EMIT picked(surface::colourAt(x, y, m_rampColour, m_background), y >= surface::RampsTop);
}

void ColourSurfaceView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        pick(event->position().x() * surface::Width / width(),
             event->position().y() * surface::Height / height());
}

void ColourSurfaceView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Left:
        m_place = surface::moved(m_place, -1, 0);
        break;
    case Qt::Key_Right:
        m_place = surface::moved(m_place, 1, 0);
        break;
    case Qt::Key_Up:
        m_place = surface::moved(m_place, 0, -1);
        break;
    case Qt::Key_Down:
        m_place = surface::moved(m_place, 0, 1);
        break;
    case Qt::Key_Space: {
        const surface::Box box = surface::boxOf(m_place);
        pick(box.left + box.width / 2.0, box.top + box.height / 2.0);
        break;
    }
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    update();
}

} // namespace tessaly
