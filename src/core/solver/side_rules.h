#pragma once

#include "core/solver/board_planes.h"
#include "core/solver/packed_board.h"

#include <array>

namespace tessaly {

/// The directions in which sides lie. A side is side 1, 2 or 3 (index 0, 1, 2) of the hexagon
/// below it or to its right, where its bit stands, and side 4, 5 or 6 of the one across:
///
///            \   across   /
///             \__________/
///             /   2      \                  across 2:  b - 1
///         1  /            \  3              across 1:  b - 6,  across 3:  b + 5
///           /    bit b     \                .
inline constexpr std::size_t SideDirections = 3;

/// A set of the 42 sides that two hexagons share: for each direction a plane, in both halves of its
/// word.
class SideSet {
public:
    constexpr SideSet() = default;
    constexpr explicit SideSet(const std::array<planes::Word, SideDirections>& words)
        : m_words(words) {}

    /// All of them.
    static constexpr SideSet all() {
        return SideSet({planes::InnerSides[0], planes::InnerSides[1], planes::InnerSides[2]});
    }
    /// The side of a cell; none of one on the rim.
    static constexpr SideSet of(CellId cell) {
        const CellId across = SideLink[cell];
        const CellId here = cell.position <= opposite(CellCount) ? cell : across;
        SideSet set;
        if (across)
            set.m_words[planes::sideIndex(here)] =
                planes::inBothHalves(planes::hexagonBit(here.hexagon));
        return set;
    }

    constexpr planes::Word operator[](std::size_t direction) const { return m_words[direction]; }
    constexpr bool empty() const { return (m_words[0] | m_words[1] | m_words[2]) == 0; }
    constexpr bool contains(CellId cell) const { return !(*this & of(cell)).empty(); }

    friend constexpr SideSet operator|(const SideSet& a, const SideSet& b) {
        return SideSet({a[0] | b[0], a[1] | b[1], a[2] | b[2]});
    }
    friend constexpr SideSet operator&(const SideSet& a, const SideSet& b) {
        return SideSet({a[0] & b[0], a[1] & b[1], a[2] & b[2]});
    }
    friend constexpr SideSet operator-(const SideSet& a, const SideSet& b) {
        return SideSet({a[0] & ~b[0], a[1] & ~b[1], a[2] & ~b[2]});
    }
    friend constexpr bool operator==(const SideSet&, const SideSet&) = default;

private:
    std::array<planes::Word, SideDirections> m_words{};
};

/// For each direction the digits that sides hold, or may hold.
using SideDigits = std::array<planes::DigitPlanes, SideDirections>;

/// The digits of a filling's sides.
SideDigits sideDigits(const HexagonWords& filling);

/// How far the rules lead on a board whose solution is known and whose cells on the rim are given.
///
/// There is nothing to find out but which sides are open still. A hexagon lacks the digits of its
/// open sides, an open side may hold what both of its hexagons lack, and as soon as a rule settles
/// a side it holds its digit of the solution. Settling more never makes a rule settle less. So all
/// sides that a rule settles are settled together, and the end is where the rules end one by one.
class SideRules {
public:
    /// `solution` must outlive this.
    SideRules(const SideDigits& solution, const SideSet& open)
        : m_solution(&solution)
        , m_open(open) {}

    const SideSet& open() const { return m_open; }
    void settle(const SideSet& sides) { m_open = m_open - sides; }

    /// Applies rules 1 to 3, and rule 4 where these lead no further and it is allowed, until
    /// `wanted` are settled (then true) or no more sides are.
    bool deduce(const SideSet& wanted, bool useXcells);
    /// The same until all sides are settled.
    bool deduceEverySide(bool useXcells) { return deduce(SideSet::all(), useXcells); }

private:
    void findCandidates();
    SideSet settledByHexagons() const;
    SideSet settledByCorners() const;

    const SideDigits* m_solution;
    SideSet m_open;
    /// What each open side may hold.
    SideDigits m_candidates{};
};

} // namespace tessaly
