#include "ui/play/selection_marker.h"

#include <QPainter>

#include <algorithm>

namespace tessaly {

using namespace Qt::StringLiterals;

SelectionMarker::SelectionMarker(QWidget* parent)
    : QWidget(parent) {
    setObjectName(u"Shape1"_s);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void SelectionMarker::setColour(const QColor& colour) {
    m_colour = colour;
    update();
}

void SelectionMarker::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double thickness = std::max(1.5, width() / 14.0);
    const double inset = thickness / 2;
    const QRectF frame = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
    painter.setPen(QPen(m_colour, thickness));
    painter.drawRoundedRect(frame, frame.width() / 4, frame.width() / 4);
}

} // namespace tessaly
