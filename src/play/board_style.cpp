// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "play/board_style.h"

#include <cmath>

namespace tessaly {

BoardStyle boardStyle(const Appearance& appearance) {
    constexpr double WiderWhenSplit = 2;
    const Colour background = appearance.SchemeColours[slot::Background];
    const bool split = appearance.SplitHexas;
    return {
        .background = background,
        .border = split ? background : appearance.HexaBorderColour,
        .line = appearance.HexaBorderColour,
        .fill = appearance.HexaFillColour,
        .solid = appearance.HexaBorderColour,
        .fixedNumber = appearance.FixedNumberColour,
        .userNumber = appearance.UserNumberColour,
        .borderWidth = appearance.HexaBorderWidth + (split ? WiderWhenSplit : 0),
    };
}

Colour mixed(Colour under, Colour over, double share) {
    const auto channel = [share](int from, int to) {
        return static_cast<int>(std::lround(from + (to - from) * share));
    };
    return RGB(channel(RedOf(under), RedOf(over)), channel(GreenOf(under), GreenOf(over)),
               channel(BlueOf(under), BlueOf(over)));
}

} // namespace tessaly
