#pragma once

#include <string_view>

namespace tessaly {

/// The number that a text starts with, blanks and a "+" before it allowed; 0 when there is none.
/// One beyond all bounds is the largest there is, or 0 when it is negative.
double leadingNumber(std::string_view text);

/// The whole part of that number, as far as an `int` goes.
int leadingWholeNumber(std::string_view text);

} // namespace tessaly
