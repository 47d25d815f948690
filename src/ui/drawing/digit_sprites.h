#pragma once

#include "core/options/colour.h"
#include "core/play/entry_layout.h"
#include "ui/drawing/numerals.h"

#include <QImage>
#include <QPoint>

#include <array>
#include <string_view>

class QPainter;

namespace tessaly {

/// Ready pictures of the digits in one colour, as numbers and as pencil marks: smoothing an outline
/// anew for each cell would take many times as long.
class DigitSprites {
public:
    /// The numerals must be fitted to pixels.
    DigitSprites(const Numerals& numerals, Colour colour);

    /// Puts what an entry shows into the cell with these centres, given in device pixels.
    void draw(QPainter& painter, std::string_view entry, QPoint numberCentre,
              QPoint marksCentre) const;

private:
    struct Sprite {
        QImage picture;
        QPoint fromPen;
    };
    static Sprite makeSprite(const QPainterPath& outline, Colour colour);

    std::array<Sprite, DigitCount> m_numbers;
    std::array<Sprite, DigitCount> m_marks;
    QPoint m_numberPen;
    std::array<QPoint, MarkPlaces> m_markPens;
};

} // namespace tessaly
