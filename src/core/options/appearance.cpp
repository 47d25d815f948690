#include "core/options/appearance.h"

#include <algorithm>
#include <cmath>

namespace tessaly {
namespace {

/// Relative luminance, 0 (black) to 1 (white), as WCAG 2 defines it.
double luminanceOf(Colour colour) {
    const auto linear = [](int channel) {
        const double c = channel / 255.0;
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(RedOf(colour)) + 0.7152 * linear(GreenOf(colour)) +
           0.0722 * linear(BlueOf(colour));
}

constexpr int Darkest = 1;
constexpr int Lightest = 244;

/// How far a slot lies from the base colour at a contrast of 100.
struct Shift {
    std::size_t slot;
    int distance;
};
constexpr std::array<Shift, 6> Shifts{{
    {slot::Menu, -128},
    {slot::Button, -32},
    {slot::Accent, -64},
    {6, 128},
    {7, 32},
    {8, 64},
}};

Colour shifted(Colour base, int distance) {
    const auto shift = [distance](int channel) {
        return std::clamp(channel + distance, Darkest, Lightest);
    };
    return RGB(shift(RedOf(base)), shift(GreenOf(base)), shift(BlueOf(base)));
}

} // namespace

void BuildScheme(Colour base, int contrast, SchemeColours& colours) {
    const float factor = static_cast<float>(contrast) / 100.0F;
    colours[0] = RGB(1, 1, 1);
    colours[1] = RGB(240, 240, 240);
    colours[slot::Background] = base;
    for (const auto& [slot, distance] : Shifts)
        colours[slot] =
            shifted(base, static_cast<int>(std::lrint(static_cast<float>(distance) * factor)));
    colours[slot::DarkRed] = RGB(128, 0, 0);
    colours[slot::Red] = RGB(255, 0, 0);
    colours[slot::Green] = RGB(0, 128, 0);
    colours[slot::LightGreen] = RGB(0, 255, 0);
}

double contrastRatio(Colour one, Colour other) {
    const double first = luminanceOf(one) + 0.05;
    const double second = luminanceOf(other) + 0.05;
    return first > second ? first / second : second / first;
}

Colour readableOn(Colour background) {
    const bool blackReadsBetter =
        contrastRatio(Black, background) >= contrastRatio(White, background);
    return blackReadsBetter ? Black : White;
}

} // namespace tessaly
