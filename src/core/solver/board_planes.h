#pragma once

#include "core/board/tables.h"
#include "core/board/vocabulary.h"

#include <array>
#include <cstdint>

namespace tessaly {

/// A plane says of all hexagons at once whether cell k may hold digit d, a bit for each hexagon.
/// The bits lie so that the neighbour across one side is the same number of bits away everywhere;
/// a column of the board is a run of bits, and the sixth bit of each run stays empty:
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
/// Two planes share a word: digits 1, 3, 5 the lower half, digits 2, 4, 6 the upper one.
namespace planes {

using Word = std::uint64_t;

inline constexpr int HalfBits = 32;
inline constexpr std::size_t WordsPerCell = 3;

constexpr Word twice(Word half) {
    return half | (half << HalfBits);
}
/// What either half of a word holds, in both.
constexpr Word eitherHalf(Word word) {
    return word | (word >> HalfBits) | (word << HalfBits);
}
constexpr Word bothHalves(Word word) {
    return word & ((word >> HalfBits) | (word << HalfBits));
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

constexpr Word makeEveryHexagon() {
    Word bits = 0;
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon)
        bits |= hexagonBit(hexagon);
    return bits;
}

constexpr std::array<Word, CellCount> makeInner() {
    std::array<Word, CellCount> inner{};
    for (CellId cell : AllCells)
        if (SideLink[cell])
            inner[static_cast<std::size_t>(cell.position - 1)] |= twice(hexagonBit(cell.hexagon));
    return inner;
}

/// All hexagons, in both halves of a word.
inline constexpr Word Every = twice(makeEveryHexagon());
/// For each side the hexagons that have a neighbour across it, in both halves.
inline constexpr std::array<Word, CellCount> Inner = makeInner();

constexpr bool stepsLeadAcrossSides() {
    for (CellId cell : AllCells) {
        const CellId across = SideLink[cell];
        if (across && BitOf[static_cast<std::size_t>(across.hexagon)] !=
                          BitOf[static_cast<std::size_t>(cell.hexagon)] +
                              Step[static_cast<std::size_t>(cell.position - 1)])
            return false;
    }
    return true;
}
static_assert(stepsLeadAcrossSides());

} // namespace planes
} // namespace tessaly
