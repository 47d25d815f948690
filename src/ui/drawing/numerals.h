#pragma once

#include <QGlyphRun>
#include <QList>
#include <QPainterPath>
#include <QPointF>
#include <QRawFont>
#include <QString>

#include <array>
#include <string>

class QColor;
class QPainter;

namespace tessaly {

inline constexpr int DigitCount = 10;

/// Whether numbers can be written in that font alone.
bool hasDigits(const QString& family);

/// The outlines of the digits in one font, at text size 1: the pen stands at the left end of the
/// baseline, y runs down. Outlines come out the same on a screen, on paper and in a file, whatever
/// that device makes of fonts. A font without digits is replaced by the application's.
class DigitFace {
public:
    explicit DigitFace(const std::string& family, bool bold = false);

    const QPainterPath& outline(int digit) const { return glyph(digit).outline; }
    double advance(int digit) const { return glyph(digit).advance; }
    /// The middle of a digit's ink from left to right.
    double middle(int digit) const { return outline(digit).boundingRect().center().x(); }
    /// The advance of the widest digit.
    double columnWidth() const { return m_columnWidth; }
    /// How high the digits stand above the baseline.
    double height() const { return m_height; }

    /// The font, and a digit's number in it, for drawing digits as text.
    QRawFont font(double size) const;
    quint32 index(int digit) const { return glyph(digit).index; }

private:
    struct Glyph {
        QPainterPath outline;
        double advance = 0;
        quint32 index = 0;
    };
    const Glyph& glyph(int digit) const { return m_glyphs[static_cast<std::size_t>(digit)]; }

    QRawFont m_font;
    std::array<Glyph, DigitCount> m_glyphs;
    double m_columnWidth = 0;
    double m_height = 0;
};

/// How many target units a board unit is, across and down.
struct Scale {
    double x = 1;
    double y = 1;
};

/// Whether positions and heights are brought to whole target units, because those are pixels.
enum class Fit { Exact, ToPixels };

/// The digits of a face in the sizes of the board, with the places of numbers and pencil marks in a
/// cell. All coordinates are target units.
class Numerals {
public:
    /// Numbers, not marks, are `enlarged` times as large as usual.
    Numerals(const DigitFace& face, Scale scale, Fit fit, double enlarged = 1);

    /// A number; its pen is at the middle of its baseline.
    QPainterPath number(int digit) const;
    /// Where that pen stands, from the cell's `numberCentre`.
    QPointF numberPen() const;
    /// Where the left end of a number's baseline is, from that pen.
    QPointF numberStart(int digit) const { return {-m_face->middle(digit) * m_number.em.x, 0}; }
    double numberSize() const { return m_number.em.y; }

    /// A pencil mark; its pen is at the left end of its baseline.
    QPainterPath mark(int digit) const;
    /// Where that pen stands for a place 0..5, from the cell's `marksCentre`.
    QPointF markPen(int place) const;
    /// Where the digit itself starts in its column, from that pen.
    QPointF markStart(int digit) const;
    double markSize() const { return m_mark.em.y; }

private:
    struct Size {
        Scale em;
        double column;
        double height;
    };
    Size sized(double size, double widest, double highest, Scale scale) const;
    double fitted(double value) const;

    const DigitFace* m_face;
    Fit m_fit;
    Size m_number;
    Size m_mark;
    double m_rowPitch;
};

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
