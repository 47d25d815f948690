#pragma once

#include "core/board/digit_set.h"
#include "core/board/tables.h"
#include "core/board/vocabulary.h"

#include <array>
#include <cstdint>

/// Something about all hexagons at once, so that one machine operation works on the whole board.
namespace tessaly::planes {

/// A plane has a bit for each hexagon. The bits lie so that the neighbour across one side is the
/// same number of bits away everywhere; a column of the board is a run of bits, and the sixth bit
/// of each run stays empty:
///
///     column       1    2    3    4    5           from bit b, the hexagon across side
///                            0                      1 (upper left)   is at b - 6
///                       7        18                 2 (top)               b - 1
///                  2         13       24            3 (upper right)       b + 5
///                       8        19                 4 (lower right)       b + 6
///                  3         14       25            5 (bottom)            b + 1
///                       9        20                 6 (lower left)        b - 5
///                  4         15       26
///                      10        21
///                            16
///
/// Two planes share a word.
using Word = std::uint64_t;

inline constexpr int HalfBits = 32;

/// A plane for each digit: 1, 3, 5 the lower halves of the words, 2, 4, 6 the upper ones.
inline constexpr std::size_t WordCount = 3;
using DigitPlanes = std::array<Word, WordCount>;

constexpr Word inBothHalves(Word half) {
    return half | (half << HalfBits);
}
/// What either half of a word holds, in both.
constexpr Word eitherHalf(Word word) {
    return word | (word >> HalfBits) | (word << HalfBits);
}
constexpr Word swapped(Word word) {
    return (word >> HalfBits) | (word << HalfBits);
}
constexpr Word bothHalves(Word word) {
    return word & swapped(word);
}

inline constexpr std::array<int, HexagonCount + 1> BitOf{-1, 12, 7, 18, 2, 13, 24, 8,  19, 3,
                                                         14, 25, 9, 20, 4, 15, 26, 10, 21, 16};

/// How many bits away the hexagon across side k (index 0 is side 1) lies.
inline constexpr std::array<int, CellCount> Step{-6, -1, 5, 6, 1, -5};

constexpr Word shifted(Word word, int by) {
    return by < 0 ? word >> -by : word << by;
}

constexpr Word hexagonBit(int hexagon) {
    return Word{1} << BitOf[static_cast<std::size_t>(hexagon)];
}

constexpr std::size_t wordOf(int digit) {
    return static_cast<std::size_t>(digit - 1) / 2;
}
constexpr Word bitOf(int hexagon, int digit) {
    return hexagonBit(hexagon) << (digit % 2 == 0 ? HalfBits : 0);
}

constexpr std::size_t sideIndex(CellId cell) {
    return static_cast<std::size_t>(cell.position - 1);
}

/// The hexagons for which exactly one of the six planes is set, in both halves.
constexpr Word exactlyOne(const DigitPlanes& digits) {
    const auto& [a, b, c] = digits;
    const Word any = a | b | c;
    const Word several = (a & b) | ((a | b) & c);
    return eitherHalf(any) & ~(eitherHalf(several) | bothHalves(any));
}

/// The hexagons for which exactly three of the six planes are set, in both halves: as many as one
/// half counts, so many the other lacks of three.
constexpr Word exactlyThree(const DigitPlanes& digits) {
    const auto& [a, b, c] = digits;
    const Word ones = a ^ b ^ c;
    const Word twos = (a & b) | ((a | b) & c);
    return (ones ^ swapped(ones)) & (twos ^ swapped(twos));
}

namespace detail {

constexpr Word makeEveryHexagon() {
    Word bits = 0;
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon)
        bits |= hexagonBit(hexagon);
    return bits;
}

constexpr std::array<Word, CellCount> makeInnerSides() {
    std::array<Word, CellCount> inner{};
    for (CellId cell : AllCells)
        if (SideLink[cell])
            inner[sideIndex(cell)] |= inBothHalves(hexagonBit(cell.hexagon));
    return inner;
}

constexpr bool stepsLeadAcrossSides() {
    for (CellId cell : AllCells) {
        const CellId across = SideLink[cell];
        if (across && BitOf[static_cast<std::size_t>(across.hexagon)] !=
                          BitOf[static_cast<std::size_t>(cell.hexagon)] + Step[sideIndex(cell)])
            return false;
    }
    return true;
}
static_assert(stepsLeadAcrossSides());

} // namespace detail

/// All hexagons, in both halves of a word.
inline constexpr Word EveryHexagon = inBothHalves(detail::makeEveryHexagon());
/// For each side the hexagons that have a neighbour across it, in both halves.
inline constexpr std::array<Word, CellCount> InnerSides = detail::makeInnerSides();

} // namespace tessaly::planes
