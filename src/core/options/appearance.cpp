#include "core/options/appearance.h"

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

} // namespace

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
