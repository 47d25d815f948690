#pragma once

#include "core/base/outcome.h"
#include "core/options/appearance.h"

#include <optional>
#include <string>
#include <string_view>

namespace tessaly {

/// A scheme in the library file is one header line, the scheme's name in lower case with ".col"
/// behind it, and one line for each of the slots 0 to 12:
///
///     xp.col
///      1; 1; 1              red; green; blue, each 0 to 255
///      240; 240; 240
///      ...
inline constexpr std::size_t StoredSlotCount = 13;
inline constexpr std::string_view SchemeExtension = ".col";

/// The header of the scheme that the user calls `name` (UTF-8).
std::string schemeHeader(std::string_view name);

/// `text` with its letters in lower case, as `schemeHeader` has them.
std::string lowerCase(std::string_view text);

/// The name that a line lists: what stands before its first ".col"; nothing when it has none.
std::optional<std::string_view> listedName(std::string_view line);

/// The 14 lines of a scheme, each with its line end.
std::string schemeRecord(const std::string& header, const SchemeColours& colours);

/// Reads a colour line; what follows the third number is ignored.
std::optional<Colour> parseColourLine(std::string_view line);

} // namespace tessaly
