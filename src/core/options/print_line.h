#pragma once

#include <string_view>

namespace tessaly {

/// The width of border lines that a text means: the number at its start, rounded to a whole one,
/// halves to even, and at least 1. A text without a number gives 1, a number beyond all bounds the
/// largest there is.
int printLineWidth(std::string_view text);

} // namespace tessaly
