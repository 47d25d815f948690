#pragma once

#include <string>
#include <string_view>

namespace tessaly {

/// What may stand on a line that counts as blank.
inline constexpr std::string_view BlankCharacters = " \t\r\n";

inline bool isBlank(std::string_view text) {
    return text.find_first_not_of(BlankCharacters) == std::string_view::npos;
}

/// `text` with every control character in it written out ("\x1b"), so that whatever a file is
/// called or holds, a terminal only shows it.
std::string printable(std::string_view text);

/// `text` without the blanks before and behind it.
std::string_view trimmed(std::string_view text);

/// The number that a text starts with, blanks and a "+" before it allowed; 0 when there is none.
/// One beyond all bounds is the largest there is, or 0 when it is negative.
double leadingNumber(std::string_view text);

/// The whole part of that number, as far as an `int` goes.
int leadingWholeNumber(std::string_view text);

} // namespace tessaly
