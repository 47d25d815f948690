#pragma once

#include "ui/controls/icon_set.h"

#include <QFontMetrics>
#include <QString>

class QColor;
class QPainter;

namespace tessaly {

/// What stands on the face of a button: a picture left of a caption, or one of the two alone, in
/// the middle. Sizes are in logical pixels.
struct BoxContents {
    Picture picture = Picture::None;
    QSize pictureSize;
    /// With "&" before its mnemonic, if it has one.
    QString caption;
};

/// The size of a button whose contents have room enough.
QSize sizeAround(const BoxContents& contents, const QFontMetrics& font);

void drawBoxContents(QPainter& painter, const QRectF& area, const BoxContents& contents,
                     const QColor& colour);

} // namespace tessaly
