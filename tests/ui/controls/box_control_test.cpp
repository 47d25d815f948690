#include "ui/controls/box_control.h"

#include "core/options/appearance.h"
#include "ui/drawing/qt_values.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QContextMenuEvent>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

namespace tessaly {
namespace {

class BoxControlTest : public testing::Test {
protected:
    BoxControlTest() {
        auto* layout = new QVBoxLayout(&m_window);
        layout->addWidget(&m_button);
        layout->addWidget(&m_other);
        m_window.show();
        m_window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
    }

    QPoint outside() const { return {m_button.width() + 20, m_button.height() + 20}; }

    QImage picture(double devicePixelRatio = 1) {
        QImage image(m_button.size() * devicePixelRatio, QImage::Format_RGB32);
        image.setDevicePixelRatio(devicePixelRatio);
        image.fill(Qt::magenta);
        m_button.render(&image);
        return image;
    }

    QWidget m_window;
    BoxControl m_button{QStringLiteral("Press"), &m_window};
    BoxControl m_other{QStringLiteral("Other"), &m_window};
};

TEST_F(BoxControlTest, ALeftClickCountsOnlyWhenItEndsOnTheButton) {
    const QSignalSpy clicked(&m_button, &BoxControl::clicked);
    const QSignalSpy alternate(&m_button, &BoxControl::alternateClicked);
    QTest::mousePress(&m_button, Qt::LeftButton);
    EXPECT_TRUE(m_button.isDown());
    QTest::mouseRelease(&m_button, Qt::LeftButton);
    EXPECT_FALSE(m_button.isDown());
    EXPECT_EQ(clicked.count(), 1);

    QTest::mousePress(&m_button, Qt::LeftButton);
    QTest::mouseMove(&m_button, outside());
    QTest::mouseRelease(&m_button, Qt::LeftButton, {}, outside());
    EXPECT_EQ(clicked.count(), 1);
    EXPECT_EQ(alternate.count(), 0);
}

TEST_F(BoxControlTest, TheRightButtonAndTheMenuKeyClickTheOtherWay) {
    const QSignalSpy clicked(&m_button, &BoxControl::clicked);
    const QSignalSpy alternate(&m_button, &BoxControl::alternateClicked);
    QTest::mouseClick(&m_button, Qt::RightButton);
    EXPECT_EQ(alternate.count(), 1);
    QTest::mousePress(&m_button, Qt::RightButton);
    QTest::mouseRelease(&m_button, Qt::RightButton, {}, outside());
    EXPECT_EQ(alternate.count(), 1);

    QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, QPoint(5, 5), QPoint(5, 5));
    QApplication::sendEvent(&m_button, &menuKey);
    EXPECT_EQ(alternate.count(), 2);
    EXPECT_EQ(clicked.count(), 0);
}

TEST_F(BoxControlTest, EveryMouseButtonAndKeyIsPassedOn) {
    QList<Qt::MouseButton> down;
    QList<Qt::MouseButton> up;
    QList<int> keys;
    QObject::connect(&m_button, &BoxControl::mousePressed,
                     [&](QMouseEvent* event) { down << event->button(); });
    QObject::connect(&m_button, &BoxControl::mouseReleased,
                     [&](QMouseEvent* event) { up << event->button(); });
    QObject::connect(&m_button, &BoxControl::keyPressed,
                     [&](QKeyEvent* event) { keys << event->key(); });
    const QList<Qt::MouseButton> buttons{Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};
    for (const Qt::MouseButton button : buttons)
        QTest::mouseClick(&m_button, button);
    EXPECT_EQ(down, buttons);
    EXPECT_EQ(up, buttons);
    QTest::keyClick(&m_button, Qt::Key_A);
    QTest::keyClick(&m_button, Qt::Key_Return);
    EXPECT_EQ(keys, (QList<int>{Qt::Key_A, Qt::Key_Return}));
}

TEST_F(BoxControlTest, SpaceHoldsItAndEnterClicksItOnce) {
    const QSignalSpy clicked(&m_button, &BoxControl::clicked);
    const QSignalSpy pressed(&m_button, &BoxControl::pressed);
    QTest::keyPress(&m_button, Qt::Key_Space);
    EXPECT_TRUE(m_button.isDown());
    EXPECT_EQ(pressed.count(), 1);
    EXPECT_EQ(clicked.count(), 0);
    QTest::keyRelease(&m_button, Qt::Key_Space);
    EXPECT_EQ(clicked.count(), 1);

    QTest::keyClick(&m_button, Qt::Key_Enter);
    EXPECT_EQ(clicked.count(), 2);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, QStringLiteral("\r"), true);
    QApplication::sendEvent(&m_button, &held);
    EXPECT_EQ(clicked.count(), 2) << "an Enter key held down answers one question only";
}

