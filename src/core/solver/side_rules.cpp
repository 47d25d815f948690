#include "core/solver/side_rules.h"

#include <bit>
#include <type_traits>

namespace tessaly {
namespace {

using planes::DigitPlanes;
using planes::Word;

/// Does something for each direction as a constant, so that all shifts are by constants.
template <class Work>
void forEachDirection(const Work& work) {
    work(std::integral_constant<std::size_t, 0>());
    work(std::integral_constant<std::size_t, 1>());
    work(std::integral_constant<std::size_t, 2>());
}

/// From the hexagon where a side's bit stands to the one across the side.
Word across(Word word, std::size_t direction) {
    return planes::shifted(word, planes::Step[direction]);
}
/// And back.
Word back(Word word, std::size_t direction) {
    return planes::shifted(word, -planes::Step[direction]);
}

/// A corner is the left one or the right one of a hexagon b. The three sides that end there are one
/// of each direction, and in corners of one kind they lie alike:
///
///     b - 6  | 1                              3 |  b + 5        1, 2, 3: the side's direction,
///      ______|     b                    b     __|_______        written where its bit stands
///       2    |                                1 |  2
///     b - 5  | 3                                |  b + 6
struct CornerKind {
    /// How far from the bit of that hexagon the bit of each side is.
    std::array<int, SideDirections> offsets;
    /// The hexagons that have such a corner.
    Word hexagons;
};
constexpr std::array<CornerKind, 2> CornerKinds{{
    {{0, -5, -5}, planes::InnerSides[0] & planes::InnerSides[5]},
    {{6, 6, 0}, planes::InnerSides[2] & planes::InnerSides[3]},
}};
static_assert(std::popcount(CornerKinds[0].hexagons) + std::popcount(CornerKinds[1].hexagons) ==
              2 * XcellCount);

} // namespace

SideDigits sideDigits(const HexagonWords& filling) {
    SideDigits digits{};
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon)
        for (std::size_t direction = 0; direction < SideDirections; ++direction) {
            const int position = static_cast<int>(direction) + 1;
            const unsigned bits =
                word::byteAt(filling[static_cast<std::size_t>(hexagon)], position);
            if (const DigitSet digit = DigitSet::fromBits(bits); !digit.empty())
                digits[direction][planes::wordOf(digit.first())] |=
                    planes::bitOf(hexagon, digit.first());
        }
    for (std::size_t direction = 0; direction < SideDirections; ++direction)
        for (Word& word : digits[direction])
            word &= planes::InnerSides[direction];
    return digits;
}

bool SideRules::deduce(const SideSet& wanted, bool useXcells) {
    while (!(m_open & wanted).empty()) {
        findCandidates();
        SideSet settled = settledByHexagons();
        if (settled.empty() && useXcells)
            settled = settledByCorners();
        if (settled.empty())
            return false;
        settle(settled);
    }
    return true;
}

void SideRules::findCandidates() {
    DigitPlanes lacks{};
    forEachDirection([&](auto direction) {
        for (std::size_t i = 0; i < planes::WordCount; ++i) {
            const Word digits = (*m_solution)[direction][i] & m_open[direction];
            lacks[i] |= digits | across(digits, direction);
        }
    });
    forEachDirection([&](auto direction) {
        for (std::size_t i = 0; i < planes::WordCount; ++i)
            m_candidates[direction][i] = lacks[i] & back(lacks[i], direction) & m_open[direction];
    });
}

/// A side with one candidate is settled, and one that alone can hold a digit in one of its
/// hexagons.
SideSet SideRules::settledByHexagons() const {
    DigitPlanes seen{};
    DigitPlanes again{};
    forEachDirection([&](auto direction) {
        for (std::size_t i = 0; i < planes::WordCount; ++i) {
            const Word here = m_candidates[direction][i];
            const Word there = across(here, direction);
            again[i] |= (seen[i] & here) | ((seen[i] | here) & there);
            seen[i] |= here | there;
        }
    });
    std::array<Word, SideDirections> settled{};
    forEachDirection([&](auto direction) {
        const DigitPlanes& digits = m_candidates[direction];
        Word lone = 0;
        for (std::size_t i = 0; i < planes::WordCount; ++i)
            lone |= digits[i] & ~(again[i] & back(again[i], direction));
        settled[direction] = planes::eitherHalf(lone) | planes::exactlyOne(digits);
    });
    return SideSet(settled);
}

/// The sides at a corner hold three different digits: where they admit no more than three, one
/// that only one side admits stands there.
SideSet SideRules::settledByCorners() const {
    std::array<Word, SideDirections> settled{};
    for (const CornerKind& kind : CornerKinds) {
        SideDigits digits;
        DigitPlanes any{};
        DigitPlanes once{};
        for (std::size_t i = 0; i < planes::WordCount; ++i) {
            Word several = 0;
            for (std::size_t direction = 0; direction < SideDirections; ++direction) {
                const Word open = m_candidates[direction][i];
                const Word held = (*m_solution)[direction][i] & ~m_open[direction];
                const Word moved = planes::shifted(open | held, -kind.offsets[direction]);
                digits[direction][i] = moved;
                several |= any[i] & moved;
                any[i] |= moved;
            }
            once[i] = any[i] & ~several;
        }
        const Word corners = planes::exactlyThree(any) & kind.hexagons;
        for (std::size_t direction = 0; direction < SideDirections; ++direction) {
            Word lone = 0;
            for (std::size_t i = 0; i < planes::WordCount; ++i)
                lone |= digits[direction][i] & once[i];
            settled[direction] |=
                planes::shifted(planes::eitherHalf(lone) & corners, kind.offsets[direction]) &
                m_open[direction];
        }
    }
    return SideSet(settled);
}

} // namespace tessaly
