#pragma once

#include "core/options/colour.h"

#include <array>
#include <string>

namespace tessaly {

/// The colours of a scheme by slot; slot 13 is never used.
using SchemeColours = std::array<Colour, 14>;

/// The slots that have a role of their own.
namespace slot {
inline constexpr std::size_t Background = 2;
inline constexpr std::size_t Menu = 3;
inline constexpr std::size_t Button = 4;
inline constexpr std::size_t Accent = 5;
inline constexpr std::size_t DarkRed = 9;
inline constexpr std::size_t Red = 10;
inline constexpr std::size_t Green = 11;
inline constexpr std::size_t LightGreen = 12;
} // namespace slot

/// The scheme of a first run, a record of the scheme library like any other.
inline constexpr const char* DefaultScheme = "xp.col";
/// The scheme of a first run on a dark desktop.
inline constexpr const char* DarkScheme = "night.col";
/// The reserved name of the scheme that needs no library.
inline constexpr const char* BuiltInScheme = "default.col";
inline constexpr const char* DefaultNumberFont = "Arial";
inline constexpr int DefaultBorderWidth = 2;
inline constexpr int MaxBorderWidth = 5;
inline constexpr int DefaultPrintLineWidth = 2;

/// The light grey that the main window is designed with.
inline constexpr Colour DesignBackground = RGB(240, 240, 240);

/// What stands in the slots before any scheme is loaded.
inline constexpr SchemeColours DesignColours{
    RGB(1, 1, 1),       RGB(240, 240, 240),
    DesignBackground,   Black,
    DesignBackground,   RGB(176, 176, 176),
    RGB(244, 244, 244), RGB(244, 244, 244),
    RGB(244, 244, 244), RGB(128, 0, 0),
    RGB(255, 0, 0),     RGB(0, 128, 0),
    RGB(0, 255, 0),     Black,
};

/// How the board and the windows look: the scheme in force and the user's own settings.
struct Appearance {
    std::string ActiveScheme = DefaultScheme;
    tessaly::SchemeColours SchemeColours = DesignColours;
    std::string NumberFont = DefaultNumberFont;
    Colour FixedNumberColour = Black;
    Colour UserNumberColour = DesignColours[slot::DarkRed];
    Colour HexaBorderColour = Black;
    Colour HexaFillColour = DesignColours[slot::Button];
    /// Width of the hexagons' border, 1 to `MaxBorderWidth` board units.
    int HexaBorderWidth = DefaultBorderWidth;
    /// Width of the border lines in printed puzzles, at least 1.
    int PrintLineWidth = DefaultPrintLineWidth;
    /// Whether the hexagons are drawn spaced apart.
    bool SplitHexas = false;
    /// Whether the number in the centre of a hexagon has a border around it.
    bool NumBorder = false;

    friend bool operator==(const Appearance&, const Appearance&) = default;
};

/// Makes a whole scheme of one base colour: slot 2 is the base, slots 3 to 8 are the base shifted
/// darker and lighter in steps that grow with the contrast (in percent; a negative one swaps dark
/// and light). Distances are rounded, halves to even; every channel of a shifted colour lies in
/// 1..244. Slot 13 keeps its value.
void BuildScheme(Colour base, int contrast, SchemeColours& colours);

/// How well one colour reads on the other: 1 (not at all) to 21 (black on white), the contrast
/// ratio of WCAG 2, section 1.4.3.
double contrastRatio(Colour one, Colour other);

/// Black or white, whichever reads better on `background`.
Colour readableOn(Colour background);

} // namespace tessaly
