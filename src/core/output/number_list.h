#pragma once

#include "core/base/outcome.h"

#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace tessaly {

/// Numbers from `first` to `last`, or to wherever a file ends.
struct NumberRange {
    static constexpr int OpenEnd = std::numeric_limits<int>::max();

    int first = 1;
    int last = OpenEnd;

    friend bool operator==(const NumberRange&, const NumberRange&) = default;
};

/// Some of a file's puzzles as people list them: "3, 7, 20-24, 90-". Each counts once, in whatever
/// order they are listed.
class NumberList {
public:
    /// No numbers.
    NumberList() = default;
    explicit NumberList(NumberRange range)
        : m_ranges{range} {}

    /// Reads a list; says of the first piece that is none what is wrong with it.
    static Outcome read(std::string_view text, NumberList& list);

    bool contains(int number) const;
    /// The largest; 0 of an empty list.
    int last() const { return m_ranges.empty() ? 0 : m_ranges.back().last; }
    /// The smallest that a file of `count` puzzles lacks; 0 when it has them all.
    int firstMissing(int count) const;
    /// The shortest way to write the list.
    std::string text() const;

private:
    void add(NumberRange range);

    /// Rising, and apart from each other.
    std::vector<NumberRange> m_ranges;
};

} // namespace tessaly
