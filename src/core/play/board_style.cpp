#include "core/play/board_style.h"

#include <algorithm>

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

BoardStyle paperStyle(const Appearance& appearance) {
    constexpr double WidestBorder = 16;
    return {
        .background = White,
        .border = Black,
        .line = Black,
        .fill = White,
        .solid = Black,
        .fixedNumber = Black,
        .userNumber = Black,
        .borderWidth = std::min<double>(appearance.PrintLineWidth, WidestBorder),
        .lineWidth = 0.6,
        .onPaper = true,
        .boldGivens = true,
    };
}

} // namespace tessaly
