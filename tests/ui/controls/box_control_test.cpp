#include "ui/controls/box_control.h"

#include "core/options/scheme_library.h"
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

/// A state is seen by some of its pixels, and an outline on the ground by all of them.
TEST_F(BoxControlTest, EveryStateStandsOutInEverySchemeByThreeToOne) {
    SchemeLibrary schemes(TESSALY_DATA "/");
    ASSERT_TRUE(schemes.RefreshSchemeList().ok());
    Appearance look;
    const auto ratio = [](const QColor& a, const QColor& b) {
        return contrastRatio(toColour(a), toColour(b));
    };
    const auto differs = [&](const QImage& a, const QImage& b) {
        double most = 0;
        for (int x = 0; x < a.width(); ++x)
            most = std::max(most, ratio(a.pixelColor(x, 15), b.pixelColor(x, 15)));
        return most;
    };
    m_button.setText({});
    m_other.setFocus();
    for (const std::string& scheme : schemes.names()) {
        ASSERT_TRUE(schemes.LoadScheme(scheme + ".col", look).ok());
        m_window.setPalette(schemePalette(look));
        const QColor ground = m_window.palette().window().color();
        for (const std::size_t slotNumber : {slot::Background, slot::Button}) {
            SCOPED_TRACE(scheme + " " + std::to_string(slotNumber));
            m_button.setFaceColour(toQColor(look.SchemeColours[slotNumber]));
            const QImage plain = picture();
            EXPECT_GE(ratio(plain.pixelColor(40, 0), ground), 3);
            m_button.setEnabled(false);
            EXPECT_GE(ratio(m_button.textColour(), ground), 3);
            m_button.setEnabled(true);
            m_button.setDown(true);
            EXPECT_GE(differs(picture(), plain), 3) << "pressed";
            m_button.setDown(false);
            m_button.setAttribute(Qt::WA_UnderMouse);
            EXPECT_GE(differs(picture(), plain), 3) << "under the pointer";
            m_button.setAttribute(Qt::WA_UnderMouse, false);
            m_button.setFocus();
            EXPECT_GE(differs(picture(), plain), 3) << "focus";
            m_other.setFocus();
        }
    }
}

TEST_F(BoxControlTest, MayBeDeletedByWhatItsClickDoes) {
    QPointer<BoxControl> doomed = new BoxControl(u"Gone"_s, &m_window);
    QObject::connect(doomed, &BoxControl::clicked, [doomed] { delete doomed; });
    QTest::keyPress(doomed, Qt::Key_Return);
    EXPECT_TRUE(doomed.isNull());
}

} // namespace tessaly::box_control_test
