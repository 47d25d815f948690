#include "ui/drawing/digit_sprites.h"

#include "ui/drawing/qt_colour.h"

#include <QPainter>

namespace tessaly {

DigitSprites::DigitSprites(const Numerals& numerals, Colour colour)
    : m_numberPen(numerals.numberPen().toPoint()) {
    for (int digit = 0; digit < DigitCount; ++digit) {
        const auto index = static_cast<std::size_t>(digit);
        m_numbers[index] = makeSprite(numerals.number(digit), colour);
        m_marks[index] = makeSprite(numerals.mark(digit), colour);
    }
    for (int place = 0; place < MarkPlaces; ++place)
        m_markPens[static_cast<std::size_t>(place)] = numerals.markPen(place).toPoint();
}

DigitSprites::Sprite DigitSprites::makeSprite(const QPainterPath& outline, Colour colour) {
    const QRect area = outline.boundingRect().toAlignedRect();
    Sprite sprite{QImage(area.size(), QImage::Format_ARGB32_Premultiplied), area.topLeft()};
    sprite.picture.fill(Qt::transparent);
    QPainter painter(&sprite.picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-area.topLeft());
    painter.fillPath(outline, toQColor(colour));
    return sprite;
}

void DigitSprites::draw(QPainter& painter, std::string_view entry, QPoint numberCentre,
                        QPoint marksCentre) const {
    const auto put = [&](const Sprite& sprite, QPoint pen) {
        painter.drawImage(pen + sprite.fromPen, sprite.picture);
    };
    layOutEntry(
        entry,
        [&](int digit) {
            put(m_numbers[static_cast<std::size_t>(digit)], numberCentre + m_numberPen);
        },
        [&](int digit, int place) {
            put(m_marks[static_cast<std::size_t>(digit)],
                marksCentre + m_markPens[static_cast<std::size_t>(place)]);
        });
}

} // namespace tessaly
