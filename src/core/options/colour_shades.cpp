#include "core/options/colour_shades.h"

#include <cmath>

namespace tessaly {
namespace {

int rounded(float value) {
    return static_cast<int>(std::nearbyint(value));
}

template <class Shade>
Colour shaded(Colour colour, Shade shade) {
    const auto channel = [&shade](int value) { return rounded(shade(static_cast<float>(value))); };
    return RGB(channel(RedOf(colour)), channel(GreenOf(colour)), channel(BlueOf(colour)));
}

} // namespace

Colour clrBlackness(Colour colour, int v) {
    const float f = static_cast<float>(v) / ShadeSteps;
    return shaded(colour, [f](float channel) { return channel * f; });
}

Colour clrWhiteness(Colour colour, int v) {
    constexpr float Full = 255;
    const float f = static_cast<float>(ShadeSteps - v) / ShadeSteps;
    return shaded(colour, [f](float channel) { return channel + f * (Full - channel); });
}

} // namespace tessaly
