#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <QPainter>
#include <QWidget>

namespace tessaly {
namespace {

TEST(QtWarnings, FailTheTestThatCausesThem) {
    EXPECT_NONFATAL_FAILURE(QPainter().drawPoint(0, 0), "Painter not active");
}

TEST(QtWarnings, AreNotCausedByAnOrdinaryWindow) {
    QWidget window;
    window.setMinimumSize(100, 100);
    window.show();
    window.raise();
    EXPECT_TRUE(window.isVisible());
}

} // namespace
} // namespace tessaly
