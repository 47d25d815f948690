#pragma once

#include "core/options/colour.h"
#include "core/options/colour_surface.h"

#include <QColor>
#include <QWidget>

#include <array>

class QHBoxLayout;
class QLabel;
class QSlider;
class QVBoxLayout;

namespace tessaly {

/// The surface of the colour picker: the classic colours and the two ramps of shades, on whole
/// pixels at whatever size and resolution it is given. A colour is picked with the mouse, or with
/// the arrow keys and Space.
class ColourSurfaceView : public QWidget {
    Q_OBJECT

public:
    explicit ColourSurfaceView(QWidget* parent = nullptr);

    Colour rampColour() const { return m_rampColour; }
    /// Where the keys are, and where a place lies on this widget.
    colour_surface::Place place() const { return m_place; }
    QRect rectangleOf(colour_surface::Place place) const;
    void setRampColour(Colour colour);
    /// The colour of the ground behind the surface, which it does not paint itself.
    void setBackground(Colour colour);

    /// Where a point of the surface, in its own units, lies on this widget.
    QPointF toWidget(double x, double y) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// `onRamp` says whether the pick was one of a shade.
    void picked(tessaly::Colour colour, bool onRamp);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    void tellPlace();
    void pick(double x, double y);
    QRectF onPixels(colour_surface::Box box) const;
    void drawFocus(QPainter& painter) const;

    Colour m_rampColour = Black;
    Colour m_background = White;
    colour_surface::Place m_place;
};

/// Chooses one colour: one of the classic ones, a shade between it and black or white, or any other
/// by its parts of red, green and blue.
class ColPik : public QWidget {
    Q_OBJECT
    Q_PROPERTY(bool Enabled READ isEnabled WRITE setEnabled)
    Q_PROPERTY(QColor BackColor READ backColor WRITE setBackColor)

public:
    explicit ColPik(QWidget* parent = nullptr);

    /// The selected colour.
    Colour SelColor() const { return m_selected; }
    void setSelColor(Colour colour);

    /// The colour of the ground that everything lies on.
    Colour SchemeColor() const { return m_scheme; }
    void setSchemeColor(Colour colour);

    QColor backColor() const;
    void setBackColor(const QColor& colour);

Q_SIGNALS:
    /// A colour was picked on the surface.
    void picked(tessaly::Colour colour);

private:
    struct Part {
        QSlider* bar;    // hsrRed, hsrGreen, hsrBlue
        QLabel* degree;  // lblRedDegree, ...
        QLabel* picture; // PicRGB
    };

    void addPart(int index, const QString& name, const QString& accessibleName, QHBoxLayout& row);
    QVBoxLayout* makeSample();
    void SetColour(Colour colour);
    void showParts();

    ColourSurfaceView* m_surface;
    std::array<Part, 3> m_parts{};
    QLabel* m_sample = nullptr;  // Label1
    QLabel* m_caption = nullptr; // Label2
    Colour m_selected = Black;
    Colour m_scheme = RGB(255, 192, 192);
    /// Off while a shade is being picked, so that the ramps keep showing the shades it was one of.
    bool m_rampsEnabled = true;
};

} // namespace tessaly
