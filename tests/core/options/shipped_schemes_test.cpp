#include "core/options/scheme_library.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tessaly {
namespace {

/// The colours that the shipped file gives the scheme of that name.
SchemeColours shipped(const std::string& name) {
    Appearance appearance;
    EXPECT_EQ(SchemeLibrary(TESSALY_DATA "/").LoadScheme(name + ".col", appearance).problem, "");
    return appearance.SchemeColours;
}

std::array<double, 3> linear(Colour colour) {
    const auto channel = [](int value) { return std::pow(value / 255.0, 2.2); };
    return {channel(RedOf(colour)), channel(GreenOf(colour)), channel(BlueOf(colour))};
}

using Matrix = std::array<std::array<double, 3>, 3>;

/// How colours appear to eyes without red or without green receptors, on linear RGB (Machado,
/// Oliveira, Fernandes: "A Physiologically-based Model for Simulation of Color Vision Deficiency",
/// 2009, severity 1).
constexpr Matrix Protanopia{{{0.152286, 1.052583, -0.204868},
                             {0.114503, 0.786281, 0.099216},
                             {-0.003882, -0.048116, 1.051998}}};
constexpr Matrix Deuteranopia{{{0.367322, 0.860646, -0.227968},
                               {0.280085, 0.672501, 0.047413},
                               {-0.011820, 0.042940, 0.968881}}};

/// How far apart two colours appear, in the units of a channel (0 to 255).
double apparentDistance(const Matrix& eye, Colour one, Colour other) {
    const auto seen = [](const auto& row, const std::array<double, 3>& rgb) {
        const double light = row[0] * rgb[0] + row[1] * rgb[1] + row[2] * rgb[2];
        return 255 * std::pow(std::clamp(light, 0.0, 1.0), 1 / 2.2);
    };
    double sum = 0;
    for (const auto& row : eye)
        sum += std::pow(seen(row, linear(one)) - seen(row, linear(other)), 2);
    return std::sqrt(sum);
}

/// The least distance between what must be told apart: givens, the user's numbers, the solution;
/// and the two signal colours.
double leastDistance(const SchemeColours& colours) {
    double least = 1000;
    for (const Matrix& eye : {Protanopia, Deuteranopia})
        for (const auto& [one, other] : {std::pair{Black, colours[slot::DarkRed]},
                                         {Black, colours[slot::Green]},
                                         {colours[slot::DarkRed], colours[slot::Green]},
                                         {colours[slot::Red], colours[slot::Green]}})
            least = std::min(least, apparentDistance(eye, one, other));
    return least;
}

TEST(ShippedSchemes, TheBoardReadsInEachOfThem) {
    constexpr double Text = 4.5; // WCAG 2, sections 1.4.3 and 1.4.11
    constexpr double LargeTextOrSign = 3;
    SchemeLibrary library(TESSALY_DATA "/");
    ASSERT_EQ(library.RefreshSchemeList().problem, "");
    EXPECT_EQ(library.names().size(), 15U);
    EXPECT_EQ(library.names().front(), "xp");
    for (const std::string& name : library.names()) {
        const SchemeColours colours = shipped(name);
        const Colour ground = colours[slot::Background];
        // The fills that the options start from.
        for (const Colour fill : {ground, colours[slot::Button]}) {
            EXPECT_GE(contrastRatio(readableOn(ground), fill), Text) << name;
            EXPECT_GE(contrastRatio(colours[slot::DarkRed], fill), Text) << name;
            EXPECT_GE(contrastRatio(colours[slot::Green], fill), LargeTextOrSign) << name;
            EXPECT_GE(contrastRatio(colours[slot::Red], fill), LargeTextOrSign) << name;
        }
    }
}

TEST(ShippedSchemes, TheDarkOneIsDarkAndTheHighContrastOneIsHigh) {
    const SchemeColours night = shipped("night");
    EXPECT_GE(contrastRatio(White, night[slot::Background]), 12);
    EXPECT_GE(contrastRatio(White, night[slot::Menu]), 12);

    const SchemeColours high = shipped("high contrast");
    for (std::size_t ground : {slot::Background, slot::Menu, slot::Button, slot::Accent})
        EXPECT_GE(contrastRatio(readableOn(high[ground]), high[ground]), 7) << ground;
    for (std::size_t text : {slot::DarkRed, slot::Red, slot::Green})
        EXPECT_GE(contrastRatio(high[text], high[slot::Button]), 7) << text;
}

TEST(ShippedSchemes, TheRedGreenSafeOneKeepsItsColoursApartForEveryEye) {
    constexpr double Distinct = 120;
    EXPECT_GE(leastDistance(shipped("red-green safe")), Distinct);
    EXPECT_LT(leastDistance(shipped("meadow")), Distinct / 2) << "the measure must tell a bad one";
}

} // namespace
} // namespace tessaly
