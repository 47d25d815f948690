#include "ui/controls/box_contents.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tessaly {
namespace {

constexpr int PaddingBesideCaption = 14;
constexpr int PaddingBesidePicture = 7;
constexpr int PaddingAbove = 7;
constexpr int Gap = 7;

QSize pictureSize(const BoxContents& contents) {
    return contents.picture == Picture::None ? QSize(0, 0) : contents.pictureSize;
}

QSize captionSize(const BoxContents& contents, const QFontMetrics& font) {
    return contents.caption.isEmpty() ? QSize(0, 0)
                                      : font.size(Qt::TextShowMnemonic, contents.caption);
}

int gapIn(const BoxContents& contents) {
    return contents.picture == Picture::None || contents.caption.isEmpty() ? 0 : Gap;
}

} // namespace

QSize sizeAround(const BoxContents& contents, const QFontMetrics& font) {
    const QSize picture = pictureSize(contents);
    const QSize caption = captionSize(contents, font);
    const int padding = contents.caption.isEmpty() ? PaddingBesidePicture : PaddingBesideCaption;
    return {picture.width() + gapIn(contents) + caption.width() + 2 * padding,
            std::max(picture.height(), caption.height()) + 2 * PaddingAbove};
}

void drawBoxContents(QPainter& painter, const QRectF& area, const BoxContents& contents,
                     const QColor& colour) {
    const QSizeF picture = pictureSize(contents);
    const double captionLeft = picture.width() + gapIn(contents);
    const double width = captionLeft + captionSize(contents, painter.fontMetrics()).width();
    QRectF used(0, 0, width, area.height());
    used.moveCenter(area.center());

    QRectF place(used.topLeft(), picture);
    place.moveTop(std::round(area.center().y() - picture.height() / 2));
    drawPicture(painter, place, contents.picture, colour);
    painter.setPen(colour);
    painter.drawText(used.adjusted(captionLeft, 0, 0, 0), Qt::AlignCenter | Qt::TextShowMnemonic,
                     contents.caption);
}

} // namespace tessaly
