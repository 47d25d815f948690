#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QString>

#include <algorithm>
#include <cstdlib>

namespace tessaly {

/// How many pixels of two pictures of one size differ: have a channel that is further off than the
/// smoothing of another machine could bring about.
inline int differingPixels(const QImage& expected, const QImage& actual) {
    constexpr int Tolerance = 64;
    int differing = 0;
    for (int y = 0; y < expected.height(); ++y)
        for (int x = 0; x < expected.width(); ++x) {
            const QRgb a = expected.pixel(x, y);
            const QRgb b = actual.pixel(x, y);
            differing += std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                                   std::abs(qBlue(a) - qBlue(b))}) > Tolerance;
        }
    return differing;
}

/// Compares a picture with tests/data/board_pictures/NAME.png. When they differ, the picture is
/// left in the build folder. TESSALY_WRITE_PICTURES=1 in the environment writes the expected
/// picture instead: look at it before you commit it.
inline void expectPicture(const QImage& actual, const QString& name) {
    constexpr int DifferingPixels = 10; // the smallest pencil mark has more
    const QString path = QStringLiteral(TESSALY_TEST_DATA "/board_pictures/%1.png").arg(name);
    if (qEnvironmentVariableIsSet("TESSALY_WRITE_PICTURES")) {
        ASSERT_TRUE(actual.save(path)) << path.toStdString();
        return;
    }
    const QImage expected(path);
    const QString left = QStringLiteral(TESSALY_TEST_OUTPUT "/%1.png").arg(name);
    if (expected.size() == actual.size() && differingPixels(expected, actual) <= DifferingPixels)
        return;
    QDir().mkpath(QStringLiteral(TESSALY_TEST_OUTPUT));
    EXPECT_TRUE(actual.save(left));
    ADD_FAILURE() << path.toStdString() << " is not as " << left.toStdString();
}

} // namespace tessaly
