#pragma once

#include "ui/drawing/numerals.h"

#include <QGlyphRun>
#include <QList>

class QColor;
class QPainter;

namespace tessaly {

/// Digits of one face and size that are drawn together as text, so that a document holds characters
/// which can be found and copied, and each digit's shape only once.
class DigitText {
public:
    /// `face` must outlive the text.
    DigitText(const DigitFace& face, double size);

    /// Adds a digit; `start` is the left end of its baseline.
    void add(int digit, QPointF start);
    /// Draws what was added since the last drawing.
    void draw(QPainter& painter, const QColor& colour);

private:
    const DigitFace& m_face;
    QGlyphRun m_run;
    QList<quint32> m_indexes;
    QList<QPointF> m_starts;
};

} // namespace tessaly
