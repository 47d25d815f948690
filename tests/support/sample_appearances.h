#pragma once

#include "core/options/appearance.h"

namespace tessaly {

inline Appearance light() {
    Appearance appearance;
    appearance.SchemeColours[slot::Background] = RGB(236, 233, 226);
    appearance.HexaFillColour = RGB(252, 251, 248);
    appearance.NumberFont = "Liberation Sans";
    return appearance;
}

inline Appearance dark() {
    Appearance appearance = light();
    appearance.SchemeColours[slot::Background] = RGB(32, 36, 44);
    appearance.HexaFillColour = RGB(48, 54, 66);
    appearance.HexaBorderColour = RGB(120, 130, 150);
    appearance.FixedNumberColour = RGB(240, 240, 240);
    appearance.UserNumberColour = RGB(120, 200, 255);
    return appearance;
}

} // namespace tessaly
