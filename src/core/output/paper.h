#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace tessaly {

/// In points, a seventy-second of an inch.
struct PaperSize {
    double width = 0;
    double height = 0;

    /// The same sheet, upright or turned.
    PaperSize oriented(bool landscape) const {
        const auto [less, more] = std::minmax(width, height);
        return landscape ? PaperSize{more, less} : PaperSize{less, more};
    }

    /// Whether it is the same paper; there is more than one way to round.
    bool isLike(PaperSize other) const {
        return std::abs(width - other.width) < 1.5 && std::abs(height - other.height) < 1.5;
    }
};

inline constexpr double PointsPerMillimetre = 72 / 25.4;

/// A paper by its name, as it is written on the command line and shown to people.
struct NamedPaper {
    std::string_view name;
    std::string_view shown;
    PaperSize size;
};
inline constexpr std::array<NamedPaper, 4> NamedPapers{{
    {"a4", "A4", {595.276, 841.89}},  // 210 mm by 297 mm
    {"letter", "Letter", {612, 792}}, // 8.5 in by 11 in
    {"a5", "A5", {419.528, 595.276}}, // 148 mm by 210 mm
    {"legal", "Legal", {612, 1008}},  // 8.5 in by 14 in
}};

} // namespace tessaly
