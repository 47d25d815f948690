#include "core/options/scheme_builder.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tessaly {
namespace {

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

/// Halves go to the even number: the rounding mode that every program starts with.
int rounded(float value) {
    return static_cast<int>(std::nearbyint(value));
}

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
    for (Shift shift : Shifts)
        colours[shift.slot] = shifted(base, rounded(static_cast<float>(shift.distance) * factor));
    colours[slot::DarkRed] = RGB(128, 0, 0);
    colours[slot::Red] = RGB(255, 0, 0);
    colours[slot::Green] = RGB(0, 128, 0);
    colours[slot::LightGreen] = RGB(0, 255, 0);
}

} // namespace tessaly
