#pragma once

#include "core/board/symmetry.h"

#include <array>
#include <string>
#include <string_view>

namespace tessaly {

/// How mirroring top and bottom changes the header of a record.
enum class TopBottomHeader {
    /// The blank hexagon and the hint go where their cells go.
    Follows,
    /// The blank hexagon becomes 20 minus its number and the hint position 7 minus itself. That is
    /// not where most hexagons go, but how the library's files have always been made.
    Subtracts,
};

/// The record of a puzzle mirrored or turned, progress included. `record` must be as `PuzzleRecord`
/// makes it.
std::string transformed(std::string_view record, const Symmetry& symmetry);

/// The record mirrored top to bottom, with a header of either kind.
std::string mirroredTopBottom(std::string_view record, TopBottomHeader header);

inline constexpr int VariantCount = 8;
using PuzzleVariants = std::array<std::string, VariantCount>;

/// A puzzle's record and its variants: mirrored left to right, top to bottom, on the rising and on
/// the falling diagonal, and turned by one, two and three sixths.
PuzzleVariants variantsOf(const std::string& record, TopBottomHeader header);

} // namespace tessaly
