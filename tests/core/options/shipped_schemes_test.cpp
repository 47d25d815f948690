#include "core/options/appearance.h"
#include "core/options/scheme_library.h"
#include "core/session/options_editor.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include <unistd.h>

namespace tessaly {
namespace {

using SlotColours = std::vector<std::pair<std::size_t, Colour>>;

/// How a shipped scheme is made: by the scheme builder, with some slots chosen by hand after it.
struct ShippedScheme {
    std::string name;
    Colour base;
    int contrast;
    SlotColours chosen;
};

/// A red and a green that read on middle tones as well as on light ones.
const SlotColours& deepSignals() {
    static const SlotColours Deep{{10, RGB(190, 0, 0)}, {11, RGB(0, 100, 0)}};
    return Deep;
}

const std::vector<ShippedScheme>& shippedSchemes() {
    static const std::vector<ShippedScheme> Schemes{
        {"xp",
         RGB(226, 234, 241),
         30,
         {{3, RGB(203, 217, 229)},
          {4, RGB(246, 249, 251)},
          {5, RGB(133, 176, 214)},
          {6, RGB(255, 255, 255)},
          {7, RGB(238, 243, 247)},
          {8, RGB(212, 222, 231)},
          {9, RGB(24, 82, 178)},
          {10, RGB(208, 48, 48)},
          {11, RGB(18, 122, 52)},
          {12, RGB(120, 200, 130)}}},
        {"daylight", RGB(234, 234, 232), -30, deepSignals()},
        {"stone", RGB(206, 205, 200), -70, deepSignals()},
        {"sand", RGB(231, 215, 186), -45, deepSignals()},
        {"apricot", RGB(244, 206, 174), -50, deepSignals()},
        {"rose", RGB(236, 205, 211), -60, deepSignals()},
        {"sky", RGB(194, 217, 238), -65, deepSignals()},
        {"lagoon", RGB(176, 217, 216), -75, deepSignals()},
        {"meadow", RGB(198, 221, 184), -70, deepSignals()},
        {"lavender", RGB(214, 206, 235), -60, deepSignals()},
        {"slate", RGB(186, 197, 210), -100, deepSignals()},
        {"dusk",
         RGB(74, 82, 100),
         30,
         {{3, RGB(54, 61, 76)},
          {4, RGB(88, 97, 117)},
          {5, RGB(150, 168, 204)},
          {9, RGB(255, 216, 172)},
          {10, RGB(255, 152, 152)},
          {11, RGB(140, 232, 150)},
          {12, RGB(190, 255, 190)}}},
        {"night",
         RGB(38, 43, 54),
         20,
         {{3, RGB(24, 27, 35)},
          {4, RGB(58, 64, 79)},
          {5, RGB(112, 146, 190)},
          {9, RGB(255, 186, 120)},
          {10, RGB(255, 112, 112)},
          {11, RGB(110, 222, 132)},
          {12, RGB(170, 255, 170)}}},
        {"high contrast",
         White,
         0,
         {{3, Black},
          {4, RGB(255, 255, 196)},
          {5, RGB(0, 0, 128)},
          {6, White},
          {7, White},
          {8, White},
          {10, RGB(160, 0, 0)},
          {11, RGB(0, 80, 0)}}},
        {"red-green safe",
         RGB(228, 233, 240),
         40,
         {{4, RGB(250, 247, 236)},
          {5, RGB(240, 200, 80)},
          {9, RGB(0, 84, 166)},
          {10, RGB(0, 120, 190)},
          {11, RGB(160, 70, 0)},
          {12, RGB(240, 180, 40)}}},
    };
    return Schemes;
}

SchemeColours coloursOf(const ShippedScheme& scheme) {
    SchemeColours colours{};
    BuildScheme(scheme.base, scheme.contrast, colours);
    for (const auto& [slot, colour] : scheme.chosen)
        colours[slot] = colour;
    return colours;
}

/// The colours that the shipped file gives the scheme of that name.
SchemeColours shipped(const std::string& name) {
    Appearance appearance;
    const SchemeLibrary library(TESSALY_DATA "/");
    EXPECT_EQ(library.LoadScheme(name + ".col", appearance).problem, "");
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

TEST(ShippedSchemes, TheFileIsMadeFromTheTableAbove) {
    std::string expected;
    for (const ShippedScheme& scheme : shippedSchemes())
        expected += schemeRecord(schemeHeader(scheme.name), coloursOf(scheme));
    const std::string made = testing::TempDir() + "all.col-" + std::to_string(::getpid());
    const bool same = test::contentOf(TESSALY_DATA "/all.col") == expected;
    if (!same)
        test::put(made, expected);
    EXPECT_TRUE(same) << "data/all.col differs from what the table makes: " << made;

    SchemeLibrary library(TESSALY_DATA "/");
    ASSERT_EQ(library.RefreshSchemeList().problem, "");
    ASSERT_EQ(library.names().size(), shippedSchemes().size());
    EXPECT_EQ(library.names().front(), "xp");
}

TEST(ShippedSchemes, TheBoardReadsInEachOfThem) {
    constexpr double Text = 4.5; // WCAG 2, sections 1.4.3 and 1.4.11
    constexpr double LargeTextOrSign = 3;
    for (const ShippedScheme& scheme : shippedSchemes()) {
        const SchemeColours colours = shipped(scheme.name);
        // The fills that the options start from.
        for (const Colour fill : {colours[slot::Background], colours[slot::Button]}) {
            EXPECT_GE(contrastRatio(readableOn(colours[slot::Background]), fill), Text)
                << scheme.name;
            EXPECT_GE(contrastRatio(colours[slot::DarkRed], fill), Text) << scheme.name;
            EXPECT_GE(contrastRatio(colours[slot::Green], fill), LargeTextOrSign) << scheme.name;
            EXPECT_GE(contrastRatio(colours[slot::Red], fill), LargeTextOrSign) << scheme.name;
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
