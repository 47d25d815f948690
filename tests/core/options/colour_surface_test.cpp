#include "core/options/colour_surface.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

using namespace colour_surface;

constexpr Colour Ramp = RGB(200, 101, 0);
constexpr Colour Ground = RGB(1, 2, 3);

TEST(ColourSurface, ShadesLeadFromBlackAndFromWhiteToTheColourHalvesToEven) {
    for (Colour colour : {Black, White, Ramp}) {
        EXPECT_EQ(clrBlackness(colour, 0), Black);
        EXPECT_EQ(clrBlackness(colour, 256), colour);
        EXPECT_EQ(clrWhiteness(colour, 0), White);
        EXPECT_EQ(clrWhiteness(colour, 256), colour);
    }
    EXPECT_EQ(clrBlackness(RGB(255, 3, 1), 128), RGB(128, 2, 0)) << "127.5, 1.5 and 0.5";
    EXPECT_EQ(clrWhiteness(RGB(0, 51, 254), 64), RGB(191, 204, 255));
}

TEST(ColourSurface, ShowsTheClassicColoursTheRampsAndTheGround) {
    const std::tuple<double, double, Colour> rows[] = {{10, 30, ClassicPalette[0]},
                                                       {64.9, 229.9, ClassicPalette[0]},
                                                       {75, 30, ClassicPalette[1]},
                                                       {10, 255, ClassicPalette[4]},
                                                       {259, 904, ClassicPalette[15]},
                                                       {9.9, 100, Ground},
                                                       {65, 100, Ground},
                                                       {70, 100, Ground},
                                                       {100, 240, Ground},
                                                       {262, 800, Ground},
                                                       {10, 950, Black},
                                                       {10.9, 1149.9, Black},
                                                       {17, 950, clrBlackness(Ramp, 7)},
                                                       {266, 1000, Ramp},
                                                       {10, 1175, White},
                                                       {17, 1175, clrWhiteness(Ramp, 7)},
                                                       {266, 1175, Ramp},
                                                       {9.9, 1000, Ground},
                                                       {267, 1000, Ground},
                                                       {100, 920, Ground},
                                                       {100, 1160, Ground},
                                                       {100, 1375, Ground},
                                                       {-1e6, 1000, Ground}};
    for (const auto& [x, y, colour] : rows)
        EXPECT_EQ(colourAt(x, y, Ramp, Ground), colour) << x << " " << y;
}

TEST(ColourSurface, KeysReachEveryPlaceAndStayOnTheSurface) {
    const struct {
        Place from;
        int columns, rows;
        Place to;
    } moves[] = {{{0, 0}, -1, -1, {0, 0}},  {{0, 3}, 1, 0, {0, 3}},    {{3, 2}, 0, 1, {4, 160}},
                 {{4, 160}, 0, -1, {3, 2}}, {{4, 256}, 0, -1, {3, 3}}, {{4, 250}, 1, 0, {4, 256}},
                 {{4, 8}, 1, 0, {4, 16}},   {{5, 8}, -1, 1, {5, 0}}};
    for (const auto& [from, columns, rows, to] : moves)
        EXPECT_EQ(moved(from, columns, rows), to) << from.row << " " << from.column;
    EXPECT_EQ(boxOf({1, 1}).left, paletteBox(5).left);
    EXPECT_TRUE(boxOf({4, 7}).contains(17, 950) && boxOf({5, 7}).contains(17, 1175));
}

} // namespace
} // namespace tessaly
