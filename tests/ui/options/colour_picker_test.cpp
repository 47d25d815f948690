#include "ui/options/colour_picker.h"

#include "ui/game_window.h"

#include <QSignalSpy>
#include <QSlider>

namespace tessaly {
namespace {

struct ColourPicker : testing::Test {
    ColourPicker() {
        picker.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&picker));
    }
    void clickAt(double x, double y, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(&surface, button, {}, surface.toWidget(x, y).toPoint());
    }
    void expectShown(Colour colour, Colour ramp) {
        EXPECT_EQ(picker.SelColor(), colour);
        EXPECT_EQ(surface.rampColour(), ramp);
        EXPECT_EQ(groundOf(find(picker, u"Label1"_s)), colour);
        for (const auto& [name, value] : {std::pair{u"Red"_s, RedOf(colour)},
                                          {u"Green"_s, GreenOf(colour)},
                                          {u"Blue"_s, BlueOf(colour)}}) {
            EXPECT_EQ(find<QSlider>(picker, u"hsr"_s + name).value(), value);
            EXPECT_EQ(find<QLabel>(picker, u"lbl%1Degree"_s.arg(name)).text().toInt(), value);
        }
    }

    ColPik picker;
    ColourSurfaceView& surface = find<ColourSurfaceView>(picker, u"surface"_s);
};

TEST_F(ColourPicker, PicksByMouseByBarsAndByKeys) {
    const QSignalSpy picked(&picker, &ColPik::picked);
    const Colour first = RGB(200, 100, 0);
    picker.setSelColor(first);
    clickAt(10 + 128, 1050);
    expectShown(clrBlackness(first, 128), first); // a shade does not turn the ramps
    clickAt(105, 330);
    clickAt(40, 100, Qt::RightButton);
    expectShown(ClassicPalette[5], ClassicPalette[5]);
    picker.setSchemeColor(RGB(7, 8, 9));
    clickAt(3, 500);
    expectShown(RGB(7, 8, 9), RGB(7, 8, 9)); // the ground is no shade
    EXPECT_EQ(picked.back().front().value<Colour>(), RGB(7, 8, 9));
    QTest::keyClick(&find(picker, u"hsrGreen"_s), Qt::Key_PageUp);
    expectShown(RGB(7, 28, 9), RGB(7, 28, 9));
    EXPECT_EQ(picked.count(), 3);
    for (Qt::Key key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Right, Qt::Key_Space})
        QTest::keyClick(&surface, key);
    expectShown(ClassicPalette[6], ClassicPalette[6]);
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
            for (double x = 14.4; x < 266; x += 5) {
                const Colour shown = toColour(image.pixelColor(surface.toWidget(x, y).toPoint()));
                const Colour picked = colour_surface::colourAt(x, y, ramp, White);
                EXPECT_TRUE(shown == picked || picked == White) << x << " " << y;
            }
    }
}

} // namespace
} // namespace tessaly
