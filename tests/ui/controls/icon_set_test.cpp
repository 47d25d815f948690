#include "ui/controls/icon_set.h"

#include <gtest/gtest.h>

#include <QImage>

namespace tessaly {
namespace {

TEST(IconSet, EveryPictureIsThereNoTwoAreAlikeAndLineDrawingsTakeTheColour) {
    const QColor colour(180, 40, 90);
    QList<QImage> seen;
    for (auto each = Picture::Load; each <= Picture::Product; each = Picture(int(each) + 1)) {
        SCOPED_TRACE(static_cast<int>(each));
        const QImage image = pixmapOf(each, 24, colour, 2).toImage();
        ASSERT_EQ(image.size(), QSize(48, 48)) << "as sharp as the screen";
        EXPECT_FALSE(seen.contains(image));
        seen << image;
        int opaque = 0;
        for (int at = 0; at < 48 * 48; ++at) {
            const QColor pixel = image.pixelColor(at % 48, at / 48);
            opaque += pixel.alpha() == 255;
            if (each <= Picture::Add && pixel.alpha() == 255) {
                ASSERT_NEAR(pixel.red() + pixel.green(), colour.red() + colour.green(), 3);
            }
        }
        EXPECT_GT(opaque, 48);
    }
    EXPECT_EQ(productIcon().pixmap(QSize(64, 64)).size(), QSize(64, 64));
}

} // namespace
} // namespace tessaly