TEST_F(BoxControlTest, AClickLeavesTheFocusWhereItIs) {
    m_other.setFocus();
    QTest::mouseClick(&m_button, Qt::LeftButton);
    EXPECT_TRUE(m_other.hasFocus());
    QTest::keyClick(&m_other, Qt::Key_Tab);
    EXPECT_TRUE(m_button.hasFocus());
}

TEST_F(BoxControlTest, ALatchedButtonStaysDownWhateverIsClicked) {
    m_button.setLatched(true);
    QTest::mouseClick(&m_button, Qt::LeftButton);
    EXPECT_TRUE(m_button.isLatched());
    m_button.setLatched(false);
    QTest::keyClick(&m_button, Qt::Key_Return);
    EXPECT_FALSE(m_button.isLatched());
}

TEST_F(BoxControlTest, EveryStateLooksDifferent) {
    m_button.clearFocus();
    const QImage raised = picture();
    QList<QImage> looks{raised};
    const auto addLook = [&] {
        looks << picture();
        for (qsizetype i = 0; i + 1 < looks.size(); ++i)
            EXPECT_NE(looks[i], looks.back()) << "as look " << i;
    };
    m_button.setLatched(true);
    addLook();
    m_button.setLatched(false);
    EXPECT_EQ(picture(), raised);
    m_button.setFocus();
    addLook();
    m_button.clearFocus();
    m_button.setEnabled(false);
    addLook();
    m_button.setEnabled(true);
    m_button.setFaceColour(Qt::darkBlue);
    addLook();
}

TEST_F(BoxControlTest, ItsBorderIsOneSharpLineAtEveryScale) {
    m_button.setFaceColour(QColor(200, 200, 200));
    for (const double scale : {1.0, 1.25, 1.5, 2.0, 3.0}) {
        const QImage image = picture(scale);
        const int thickness = qFloor(scale);
        const int x = image.width() / 3;
        for (int y = 0; y < thickness; ++y) {
            EXPECT_GT(image.pixelColor(x, y).red(), 230) << scale;
            EXPECT_LT(image.pixelColor(2 * x, image.height() - 1 - y).red(), 130) << scale;
        }
        EXPECT_EQ(image.pixelColor(x, thickness), QColor(200, 200, 200)) << scale;
        EXPECT_EQ(image.pixelColor(2 * x, image.height() - 1 - thickness), QColor(200, 200, 200))
            << scale;
    }
}

TEST_F(BoxControlTest, ItGrowsWithItsContents) {
    const QSize captioned = m_button.sizeHint();
    m_button.setPicture(Picture::Create);
    EXPECT_GE(m_button.sizeHint().width(), captioned.width() + m_button.iconSize().width());
    m_button.setText({});
    EXPECT_LT(m_button.sizeHint().width(), captioned.width());
    EXPECT_GT(m_button.sizeHint().height(), m_button.iconSize().height());
}

TEST_F(BoxControlTest, APicturedButtonIsNamedByItsToolTip) {
    const auto nameOf = [](QWidget* widget) {
        return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
    };
    BoxControl pictured(Picture::Undo, QStringLiteral("Undo"), &m_window);
    EXPECT_EQ(nameOf(&pictured), QStringLiteral("Undo"));
    pictured.setToolTip(QStringLiteral("Take it back"));
    EXPECT_EQ(nameOf(&pictured), QStringLiteral("Take it back"));
    m_button.setToolTip(QStringLiteral("Press it"));
    EXPECT_EQ(nameOf(&m_button), QStringLiteral("Press"));
}

TEST_F(BoxControlTest, ItsTextReadsOnEveryFaceAlsoWhileDisabled) {
    for (int level = 0; level <= 255; level += 5) {
        const QColor face(level, level, (level * 3) % 256);
        m_button.setFaceColour(face);
        m_button.setEnabled(true);
        const QColor text = m_button.textColour();
        EXPECT_GE(contrastRatio(toColour(text), toColour(face)), 4.5) << level;
        m_button.setEnabled(false);
        EXPECT_NE(m_button.textColour(), text) << level;
        EXPECT_GE(contrastRatio(toColour(m_button.textColour()), toColour(face)), 3.0) << level;
    }
}

TEST_F(BoxControlTest, MayBeDeletedByWhatItsClickDoes) {
    const auto expectGoneAfter = [this](auto click) {
        auto* doomed = new BoxControl(QStringLiteral("Gone"), &m_window);
        const QSignalSpy gone(doomed, &QObject::destroyed);
        doomed->show();
        QObject::connect(doomed, &BoxControl::clicked, [doomed] { delete doomed; });
        click(doomed);
        EXPECT_EQ(gone.count(), 1);
    };
    expectGoneAfter([](QWidget* button) { QTest::keyPress(button, Qt::Key_Return); });
    expectGoneAfter([](QWidget* button) {
        QTest::mousePress(button, Qt::LeftButton);
        QTest::mouseRelease(button, Qt::LeftButton);
    });
}

} // namespace
} // namespace tessaly
