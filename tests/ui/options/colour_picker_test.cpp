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

    template <class Widget>
    Widget& find(const QString& name) {
        auto* found = picker.findChild<Widget*>(name);
        if (found == nullptr)
            throw std::runtime_error("no such control: " + name.toStdString());
        return *found;
    }

    void clickAt(double x, double y) {
        QTest::mouseClick(&surface, Qt::LeftButton, {}, surface.toWidget(x, y).toPoint());
    }

    Colour backgroundOf(const QString& label) {
        return toColour(find<QLabel>(label).palette().color(QPalette::Window));
    }

    void expectShown(Colour colour) {
        EXPECT_EQ(picker.SelColor(), colour);
        EXPECT_EQ(backgroundOf(u"Label1"_s), colour);
        const std::vector<std::pair<QString, int>> parts{
            {u"Red"_s, RedOf(colour)}, {u"Green"_s, GreenOf(colour)}, {u"Blue"_s, BlueOf(colour)}};
        for (const auto& [name, value] : parts) {
            EXPECT_EQ(find<QSlider>(u"hsr"_s + name).value(), value);
            EXPECT_EQ(find<QLabel>(u"lbl%1Degree"_s.arg(name)).text(), QString::number(value));
        }
        EXPECT_EQ(backgroundOf(u"PicRGB_0"_s), RGB(RedOf(colour), 0, 0));
        EXPECT_EQ(backgroundOf(u"PicRGB_1"_s), RGB(0, GreenOf(colour), 0));
        EXPECT_EQ(backgroundOf(u"PicRGB_2"_s), RGB(0, 0, BlueOf(colour)));
    }

    ColPik picker;
    ColourSurfaceView& surface = find<ColourSurfaceView>(u"surface"_s);
    QSignalSpy picked{&picker, &ColPik::picked};
};

TEST_F(ColourPicker, ABoxSelectsItsColourAndTurnsTheRamps) {
    picker.setSelColor(RGB(9, 9, 9));
    clickAt(40, 1000 - 895);
    expectShown(Black);
    EXPECT_EQ(surface.rampColour(), Black);
    clickAt(105, 330);
    expectShown(ClassicPalette[5]);
    EXPECT_EQ(surface.rampColour(), ClassicPalette[5]);
    ASSERT_EQ(picked.count(), 2);
    EXPECT_EQ(picked.back().front().value<Colour>(), ClassicPalette[5]);
}

TEST_F(ColourPicker, AShadeIsSelectedWithoutTurningTheRamps) {
    picker.setSelColor(RGB(200, 100, 0));
    clickAt(10 + 128, 1050);
    expectShown(clrBlackness(RGB(200, 100, 0), 128));
    clickAt(10 + 64, 1250);
    expectShown(clrWhiteness(RGB(200, 100, 0), 64));
    EXPECT_EQ(surface.rampColour(), RGB(200, 100, 0));
    picker.setSchemeColor(RGB(7, 8, 9));
    clickAt(3, 500);
    expectShown(RGB(7, 8, 9));
    EXPECT_EQ(surface.rampColour(), RGB(7, 8, 9)) << "the ground is no shade";
    QTest::mouseClick(&surface, Qt::RightButton, {}, surface.toWidget(40, 100).toPoint());
    expectShown(RGB(7, 8, 9));
}

TEST_F(ColourPicker, BarsAndKeysSelectToo) {
    picker.setSelColor(RGB(10, 20, 30));
    QTest::keyClick(&find<QSlider>(u"hsrGreen"_s), Qt::Key_PageUp);
    expectShown(RGB(10, 40, 30));
    EXPECT_EQ(surface.rampColour(), RGB(10, 40, 30));
    EXPECT_EQ(picked.count(), 0);
    for (Qt::Key key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Right, Qt::Key_Space})
        QTest::keyClick(&surface, key);
    expectShown(ClassicPalette[6]);
    for (int row = 0; row < 3; ++row)
        QTest::keyClick(&surface, Qt::Key_Down);
    QTest::keyClick(&surface, Qt::Key_Space);
    expectShown(clrBlackness(ClassicPalette[6], 160));
    EXPECT_EQ(picked.count(), 2);
}

TEST_F(ColourPicker, ShowsWhatItPicksAtEverySize) {
    picker.setSelColor(RGB(250, 120, 60));
    surface.clearFocus();
    for (const QSize size : {surface.sizeHint(), surface.sizeHint() * 3}) {
        surface.setFixedSize(size);
        const QImage image = surface.grab().toImage();
        const auto shownAt = [&](double x, double y) {
            const QPointF point = surface.toWidget(x, y) * image.devicePixelRatio();
            return toColour(image.pixelColor(point.toPoint()));
        };
        for (int index = 0; index < 16; ++index) {
            const auto box = colour_surface::paletteBox(index);
            for (const double x : {box.left + 1, box.left + box.width - 1})
                for (const double y : {box.top + 5, box.top + box.height - 6})
                    EXPECT_EQ(shownAt(x, y), ClassicPalette[static_cast<std::size_t>(index)]);
        }
        for (int v = 1; v <= ShadeSteps; v += 5) {
            EXPECT_EQ(shownAt(10.4 + v, 1000), clrBlackness(RGB(250, 120, 60), v)) << v;
            EXPECT_EQ(shownAt(10.4 + v, 1300), clrWhiteness(RGB(250, 120, 60), v)) << v;
        }
    }
}

TEST_F(ColourPicker, WhatIsNoPlainColourIsBlack) {
    picker.setSelColor(0x8000000F);
    expectShown(Black);
    EXPECT_EQ(toColour(ColPik().backColor()), RGB(255, 192, 192));
}

} // namespace
} // namespace tessaly
