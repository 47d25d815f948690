#include "core/options/appearance.h"
#include "core/options/colour_surface.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace tessaly::colours_test {

using namespace colour_surface;

constexpr Colour grey(int level) {
    return RGB(level, level, level);
}

TEST(Appearance, ASchemeIsBuiltOfABaseColourShiftedWithinItsBounds) {
    const auto greys = [](const std::array<int, 6>& levels) {
        std::array<Colour, 6> colours{};
        std::transform(levels.begin(), levels.end(), colours.begin(), grey);
        return colours;
    };
    const Colour edge = RGB(1, 120, 244);
    const std::tuple<int, Colour, std::array<Colour, 6>> rows[] = {
        {100, grey(200), greys({72, 168, 136, 244, 232, 244})},
        {50, grey(100), greys({36, 84, 68, 164, 116, 132})},
        // 128 * 0.13 is 16.64, 32 * 0.13 is 4.16, 64 * 0.13 is 8.32.
        {13, grey(100), greys({83, 96, 92, 117, 104, 108})},
        {-100, grey(100), greys({228, 132, 164, 1, 68, 36})},
        {300, grey(100), greys({1, 4, 1, 244, 196, 244})},
        {0, RGB(0, 120, 255), {edge, edge, edge, edge, edge, edge}}};
    for (const auto& [contrast, base, slots3To8] : rows) {
        SchemeColours expected = DesignColours; // the other slots are the same in every scheme
        expected[slot::Background] = base;
        std::copy(slots3To8.begin(), slots3To8.end(), expected.begin() + 3);
        SchemeColours built{};
        BuildScheme(base, contrast, built);
        EXPECT_EQ(built, expected) << contrast;
    }
}

TEST(Appearance, ContrastIsThatOfWcag) {
    const std::tuple<Colour, Colour, double, Colour> rows[] = {
        {White, Black, 21, White},
        {White, RGB(255, 0, 0), 3.998, Black},
        {Black, RGB(0, 255, 0), 15.304, Black},
        {White, RGB(0, 0, 255), 8.592, White},
        {White, grey(128), 3.949, Black},
        {Black, grey(9), 1.054, White}}; // on the straight piece near black
    for (const auto& [one, other, ratio, readable] : rows) {
        EXPECT_NEAR(contrastRatio(one, other), ratio, 0.001) << one << " on " << other;
        EXPECT_EQ(contrastRatio(one, other), contrastRatio(other, one));
        EXPECT_EQ(readableOn(other), readable) << other;
    }
}

constexpr Colour Ramp = RGB(200, 101, 0);
constexpr Colour Ground = RGB(1, 2, 3);

TEST(ColourSurface, ShadesLeadFromBlackAndFromWhiteToTheColourHalvesToEven) {
    EXPECT_EQ(clrBlackness(RGB(255, 3, 1), 128), RGB(128, 2, 0)) << "127.5, 1.5 and 0.5";
    EXPECT_EQ(clrWhiteness(RGB(0, 51, 254), 64), RGB(191, 204, 255));
}

TEST(ColourSurface, ShowsTheClassicColoursTheRampsAndTheGround) {
    const std::pair<Colour, std::vector<std::pair<double, double>>> rows[] = {
        {ClassicPalette[0], {{10, 30}, {64.9, 229.9}}},
        {ClassicPalette[1], {{75, 30}}},
        {ClassicPalette[4], {{10, 255}}},
        {ClassicPalette[15], {{259, 904}}},
        {Black, {{10, 950}, {10.9, 1149.9}}},
        {clrBlackness(Ramp, 7), {{17, 950}}},
        {White, {{10, 1175}}},
        {clrWhiteness(Ramp, 7), {{17, 1175}}},
        {Ramp, {{266, 1000}, {266, 1175}}},
        {Ground, {{9.9, 100}, {65, 100}, {70, 100}, {100, 240}, {262, 800}, {-1e6, 1000}}},
        {Ground, {{9.9, 1000}, {267, 1000}, {100, 920}, {100, 1160}, {100, 1375}}}};
    for (const auto& [colour, places] : rows)
        for (const auto& [x, y] : places)
            EXPECT_EQ(colourAt(x, y, Ramp, Ground), colour) << x << " " << y;
}

TEST(ColourSurface, KeysReachEveryPlaceAndStayOnTheSurface) {
    const std::tuple<Place, int, int, Place> moves[] = {
        {{0, 0}, -1, -1, {0, 0}},  {{0, 3}, 1, 0, {0, 3}},    {{3, 2}, 0, 1, {4, 160}},
        {{4, 160}, 0, -1, {3, 2}}, {{4, 256}, 0, -1, {3, 3}}, {{4, 250}, 1, 0, {4, 256}},
        {{4, 8}, 1, 0, {4, 16}},   {{5, 8}, -1, 1, {5, 0}}};
    for (const auto& [from, columns, rows, to] : moves)
        EXPECT_EQ(moved(from, columns, rows), to) << from.row << " " << from.column;
    EXPECT_EQ(boxOf({1, 1}).left, paletteBox(5).left);
    EXPECT_TRUE(boxOf({4, 7}).contains(17, 950) && boxOf({5, 7}).contains(17, 1175));
    for (int index = 0; index < PlaceCount; ++index)
        EXPECT_EQ(indexOf(placeAt(index)), index);
    EXPECT_EQ(nameOf({4, 0}, Ramp), "darker: red 0, green 0, blue 0");
    EXPECT_EQ(nameOf({5, 0}, Ramp), "lighter: red 255, green 255, blue 255");
    EXPECT_NE(nameOf({0, 0}, Ramp), nameOf({3, 3}, Ramp));
}

} // namespace tessaly::colours_test
