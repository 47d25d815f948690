#include "core/options/appearance.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

SchemeColours built(Colour base, int contrast) {
    SchemeColours colours{};
    BuildScheme(base, contrast, colours);
    return colours;
}

Colour grey(int level) {
    return RGB(level, level, level);
}

TEST(SchemeBuilder, ShiftsTheBaseColourIntoTheSlotsWithinItsBounds) {
    const struct {
        int contrast;
        Colour base;
        std::array<Colour, 6> slots3To8;
    } cases[] = {
        {100, grey(200), {grey(72), grey(168), grey(136), grey(244), grey(232), grey(244)}},
        {50, grey(100), {grey(36), grey(84), grey(68), grey(164), grey(116), grey(132)}},
        // 128 * 0.13 is 16.64, 32 * 0.13 is 4.16, 64 * 0.13 is 8.32.
        {13, grey(100), {grey(83), grey(96), grey(92), grey(117), grey(104), grey(108)}},
        {-100, grey(100), {grey(228), grey(132), grey(164), grey(1), grey(68), grey(36)}},
        {300, grey(100), {grey(1), grey(4), grey(1), grey(244), grey(196), grey(244)}},
        // Even with no shift at all every channel is brought within the bounds.
        {0,
         RGB(0, 120, 255),
         {RGB(1, 120, 244), RGB(1, 120, 244), RGB(1, 120, 244), RGB(1, 120, 244), RGB(1, 120, 244),
          RGB(1, 120, 244)}},
    };
    for (const auto& expected : cases) {
        const SchemeColours colours = built(expected.base, expected.contrast);
        EXPECT_EQ(colours[slot::Background], expected.base);
        for (std::size_t i = 0; i < expected.slots3To8.size(); ++i)
            EXPECT_EQ(colours[i + 3], expected.slots3To8[i])
                << "slot " << i + 3 << " at contrast " << expected.contrast;
    }
}

TEST(SchemeBuilder, TheOtherSlotsAreFixedAndTheLastIsLeftAlone) {
    SchemeColours colours{};
    colours[13] = 77;
    BuildScheme(grey(9), 100, colours);
    EXPECT_EQ(colours[0], grey(1));
    EXPECT_EQ(colours[1], grey(240));
    EXPECT_EQ(colours[9], RGB(128, 0, 0));
    EXPECT_EQ(colours[10], RGB(255, 0, 0));
    EXPECT_EQ(colours[11], RGB(0, 128, 0));
    EXPECT_EQ(colours[12], RGB(0, 255, 0));
    EXPECT_EQ(colours[13], 77U);
}

TEST(SchemeBuilder, TheColoursOfTheDesignAreABuiltSchemeSaveForMenuAndButtons) {
    SchemeColours expected = built(DesignBackground, 100);
    expected[slot::Menu] = Black;
    expected[slot::Button] = DesignBackground;
    EXPECT_EQ(DesignColours, expected);
}

} // namespace
} // namespace tessaly
