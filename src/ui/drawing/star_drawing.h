#pragma once

class QPainter;
class QRectF;

namespace tessaly {

/// Draws `MostStars` stars beside each other over the whole width of an area, outlined by the
/// painter's pen; the first `stars` are filled with its colour.
void drawStars(QPainter& painter, int stars, const QRectF& area);

} // namespace tessaly
