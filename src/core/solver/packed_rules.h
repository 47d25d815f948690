#pragma once

#include "core/solver/packed_board.h"

#include <array>
#include <cstdint>
#include <span>
#include <string>

namespace tessaly {

/// Which hexagons the rules leave out; `NoHexagon` leaves out none.
struct LeftOut {
    /// The hexagon that the rules for single hexagons pass over.
    int skipHex = NoHexagon;
    /// The hexagon whose xcells the xcell rule passes over.
    int blankHex = NoHexagon;
};

/// A digit that the xcell rule puts into a cell.
struct XcellPlacement {
    CellId cell;
    int digit = 0;
};

/// What the xcell rule finds at one xcell.
struct XcellFinding {
    /// Whether the six cells admit exactly three digits.
    bool threeDigits = false;
    int count = 0;
    std::array<XcellPlacement, 6> placements{};

    std::span<const XcellPlacement> all() const {
        return {placements.data(), static_cast<std::size_t>(count)};
    }
};

/// The four deduction rules on packed cells. Every rule adds one to `counter` for each cell that it
/// changes; GetCandidates sets it to -1 when it empties a cell, and stops there.
class PackedRules {
public:
    using Texts = Grid<std::string>;

    /// `texts` are the entries that the cells were packed from; the xcell rule looks up unusual
    /// ones there. Without any, no cell may be marked as unusual.
    explicit PackedRules(const HexagonWords& cells, LeftOut leftOut = {},
                         const Texts* texts = nullptr);

    /// Copies settled cells across their sides.
    void FixNeighbours();
    /// Gives every open cell the digits that are settled neither in its own hexagon nor in the one
    /// across its side.
    void GetCandidates();
    /// Settles each digit that has only one cell left in its hexagon.
    void FixSingles();
    /// Settles the pairs at each xcell: the three pairs around a corner carry three different
    /// digits, so where six cells admit only three, a digit with two cells left belongs in both.
    void FixXcellPairs();
    XcellFinding examineXcell(int xcell) const;
    /// Puts a digit into a cell of an xcell if that is open still; whether it was.
    bool place(XcellPlacement placement);

    /// Rules 1, 2, 3, 4, 1 over and over until a pass leaves the counter at 0. `yield` is called
    /// before every pass.
    template <class Yield>
    void solveByDeduction(const Yield& yield) {
        do {
            counter = 0;
            yield();
            FixNeighbours();
            GetCandidates();
            FixSingles();
            FixXcellPairs();
            FixNeighbours();
        } while (counter != 0);
    }

    /// Rules 1 to 3, with the xcell rule only on demand, until nothing changes or GetCandidates
    /// meets a contradiction.
    template <class Yield>
    void solveBasic(bool useXcells, const Yield& yield) {
        counter = 0;
        for (;;) {
            yield();
            FixNeighbours();
            GetCandidates();
            if (counter == -1)
                return;
            FixSingles();
            if (useXcells)
                FixXcellPairs();
            FixNeighbours();
            if (counter == 0)
                return;
            counter = 0;
        }
    }

    const PackedBoard& board() const { return m_board; }
    /// Settles a cell.
    void settle(CellId cell, int digit);

    std::int32_t counter = 0;

private:
    void copyAcross(int hexagon);
    bool fixCandidates(int hexagon);
    void settleSingles(int hexagon);
    bool admitsThreeDigits(int xcell) const;
    unsigned digitsInTwoPlaces(int xcell) const;
    int occurrences(CellId cell, int digit) const;

    PackedBoard m_board;
    LeftOut m_leftOut;
    const Texts* m_texts;
};

/// The answer of the rules' `CheckHexagons` on packed cells.
int CheckHexagons(const PackedBoard& board, int leftOut);

} // namespace tessaly
