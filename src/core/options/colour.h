#pragma once

#include <cstdint>

namespace tessaly {

/// A packed colour, red in the low byte, then green, then blue.
using Colour = std::uint32_t;

constexpr Colour RGB(int red, int green, int blue) {
    return static_cast<Colour>(red) | static_cast<Colour>(green) << 8 |
           static_cast<Colour>(blue) << 16;
}

constexpr int RedOf(Colour colour) {
    return static_cast<int>(colour & 0xff);
}
constexpr int GreenOf(Colour colour) {
    return static_cast<int>(colour >> 8 & 0xff);
}
constexpr int BlueOf(Colour colour) {
    return static_cast<int>(colour >> 16 & 0xff);
}

inline constexpr Colour Black = RGB(0, 0, 0);
inline constexpr Colour White = RGB(255, 255, 255);

} // namespace tessaly
