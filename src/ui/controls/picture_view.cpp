#include "ui/controls/picture_view.h"

#include <QPainter>

namespace tessaly {

PictureView::PictureView(Picture picture, int size, QWidget* parent)
    : QWidget(parent)
    , m_picture(picture) {
    setFixedSize(size, size);
}

void PictureView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawPicture(painter, rect(), m_picture, palette().color(foregroundRole()));
}

} // namespace tessaly
