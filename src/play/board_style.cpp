// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "play/board_style.h"

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

} // namespace tessaly
