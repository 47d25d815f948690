#include "ui/controls/box_control.h"

#include "ui/drawing/qt_values.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QImage>
#include <QSignalSpy>
#include <QTest>

namespace tessaly::box_control_test {

using namespace Qt::StringLiterals;

struct BoxControlTest : testing::Test {
    BoxControlTest() {
        m_button.setGeometry(10, 10, 90, 30);
        m_other.setGeometry(10, 50, 90, 30);
        m_window.show();
        m_window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
    }

    QImage picture(double devicePixelRatio = 1) {
        QImage image(m_button.size() * devicePixelRatio, QImage::Format_RGB32);
        image.setDevicePixelRatio(devicePixelRatio);
        m_button.render(&image);
        return image;
    }

    QWidget m_window;
    BoxControl m_button{u"Press"_s, &m_window};
    BoxControl m_other{u"Other"_s, &m_window};
};

TEST_F(BoxControlTest, AnswersToButtonsAndKeysAndLeavesFocusAndLatchAsTheyAre) {
    const QSignalSpy clicked(&m_button, &BoxControl::clicked);
    const QSignalSpy alternate(&m_button, &BoxControl::alternateClicked);
    QTest::mouseClick(&m_button, Qt::RightButton);
    QTest::mousePress(&m_button, Qt::RightButton);
    QTest::mouseRelease(&m_button, Qt::RightButton, {}, {-20, -20});
    EXPECT_EQ(alternate.count(), 1);
    QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, QPoint(5, 5), QPoint(5, 5));
    QApplication::sendEvent(&m_button, &menuKey);
    EXPECT_EQ(alternate.count(), 2);
    m_other.setFocus();
    m_button.setLatched(true);
    QTest::mouseClick(&m_button, Qt::LeftButton);
    EXPECT_TRUE(m_other.hasFocus());
    EXPECT_TRUE(m_button.isLatched());
    QTest::keyClick(&m_other, Qt::Key_Tab);
    EXPECT_TRUE(m_button.hasFocus());
    QTest::keyClick(&m_button, Qt::Key_Enter);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, u"\r"_s, true);
    QApplication::sendEvent(&m_button, &held);
    EXPECT_EQ(clicked.count(), 2) << "an Enter key held down answers one question only";
}

TEST_F(BoxControlTest, ItsOutlineAndBorderAreSharpLinesAtEveryScale) {
    const QColor face(200, 200, 200);
    m_button.setFaceColour(face);
    for (const double scale : {1.0, 1.25, 1.5, 2.0, 3.0}) {
        const QImage image = picture(scale);
        const int thickness = qFloor(scale);
        const int x = image.width() / 3;
        for (int y = 0; y < thickness; ++y) {
            EXPECT_GE(contrastRatio(toColour(image.pixelColor(x, y)), toColour(face)), 3) << scale;
            EXPECT_GT(image.pixelColor(x, thickness + y).red(), 230) << scale;
            const int bottom = image.height() - 1 - thickness - y;
            EXPECT_LT(image.pixelColor(2 * x, bottom).red(), 130) << scale;
        }
        EXPECT_EQ(image.pixelColor(x, 2 * thickness), face) << scale;
    }
}

TEST_F(BoxControlTest, ItsTextReadsOnEveryFaceAlsoWhileDisabled) {
    for (int level = 0; level <= 255; level += 5)
        for (const bool enabled : {false, true}) {
            const Colour face = RGB(level, level, (level * 3) % 256);
            m_button.setFaceColour(toQColor(face));
            m_button.setEnabled(enabled); // else it is flat
            const Colour ground = toColour(m_button.palette().color(QPalette::Window));
            EXPECT_GE(contrastRatio(toColour(m_button.textColour()), enabled ? face : ground),
                      enabled ? 4.5 : 3.0);
        }
}

TEST_F(BoxControlTest, MayBeDeletedByWhatItsClickDoes) {
    QPointer<BoxControl> doomed = new BoxControl(u"Gone"_s, &m_window);
    QObject::connect(doomed, &BoxControl::clicked, [doomed] { delete doomed; });
    QTest::keyPress(doomed, Qt::Key_Return);
    EXPECT_TRUE(doomed.isNull());
}

} // namespace tessaly::box_control_test
