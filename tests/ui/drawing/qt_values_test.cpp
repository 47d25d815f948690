#include "ui/drawing/qt_values.h"

#include <gtest/gtest.h>

#include <QMenu>
#include <QMenuBar>
#include <QTest>

namespace tessaly {
namespace {

Appearance schemeOf(Colour background, Colour menu, Colour button) {
    Appearance appearance;
    appearance.SchemeColours[slot::Background] = background;
    appearance.SchemeColours[slot::Menu] = menu;
    appearance.SchemeColours[slot::Button] = button;
    return appearance;
}

double contrastOf(const QPalette& palette, QPalette::ColorGroup group, QPalette::ColorRole text,
                  QPalette::ColorRole ground) {
    return contrastRatio(toColour(palette.color(group, text)),
                         toColour(palette.color(group, ground)));
}

TEST(SchemePalette, TakesItsColoursFromTheSlots) {
    const QPalette palette =
        schemePalette(schemeOf(RGB(200, 210, 190), RGB(20, 60, 20), RGB(30, 40, 50)));
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        EXPECT_EQ(toColour(palette.color(group, QPalette::Window)), RGB(200, 210, 190));
        EXPECT_EQ(toColour(palette.color(group, QPalette::Base)), RGB(200, 210, 190));
        EXPECT_EQ(toColour(palette.color(group, QPalette::Button)), RGB(30, 40, 50));
    }
    EXPECT_EQ(palette.color(QPalette::Active, QPalette::WindowText), QColor(Qt::black));
    EXPECT_EQ(palette.color(QPalette::Active, QPalette::ButtonText), QColor(Qt::white));
}

TEST(SchemePalette, ReadsOnEveryScheme) {
    using P = QPalette;
    const std::vector<std::pair<P::ColorRole, P::ColorRole>> pairs{
        {P::WindowText, P::Window},
        {P::Text, P::Base},
        {P::ButtonText, P::Button},
        {P::ToolTipText, P::ToolTipBase},
        {P::HighlightedText, P::Highlight}};
    for (int level = 0; level <= 255; level += 15) {
        const Colour grey = RGB(level, level, level);
        for (const Colour menu : {grey, Black, White, RGB(180, 30, 90)}) {
            const P palette = schemePalette(schemeOf(grey, menu, RGB(level, 255 - level, 128)));
            for (const auto& [text, ground] : pairs) {
                EXPECT_GE(contrastOf(palette, P::Active, text, ground), 4.5) << level;
                EXPECT_GE(contrastOf(palette, P::Disabled, text, ground), 3.0) << level;
                EXPECT_NE(palette.color(P::Disabled, text), palette.color(P::Active, text));
            }
            EXPECT_GE(contrastOf(palette, P::Active, P::Highlight, P::Base), 1.4) << level;
            EXPECT_GE(contrastOf(palette, P::Active, P::Link, P::Base), 4.5) << level;
        }
    }
}

TEST(SchemePalette, AFirstStartIsLightOrDarkAsTheDesktopIs) {
    EXPECT_STREQ(schemeLikeDesktop(QPalette(QColor(0xee, 0xee, 0xee))), DefaultScheme);
    EXPECT_STREQ(schemeLikeDesktop(QPalette(QColor(0x2a, 0x2a, 0x2e))), DarkScheme);
}

TEST(SchemePalette, ColoursTheWholeMenuTree) {
    const Appearance appearance = schemeOf(RGB(230, 230, 230), RGB(60, 20, 90), RGB(200, 200, 200));
    QWidget window;
    QMenuBar bar(&window);
    QMenu* file = bar.addMenu(QStringLiteral("File"));
    QMenu* copy = file->addMenu(QStringLiteral("Copy to Clipboard"));
    copy->addAction(QStringLiteral("Puzzle"));
    bar.setStyleSheet(menuStyleSheet(appearance));
    window.resize(300, 100);
    for (QWidget* part : {static_cast<QWidget*>(&bar), static_cast<QWidget*>(copy)}) {
        part->resize(200, 60);
        const QImage image = part->grab().toImage();
        EXPECT_EQ(toColour(image.pixelColor(image.width() - 4, image.height() - 4)),
                  RGB(60, 20, 90));
    }
}

} // namespace
} // namespace tessaly
