#pragma once

#include "core/options/colour_surface.h"

#include <QWidget>

namespace tessaly {

/// The surface of the colour picker: the classic colours and the two ramps of shades, on whole
/// pixels at whatever size and resolution it is given. A colour is picked with the mouse, or with
/// the arrow keys and Space.
class ColourSurfaceView : public QWidget {
    Q_OBJECT

public:
    explicit ColourSurfaceView(QWidget* parent = nullptr);

    Colour rampColour() const { return m_rampColour; }
    void setRampColour(Colour colour);
    /// The colour of the ground behind the surface, which it does not paint itself.
    void setBackground(Colour colour);

    /// Where a point of the surface, in its own units, lies on this widget.
    QPointF toWidget(double x, double y) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /// `onRamp` says whether the pick was one of a shade.
    void picked(tessaly::Colour colour, bool onRamp);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void pick(double x, double y);
    QRectF onPixels(colour_surface::Box box) const;
    void drawFocus(QPainter& painter) const;

    Colour m_rampColour = Black;
    Colour m_background = White;
    colour_surface::Place m_place;
};

} // namespace tessaly
