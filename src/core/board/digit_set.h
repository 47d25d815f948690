#pragma once

#include "core/board/vocabulary.h"

#include <array>
#include <bit>
#include <cstdint>
#include <string>
#include <string_view>

namespace tessaly {

/// A set of the digits 1 to 6, one bit for each:
///
///     bit     7   6   5   4   3   2   1   0
///     digit   -   -   6   5   4   3   2   1
class DigitSet {
public:
    constexpr DigitSet() = default;

    static constexpr DigitSet all() { return fromBits(AllBits); }
    static constexpr DigitSet of(int digit) { return fromBits(1U << (digit - 1)); }
    static constexpr DigitSet fromBits(unsigned bits) {
        DigitSet set;
        set.m_bits = static_cast<std::uint8_t>(bits & AllBits);
        return set;
    }
    /// The digits 1 to 6 that a text holds; all other characters are passed over.
    static constexpr DigitSet fromText(std::string_view text) {
        DigitSet set;
        for (char c : text)
            if (c >= '1' && c <= '6')
                set = set | of(c - '0');
        return set;
    }

    constexpr unsigned bits() const { return m_bits; }
    constexpr bool empty() const { return m_bits == 0; }
    constexpr int size() const { return std::popcount(m_bits); }
    constexpr bool contains(int digit) const { return (m_bits & of(digit).m_bits) != 0; }
    /// The smallest digit; the set must not be empty.
    constexpr int first() const { return std::countr_zero(m_bits) + 1; }

    /// The set without its smallest digit.
    constexpr DigitSet withoutFirst() const { return fromBits(m_bits & (m_bits - 1U)); }

    /// The digits in ascending order.
    std::string text() const {
        std::string digits;
        for (int digit = 1; digit <= CellCount; ++digit)
            if (contains(digit))
                digits += static_cast<char>('0' + digit);
        return digits;
    }

    friend constexpr DigitSet operator|(DigitSet a, DigitSet b) {
        return fromBits(a.bits() | b.bits());
    }
    friend constexpr DigitSet operator&(DigitSet a, DigitSet b) {
        return fromBits(a.bits() & b.bits());
    }
    friend constexpr DigitSet operator-(DigitSet a, DigitSet b) {
        return fromBits(a.bits() & ~b.bits());
    }
    friend constexpr bool operator==(DigitSet, DigitSet) = default;

private:
    static constexpr unsigned AllBits = 0x3F;
    std::uint8_t m_bits = 0;
};

static_assert(DigitSet::fromText("6x0461") ==
              (DigitSet::of(1) | DigitSet::of(4) | DigitSet::of(6)));
static_assert((DigitSet::all() - DigitSet::of(1)).first() == 2);

} // namespace tessaly
