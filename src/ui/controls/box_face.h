#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

namespace tessaly {

/// How the face of a button looks at the moment.
struct BoxFace {
    QColor colour;
    bool sunk = false;
    /// Stays down until it is let up again, and says so by a line around it.
    bool latched = false;
    bool hovered = false;
    bool focused = false;
    bool enabled = true;
};

/// Draws the face with its border, one pixel thick and lit from the upper left, on whole pixels of
/// the device.
void drawBoxFace(QPainter& painter, const QRectF& area, const BoxFace& face);

} // namespace tessaly
