#include "core/options/colour_surface.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

using namespace colour_surface;

constexpr Colour Ramp = RGB(200, 101, 0);
constexpr Colour Ground = RGB(1, 2, 3);

Colour at(double x, double y) {
    return colourAt(x, y, Ramp, Ground);
}

TEST(ColourShades, LeadFromBlackAndFromWhiteToTheColourItself) {
    for (Colour colour : {Black, White, Ramp, RGB(255, 1, 128)}) {
        EXPECT_EQ(clrBlackness(colour, 0), Black);
        EXPECT_EQ(clrBlackness(colour, 256), colour);
        EXPECT_EQ(clrWhiteness(colour, 0), White);
        EXPECT_EQ(clrWhiteness(colour, 256), colour);
    }
    EXPECT_EQ(clrBlackness(White, 128), RGB(128, 128, 128)) << "127.5 goes to the even number";
    EXPECT_EQ(clrWhiteness(Black, 128), RGB(128, 128, 128));
    EXPECT_EQ(clrBlackness(RGB(5, 3, 1), 128), RGB(2, 2, 0)) << "2.5, 1.5 and 0.5";
    EXPECT_EQ(clrWhiteness(RGB(0, 51, 254), 64), RGB(191, 204, 255));
}

TEST(ColourSurface, ShowsTheClassicColoursRowByRow) {
    EXPECT_EQ(at(10, 30), ClassicPalette[0]);
    EXPECT_EQ(at(64.9, 229.9), ClassicPalette[0]);
    EXPECT_EQ(at(75, 30), ClassicPalette[1]);
    EXPECT_EQ(at(10, 255), ClassicPalette[4]);
    EXPECT_EQ(at(259, 904), ClassicPalette[15]) << "the last row reaches below the ramps' limit";
    for (const auto& [x, y] : {std::pair{9.9, 100.0}, {65, 100}, {70, 100}, {100, 240}, {262, 800}})
        EXPECT_EQ(at(x, y), Ground) << x << " " << y;
}

TEST(ColourSurface, ShowsARampToBlackAndOneToWhite) {
    for (int v = 0; v <= ShadeSteps; ++v) {
        EXPECT_EQ(at(10 + v, 950), clrBlackness(Ramp, v));
        EXPECT_EQ(at(10.9 + v, 1149.9), clrBlackness(Ramp, v));
        EXPECT_EQ(at(10 + v, 1175), clrWhiteness(Ramp, v));
    }
    for (const auto& [x, y] : {std::pair{100.0, 920.0},
                               {9.9, 1000},
                               {267, 1000},
                               {100, 1160},
                               {100, 1375},
                               {-1e6, 1000}})
        EXPECT_EQ(at(x, y), Ground) << x << " " << y;
}

TEST(ColourSurface, KeysReachEveryPlaceAndStayOnTheSurface) {
    EXPECT_EQ(moved({0, 0}, -1, -1), (Place{0, 0}));
    EXPECT_EQ(moved({0, 3}, 1, 0), (Place{0, 3}));
    EXPECT_EQ(moved({3, 2}, 0, 1), (Place{4, 160}));
    EXPECT_EQ(moved({4, 160}, 0, -1), (Place{3, 2}));
    EXPECT_EQ(moved({4, 256}, 0, -1), (Place{3, 3}));
    EXPECT_EQ(moved({4, 250}, 1, 0), (Place{4, 256}));
    EXPECT_EQ(moved({5, 8}, -1, 1), (Place{5, 0}));
    EXPECT_EQ(boxOf({1, 1}).left, paletteBox(5).left);
    EXPECT_TRUE(boxOf({4, 7}).contains(17, 950)) << "in the ramp to black";
    EXPECT_TRUE(boxOf({5, 7}).contains(17, 1175)) << "in the ramp to white";
}

} // namespace
} // namespace tessaly
