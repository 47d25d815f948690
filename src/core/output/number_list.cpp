#include "core/output/number_list.h"

#include "core/base/text.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace tessaly {
namespace {

std::optional<int> numberIn(std::string_view text) {
    text = trimmed(text);
    int number = 0;
    const char* end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || rest != end)
        return {};
    return number;
}

/// "7", "20-24" or "90-".
Outcome readRange(std::string_view piece, NumberRange& range) {
    const auto problem = [piece](std::string_view what) {
        return Outcome::failed("\"" + std::string(trimmed(piece)) + "\" " + std::string(what));
    };
    const std::size_t dash = piece.find('-');
    const auto first = numberIn(piece.substr(0, dash));
    std::optional<int> last = first;
    if (dash != std::string_view::npos)
        last = isBlank(piece.substr(dash + 1)) ? std::optional(NumberRange::OpenEnd)
                                               : numberIn(piece.substr(dash + 1));
    if (!first || !last)
        return problem("is neither a number nor two like 20-24");
    if (*first < 1)
        return problem("begins below 1, the first puzzle's number");
    if (*last < *first)
        return problem("ends before it begins");
    range = {*first, *last};
    return Outcome::done();
}

} // namespace

Outcome NumberList::read(std::string_view text, NumberList& list) {
    NumberList all;
    if (isBlank(text))
        return Outcome::failed("the list of puzzles is empty");
    for (std::size_t start = 0; start <= text.size();) {
        const std::size_t end = std::min(text.find(',', start), text.size());
        NumberRange range;
        if (Outcome read = readRange(text.substr(start, end - start), range); !read.ok())
            return read;
        all.add(range);
        start = end + 1;
    }
    list = std::move(all);
    return Outcome::done();
}

/// Joins what overlaps the new range, or follows or precedes it at once.
void NumberList::add(NumberRange range) {
    const auto endsBefore = [](const NumberRange& each, int first) {
        return each.last < first - 1;
    };
    const auto begin = std::lower_bound(m_ranges.begin(), m_ranges.end(), range.first, endsBefore);
    auto end = begin;
    for (; end != m_ranges.end() && end->first - 1 <= range.last; ++end) {
        range.first = std::min(range.first, end->first);
        range.last = std::max(range.last, end->last);
    }
    m_ranges.insert(m_ranges.erase(begin, end), range);
}

bool NumberList::contains(int number) const {
    const auto isBefore = [](const NumberRange& each, int other) { return each.last < other; };
    const auto found = std::lower_bound(m_ranges.begin(), m_ranges.end(), number, isBefore);
    return found != m_ranges.end() && found->first <= number;
}

int NumberList::firstMissing(int count) const {
    for (const auto& [first, last] : m_ranges) {
        if (first > count)
            return first;
        if (last > count && last != NumberRange::OpenEnd)
            return count + 1;
    }
    return 0;
}

std::string NumberList::text() const {
    std::string text;
    for (const auto& [first, last] : m_ranges) {
        text.append(text.empty() ? "" : ", ").append(std::to_string(first));
        if (last > first)
            text.append("-").append(last == NumberRange::OpenEnd ? "" : std::to_string(last));
    }
    return text;
}

} // namespace tessaly
