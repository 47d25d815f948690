#include "ui/drawing/qt_values.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

TEST(SchemePalette, TakesItsColoursFromTheSlotsAndReadsOnEveryScheme) {
    using P = QPalette;
    const std::pair<P::ColorRole, P::ColorRole> pairs[] = {{P::WindowText, P::Window},
                                                           {P::Text, P::Base},
                                                           {P::ButtonText, P::Button},
                                                           {P::ToolTipText, P::ToolTipBase},
                                                           {P::HighlightedText, P::Highlight}};
    Appearance worn;
    for (int level = 0; level <= 255; level += 15)
        for (const Colour menu : {RGB(level, level, level), Black, White, RGB(180, 30, 90)}) {
            const Colour grey = RGB(level, level, level);
            const Colour button = RGB(level, 255 - level, 128);
            worn.SchemeColours[slot::Background] = grey;
            worn.SchemeColours[slot::Menu] = menu;
            worn.SchemeColours[slot::Button] = button;
            const P palette = schemePalette(worn);
            const auto contrast = [&](P::ColorGroup group, P::ColorRole text, P::ColorRole ground) {
                return contrastRatio(toColour(palette.color(group, text)),
                                     toColour(palette.color(group, ground)));
            };
            EXPECT_EQ(toColour(palette.color(P::Disabled, P::Window)), grey);
            EXPECT_EQ(toColour(palette.color(P::Inactive, P::Base)), grey);
            EXPECT_EQ(toColour(palette.color(P::Active, P::Button)), button);
            for (const auto& [text, ground] : pairs) {
                EXPECT_GE(contrast(P::Active, text, ground), 4.5) << level;
                EXPECT_GE(contrast(P::Disabled, text, ground), 3.0) << level;
                EXPECT_NE(palette.color(P::Disabled, text), palette.color(P::Active, text));
            }
            EXPECT_GE(contrast(P::Active, P::Highlight, P::Base), 3) << level;
            EXPECT_GE(contrast(P::Active, P::Link, P::Base), 4.5) << level;
        }
    EXPECT_STREQ(schemeLikeDesktop(QPalette(QColor(0xee, 0xee, 0xee))), DefaultScheme);
    EXPECT_STREQ(schemeLikeDesktop(QPalette(QColor(0x2a, 0x2a, 0x2e))), DarkScheme);
}

} // namespace
} // namespace tessaly
