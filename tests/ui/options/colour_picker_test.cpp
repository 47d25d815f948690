#include "ui/options/colour_picker.h"

#include "ui/drawing/qt_values.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

class ColourPicker : public testing::Test {
protected:
    ColourPicker() {
        picker.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&picker));
    }

    void clickAt(double x, double y, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(&surface, button, {}, surface.toWidget(x, y).toPoint());
    }
    void press(std::initializer_list<Qt::Key> keys) {
        for (Qt::Key key : keys)
            QTest::keyClick(&surface, key);
    }
    void expectShown(Colour colour, Colour ramp) {
        EXPECT_EQ(picker.SelColor(), colour);
        EXPECT_EQ(surface.rampColour(), ramp);
        const auto* sample = picker.findChild<QLabel*>(u"Label1"_s);
        EXPECT_EQ(toColour(sample->palette().window().color()), colour);
        for (const auto& [name, value] : {std::pair{u"Red"_s, RedOf(colour)},
                                          {u"Green"_s, GreenOf(colour)},
                                          {u"Blue"_s, BlueOf(colour)}}) {
            EXPECT_EQ(picker.findChild<QSlider*>(u"hsr"_s + name)->value(), value);
            EXPECT_EQ(picker.findChild<QLabel*>(u"lbl%1Degree"_s.arg(name))->text().toInt(), value);
        }
    }

    ColPik picker;
    ColourSurfaceView& surface = *picker.findChild<ColourSurfaceView*>(u"surface"_s);
    QSignalSpy picked{&picker, &ColPik::picked};
};

TEST_F(ColourPicker, PicksByMouseByBarsAndByKeys) {
    const Colour first = RGB(200, 100, 0);
    picker.setSelColor(first);
    clickAt(10 + 128, 1050);
    expectShown(clrBlackness(first, 128), first); // a shade does not turn the ramps
    clickAt(105, 330);
    expectShown(ClassicPalette[5], ClassicPalette[5]);
    clickAt(40, 100, Qt::RightButton);
    expectShown(ClassicPalette[5], ClassicPalette[5]);
    picker.setSchemeColor(RGB(7, 8, 9));
    clickAt(3, 500);
    expectShown(RGB(7, 8, 9), RGB(7, 8, 9)); // the ground is no shade
    EXPECT_EQ(picked.count(), 3);
    EXPECT_EQ(picked.back().front().value<Colour>(), RGB(7, 8, 9));
    QTest::keyClick(picker.findChild<QSlider*>(u"hsrGreen"_s), Qt::Key_PageUp);
    expectShown(RGB(7, 28, 9), RGB(7, 28, 9));
    EXPECT_EQ(picked.count(), 3);
    press({Qt::Key_Down, Qt::Key_Right, Qt::Key_Right, Qt::Key_Space});
    expectShown(ClassicPalette[6], ClassicPalette[6]);
    press({Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Space});
    expectShown(clrBlackness(ClassicPalette[6], 160), ClassicPalette[6]);
    picker.setSelColor(0x8000000F);
    expectShown(Black, Black); // what is no plain colour
}

TEST_F(ColourPicker, ShowsWhatItPicksAtEverySize) {
    const Colour ramp = RGB(250, 120, 60);
    picker.setSelColor(ramp);
    surface.clearFocus();
    for (const QSize size : {surface.sizeHint(), surface.sizeHint() * 3}) {
        surface.setFixedSize(size);
        const QImage image = surface.grab().toImage();
        for (double y = 40; y < 1370; y += 45)
            for (double x = 14.4; x < 266; x += 5)
                if (const Colour expected = colour_surface::colourAt(x, y, ramp, White);
                    expected != White) {
                    const QPoint pixel = surface.toWidget(x, y).toPoint();
                    EXPECT_EQ(toColour(image.pixelColor(pixel)), expected) << x << " " << y;
                }
    }
}

} // namespace
} // namespace tessaly
