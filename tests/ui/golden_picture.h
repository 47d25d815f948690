#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QString>

#include <algorithm>
#include <cstdlib>

namespace tessaly {

struct PictureDifference {
    int pixels = 0;
    /// The expected picture paled, the differing pixels in red.
    QImage marked;
};

/// Compares two pictures of one size. A pixel differs when one of its channels is further off than
/// the smoothing of another machine could bring about.
inline PictureDifference compare(const QImage& expected, const QImage& actual) {
    constexpr int Tolerance = 64;
    PictureDifference difference{0, QImage(expected.size(), QImage::Format_RGB32)};
    for (int y = 0; y < expected.height(); ++y)
        for (int x = 0; x < expected.width(); ++x) {
            const QRgb a = expected.pixel(x, y);
            const QRgb b = actual.pixel(x, y);
            const bool differs =
                std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                          std::abs(qBlue(a) - qBlue(b))}) > Tolerance;
            const int paled = 192 + qGray(a) / 4;
            difference.marked.setPixel(x, y, differs ? 0xFFFF0000 : qRgb(paled, paled, paled));
            difference.pixels += differs ? 1 : 0;
        }
    return difference;
}

/// Compares a picture with tests/data/FOLDER/NAME.png. When they differ, the picture and one of the
/// differences are left in the build folder. TESSALY_WRITE_PICTURES=1 in the environment writes the
/// expected picture instead: look at it before you commit it.
inline void expectPicture(const QImage& actual, const QString& folder, const QString& name) {
    constexpr int DifferingPixels = 10; // the smallest pencil mark has more
    const QString path = QStringLiteral(TESSALY_TEST_DATA "/%1/%2.png").arg(folder, name);
    if (qEnvironmentVariableIsSet("TESSALY_WRITE_PICTURES")) {
        ASSERT_TRUE(actual.save(path)) << path.toStdString();
        return;
    }
    const QImage expected(path);
    ASSERT_EQ(expected.size(), actual.size()) << path.toStdString();
    const PictureDifference difference = compare(expected, actual);
    if (difference.pixels <= DifferingPixels)
        return;
    const QString left = QStringLiteral(TESSALY_TEST_OUTPUT "/%1-%2").arg(folder, name);
    QDir().mkpath(QStringLiteral(TESSALY_TEST_OUTPUT));
    actual.save(left + QStringLiteral("-actual.png"));
    difference.marked.save(left + QStringLiteral("-difference.png"));
    ADD_FAILURE() << path.toStdString() << " differs in " << difference.pixels << " pixels; see "
                  << left.toStdString() << "-*.png";
}

} // namespace tessaly
