#include "ui/play/hexagon_tag_widget.h"

#include "ui/controls/box_control.h"
#include "ui/drawing/hexagon_tag.h"
#include "ui/drawing/qt_values.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace tessaly {

using namespace Qt::StringLiterals;

HexagonTagWidget::HexagonTagWidget(int hexagon, const Appearance& appearance, QWidget* parent)
    : QWidget(parent)
    , m_hexagon(hexagon)
    , m_appearance(appearance) {
    setObjectName(u"Celltags_%1"_s.arg(hexagon));
    setCursor(Qt::PointingHandCursor);
    setAccessibleName(tr("Hexagon %1").arg(hexagon));
    setAccessibleDescription(tr("Enter, or holding it down, shows the candidates of its cells; the "
                                "arrow keys lead to other hexagons"));
}

void HexagonTagWidget::place(const QRect& tag) {
    constexpr int LeastSize = 24;
    const int beside = std::max(0, (LeastSize - tag.width() + 1) / 2);
    const int above = std::max(0, (LeastSize - tag.height() + 1) / 2);
    m_around = {beside, above, beside, above};
    setGeometry(tag.marginsAdded(m_around));
}

void HexagonTagWidget::press() {
    m_down = true;
    update();
    Q_EMIT pressed(m_hexagon);
}

void HexagonTagWidget::release() {
    if (!m_down)
        return;
    m_down = false;
    update();
    Q_EMIT released();
}

void HexagonTagWidget::toggle() {
    m_down ? release() : press();
}

bool HexagonTagWidget::event(QEvent* event) {
    if (endsHolds(*event))
        release();
    return QWidget::event(event);
}

void HexagonTagWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const bool noticed = underMouse() || hasFocus();
    const TagState state = m_down    ? TagState::Pressed
                           : noticed ? TagState::Hovered
                                     : TagState::Plain;
    drawTag(painter, tag(), m_hexagon, m_appearance, state);
    if (hasFocus())
        drawFocus(painter);
}

void HexagonTagWidget::drawFocus(QPainter& painter) const {
    constexpr double Thickness = 2;
    const QRectF frame =
        QRectF(tag()).adjusted(Thickness / 2, Thickness / 2, -Thickness / 2, -Thickness / 2);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(readableOn(toQColor(m_appearance.HexaFillColour)), Thickness));
    painter.drawRoundedRect(frame, frame.height() / 2, frame.height() / 2);
}

void HexagonTagWidget::mousePressEvent(QMouseEvent*) {
    press();
}

void HexagonTagWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->buttons() == Qt::NoButton)
        release();
}

void HexagonTagWidget::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!event->isAutoRepeat())
            toggle();
        return;
    case Qt::Key_Space:
        if (!event->isAutoRepeat())
            press();
        return;
    case Qt::Key_Left:
        Q_EMIT walked(m_hexagon, -1, 0);
        return;
    case Qt::Key_Right:
        Q_EMIT walked(m_hexagon, 1, 0);
        return;
    case Qt::Key_Up:
        Q_EMIT walked(m_hexagon, 0, -1);
        return;
    case Qt::Key_Down:
        Q_EMIT walked(m_hexagon, 0, 1);
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

void HexagonTagWidget::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space && !event->isAutoRepeat())
        release();
    else
        QWidget::keyReleaseEvent(event);
}

void HexagonTagWidget::focusOutEvent(QFocusEvent* event) {
    release();
    QWidget::focusOutEvent(event);
}

void HexagonTagWidget::enterEvent(QEnterEvent* event) {
    update();
    QWidget::enterEvent(event);
}

void HexagonTagWidget::leaveEvent(QEvent* event) {
    update();
    QWidget::leaveEvent(event);
}

} // namespace tessaly
