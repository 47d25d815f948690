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

TEST(Appearance, ASchemeIsBuiltOfABaseColourShiftedWithinItsBounds) {
    const Colour edge = RGB(1, 120, 244);
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
        {0, RGB(0, 120, 255), {edge, edge, edge, edge, edge, edge}},
    };
    for (const auto& [contrast, base, shifted] : cases) {
        const SchemeColours colours = built(base, contrast);
        EXPECT_EQ(colours[slot::Background], base);
        for (std::size_t i = 0; i < shifted.size(); ++i)
            EXPECT_EQ(colours[i + 3], shifted[i]) << "slot " << i + 3 << " at " << contrast;
    }
    SchemeColours design = built(DesignBackground, 100);
    design[slot::Menu] = Black;
    design[slot::Button] = DesignBackground;
    EXPECT_EQ(DesignColours, design) << "the other slots are the same in every scheme";
}

TEST(Appearance, ContrastIsThatOfWcag) {
    const std::tuple<Colour, Colour, double, Colour> rows[] = {
        {White, Black, 21, White},
        {White, RGB(255, 0, 0), 3.998, Black},
        {RGB(0, 255, 0), White, 1.372, Black},
        {White, RGB(0, 0, 255), 8.592, White},
        {White, grey(128), 3.949, Black},
        {Black, grey(9), 1.054, White}, // on the straight piece near black
    };
    for (const auto& [one, other, ratio, readable] : rows) {
        EXPECT_NEAR(contrastRatio(one, other), ratio, 0.001) << one << " on " << other;
        EXPECT_EQ(contrastRatio(one, other), contrastRatio(other, one));
        EXPECT_EQ(readableOn(other), other == White ? Black : readable) << other;
    }
}

} // namespace
} // namespace tessaly
