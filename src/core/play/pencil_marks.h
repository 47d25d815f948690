#pragma once

#include <string>
#include <string_view>

namespace tessaly {

/// Pencil marks as an entry holds them: their digits in the order in which they were made. A lone
/// one has a blank before it, for one character alone is a number.

/// The most marks that a cell has room for.
inline constexpr std::size_t MostMarks = 6;

/// The digits of an entry, be it marks or a number.
std::string digitsOf(std::string_view entry);
/// The entry that holds these digits as marks; "" for none.
std::string marksOf(const std::string& digits);
/// Whether a text can be what a cell holds.
bool isEntry(std::string_view text);

/// The entry with a mark made or, if it is there, taken. A number becomes a mark beside it.
std::string withMarkTurned(const std::string& entry, char digit);
/// The entry without that mark; a number stays.
std::string withoutMark(const std::string& entry, char digit);

} // namespace tessaly
