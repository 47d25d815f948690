#include "ui/window/star_row.h"

#include "ui/drawing/star_drawing.h"

#include <QPainter>

namespace tessaly {
namespace {

constexpr int StarSize = 13;

} // namespace

StarRow::StarRow(QWidget* parent)
    : QWidget(parent) {
    setObjectName(QStringLiteral("Stars"));
    setFixedSize(StarRow::sizeHint());
}

void StarRow::showRating(const std::optional<Rating>& rating) {
    const QString words = rating ? QString::fromStdString(inWords(*rating)) : QString();
    m_stars = rating ? rating->stars : 0;
    setToolTip(words);
    setAccessibleName(words);
    update();
}

QSize StarRow::sizeHint() const {
    return {MostStars * StarSize, StarSize};
}

void StarRow::paintEvent(QPaintEvent*) {
    if (m_stars == 0)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::WindowText));
    drawStars(painter, m_stars, rect());
}

} // namespace tessaly
