#include "ui/controls/icon_set.h"

#include <gtest/gtest.h>

#include <QImage>

#include <algorithm>
#include <cstdlib>

namespace tessaly {
namespace {

constexpr int First = static_cast<int>(Picture::Load);
constexpr int LastLineDrawing = static_cast<int>(Picture::Add);
constexpr int Last = static_cast<int>(Picture::Product);

QImage drawn(int picture, int size, const QColor& colour, double ratio = 1) {
    return pixmapOf(static_cast<Picture>(picture), size, colour, ratio).toImage();
}

/// Where the ink is, and how much of the picture it covers: 0 to 1.
struct Ink {
    QRect bounds;
    double amount = 0;
};

Ink inkOf(const QImage& image) {
    Ink ink;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const double alpha = image.pixelColor(x, y).alphaF();
            ink.amount += alpha / image.width() / image.height();
            if (alpha > 0)
                ink.bounds |= QRect(x, y, 1, 1);
        }
    return ink;
}

bool isNearly(const QColor& one, const QColor& other) {
    return std::abs(one.red() - other.red()) <= 2 && std::abs(one.green() - other.green()) <= 2 &&
           std::abs(one.blue() - other.blue()) <= 2;
}

TEST(IconSet, EveryPictureIsThereAndNoTwoAreAlike) {
    QList<QImage> seen;
    for (int picture = First; picture <= Last; ++picture) {
        const QImage image = drawn(picture, 48, Qt::black);
        EXPECT_GT(inkOf(image).amount, 0.05) << picture;
        EXPECT_FALSE(seen.contains(image)) << picture;
        seen << image;
    }
}

TEST(IconSet, LineDrawingsTakeTheColourAndNoOther) {
    const QColor colour(180, 40, 90);
    for (int picture = First; picture <= LastLineDrawing; ++picture) {
        const QImage image = drawn(picture, 48, colour);
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) {
                const QColor pixel = image.pixelColor(x, y);
                ASSERT_TRUE(pixel.alpha() < 255 || isNearly(pixel, colour)) << picture;
            }
    }
}

TEST(IconSet, LineDrawingsStandInTheMiddleAndWeighAboutTheSame) {
    constexpr int Size = 240;
    constexpr int Middle = Size / 2;
    constexpr int Unit = Size / 24;
    const QRect inside = QRect(0, 0, Size, Size).adjusted(1, 1, -1, -1);
    for (int picture = First; picture <= LastLineDrawing; ++picture) {
        const Ink ink = inkOf(drawn(picture, Size, Qt::black));
        EXPECT_TRUE(inside.contains(ink.bounds)) << picture;
        EXPECT_NEAR(ink.bounds.center().x(), Middle, Unit) << picture;
        EXPECT_NEAR(ink.bounds.center().y(), Middle, Unit) << picture;
        EXPECT_GE(std::max(ink.bounds.width(), ink.bounds.height()), Size * 2 / 3) << picture;
        EXPECT_GT(ink.amount, 0.06) << picture;
        EXPECT_LT(ink.amount, 0.32) << picture;
    }
}

TEST(IconSet, PixmapsHaveTheDevicesResolution) {
    const QPixmap pixmap = pixmapOf(Picture::Load, 24, Qt::black, 2);
    EXPECT_EQ(pixmap.size(), QSize(48, 48));
    EXPECT_EQ(pixmap.deviceIndependentSize(), QSizeF(24, 24));
    EXPECT_EQ(productIcon().pixmap(QSize(64, 64)).size(), QSize(64, 64));
}

} // namespace
} // namespace tessaly
