#include "ui/controls/icon_set.h"

#include <gtest/gtest.h>

#include <QImage>

namespace tessaly {
namespace {

constexpr int FirstDrawing = static_cast<int>(Picture::Load);
constexpr int LastLineDrawing = static_cast<int>(Picture::Add);
constexpr int LastDrawing = static_cast<int>(Picture::Product);

TEST(IconSet, EveryPictureIsThereNoTwoAreAlikeAndLineDrawingsTakeTheColour) {
    const QColor colour(180, 40, 90);
    QList<QImage> seen;
    for (int picture = FirstDrawing; picture <= LastDrawing; ++picture) {
        const QImage image = pixmapOf(static_cast<Picture>(picture), 24, colour, 2).toImage();
        EXPECT_EQ(image.size(), QSize(48, 48)) << "as sharp as the screen";
        EXPECT_FALSE(seen.contains(image)) << picture;
        seen << image;
        int opaque = 0;
        for (int at = 0; at < 48 * 48; ++at) {
            const QColor pixel = image.pixelColor(at % 48, at / 48);
            opaque += pixel.alpha() == 255;
            if (picture <= LastLineDrawing && pixel.alpha() == 255) {
                ASSERT_NEAR(pixel.red(), colour.red(), 2) << picture;
                ASSERT_NEAR(pixel.green(), colour.green(), 2) << picture;
            }
        }
        EXPECT_GT(opaque, 48) << picture;
    }
    EXPECT_EQ(productIcon().pixmap(QSize(64, 64)).size(), QSize(64, 64));
}

} // namespace
} // namespace tessaly
