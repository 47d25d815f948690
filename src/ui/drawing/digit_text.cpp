#include "ui/drawing/digit_text.h"

#include <QPainter>

namespace tessaly {

DigitText::DigitText(const DigitFace& face, double size)
    : m_face(face) {
    m_run.setRawFont(face.font(size));
}

void DigitText::add(int digit, QPointF start) {
    m_indexes << m_face.index(digit);
    m_starts << start;
}

void DigitText::draw(QPainter& painter, const QColor& colour) {
    if (m_indexes.isEmpty())
        return;
    m_run.setGlyphIndexes(m_indexes);
    m_run.setPositions(m_starts);
    painter.setPen(colour);
    painter.drawGlyphRun({}, m_run);
    m_indexes.clear();
    m_starts.clear();
}

} // namespace tessaly
