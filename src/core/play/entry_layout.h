#pragma once

#include <algorithm>
#include <string_view>

namespace tessaly {

/// Pencil marks stand in two rows of three places:
///
///     0 1 2
///     3 4 5
inline constexpr int MarkPlaces = 6;
inline constexpr int MarksInARow = 3;

/// Calls `onNumber(digit)` for an entry that is a placed number, and otherwise `onMark(digit,
/// place)` for each of its pencil marks. Marks fill the places from the last one backwards, so that
/// the one typed last stands in the lower right place.
template <class OnNumber, class OnMark>
void layOutEntry(std::string_view entry, OnNumber onNumber, OnMark onMark) {
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    if (entry.size() == 1 && isDigit(entry[0])) {
        onNumber(entry[0] - '0');
        return;
    }
    const int count = std::min(static_cast<int>(entry.size()), MarkPlaces);
    for (int i = 0; i < count; ++i)
        if (const char c = entry[static_cast<std::size_t>(i)]; isDigit(c))
            onMark(c - '0', MarkPlaces - count + i);
}

} // namespace tessaly
