#include "ui/drawing/qt_values.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

TEST(SchemePalette, TakesItsColoursFromTheSlotsAndReadsOnEveryScheme) {
    using P = QPalette;
    Appearance worn;
    for (int level = 0; level <= 255; level += 15)
        for (const Colour menu : {RGB(level, level, level), Black, White, RGB(180, 30, 90)}) {
            worn.SchemeColours[slot::Background] = RGB(level, level, level);
            worn.SchemeColours[slot::Menu] = menu;
            worn.SchemeColours[slot::Button] = RGB(level, 255 - level, 128);
            const P palette = schemePalette(worn);
            EXPECT_EQ(toColour(palette.window().color()), worn.SchemeColours[slot::Background]);
            EXPECT_EQ(toColour(palette.button().color()), worn.SchemeColours[slot::Button]);
            EXPECT_NE(palette.color(P::Disabled, P::Text), palette.color(P::Active, P::Text));
            for (const auto& [text, ground, least] : {std::tuple{P::WindowText, P::Window, 4.5},
                                                      {P::Text, P::Base, 4.5},
                                                      {P::ButtonText, P::Button, 4.5},
                                                      {P::ToolTipText, P::ToolTipBase, 4.5},
                                                      {P::HighlightedText, P::Highlight, 4.5},
                                                      {P::Highlight, P::Base, 3.0},
                                                      {P::Link, P::Base, 4.5}})
                for (const auto& [group, share] : {std::pair{P::Active, 1.0}, {P::Disabled, 0.66}})
                    EXPECT_GE(contrastRatio(toColour(palette.color(group, text)),
                                            toColour(palette.color(group, ground))),
                              least * share)
                        << level << " role " << text;
        }
    EXPECT_STREQ(schemeLikeDesktop(QPalette(QColor(0xee, 0xee, 0xee))), DefaultScheme);
    EXPECT_STREQ(schemeLikeDesktop(QPalette(QColor(0x2a, 0x2a, 0x2e))), DarkScheme);
}

} // namespace
} // namespace tessaly
