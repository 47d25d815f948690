#pragma once

#include <QFont>
#include <QPointF>
#include <QString>

class QPainter;

namespace tessaly {

/// A line of text on a page: sizes and widths are those of the painter's own units, whatever the
/// resolution of its device.
struct PageText {
    QString family;
    double size = 9;
    QFont::Weight weight = QFont::Normal;
};

/// Where along a line of text its given point lies.
enum class TextAnchor { Left, Middle, Right };

/// Draws a text with its baseline at `point`, in the painter's pen, condensed as far as need be to
/// be no wider than `widest`.
void drawText(QPainter& painter, QPointF point, const QString& text, const PageText& style,
              TextAnchor anchor, double widest);

} // namespace tessaly
