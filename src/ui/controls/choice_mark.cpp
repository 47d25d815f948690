#include "ui/controls/choice_mark.h"

#include "ui/drawing/qt_values.h"

#include <QPainter>

#include <algorithm>

namespace tessaly {
namespace {

constexpr int BoxSide = 16;
constexpr int Inset = 3;
constexpr int MarkGap = 8;
/// What a pointer or a finger can meet.
constexpr int LeastHeight = 24;

double cornerRadius(ChoiceMark mark, const QRectF& place) {
    return mark == ChoiceMark::Dot ? place.width() / 2 : 3;
}

void drawOutline(QPainter& painter, ChoiceMark mark, const QRectF& place) {
    const double radius = cornerRadius(mark, place);
    painter.drawRoundedRect(place, radius, radius);
}

void drawChosen(QPainter& painter, ChoiceMark mark, const QRectF& place, const QColor& colour) {
    if (mark == ChoiceMark::Dot) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(colour);
        painter.drawEllipse(place.adjusted(4.5, 4.5, -4.5, -4.5));
        return;
    }
    painter.setPen(QPen(colour, 2.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({{place.left() + 3.6, place.top() + 8.2},
                                    {place.left() + 6.8, place.top() + 11.4},
                                    {place.left() + 12.4, place.top() + 4.8}}));
}

} // namespace

QSize choiceSize(const QAbstractButton& button) {
    const QSize caption = button.fontMetrics().size(Qt::TextShowMnemonic, button.text());
    return {BoxSide + MarkGap + caption.width() + 2 * Inset,
            std::max(LeastHeight, caption.height() + 2 * Inset)};
}

void drawChoice(QAbstractButton& button, ChoiceMark mark) {
    const QColor ground = button.palette().color(QPalette::Active, QPalette::Window);
    const QColor colour = button.isEnabled() ? readableOn(ground) : fadedOn(ground);
    QPainter painter(&button);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF place(Inset, (button.height() - BoxSide) / 2.0, BoxSide, BoxSide);
    painter.setPen(QPen(blended(ground, colour, 0.65), 1));
    if (button.underMouse() || button.isDown())
        painter.setBrush(blended(ground, colour, button.isDown() ? 0.2 : 0.1));
    drawOutline(painter, mark, place.adjusted(0.5, 0.5, -0.5, -0.5));
    painter.setBrush(Qt::NoBrush);
    if (button.hasFocus()) {
        painter.setPen(QPen(colour, 2));
        drawOutline(painter, mark, place.adjusted(-2, -2, 2, 2));
    }
    if (button.isChecked())
        drawChosen(painter, mark, place, colour);
    painter.setPen(colour);
    painter.drawText(button.rect().adjusted(Inset + BoxSide + MarkGap, 0, 0, 0),
                     Qt::AlignVCenter | Qt::TextShowMnemonic, button.text());
}

} // namespace tessaly
