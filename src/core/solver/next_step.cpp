#include "core/solver/next_step.h"

#include <algorithm>

namespace tessaly {
namespace {

/// A cell for each of the three sides that end in a corner.
using CornerSides = std::array<CellId, 3>;

/// Which of the two cells stands for a side.
constexpr CellId sideOf(CellId cell) {
    const CellId across = SideLink[cell];
    return across && cell.position > opposite(cell.position) ? across : cell;
}

constexpr std::array<CornerSides, XcellCount + 1> makeCornerSides() {
    std::array<CornerSides, XcellCount + 1> table{};
    for (std::size_t xcell = 1; xcell <= XcellCount; ++xcell) {
        std::size_t count = 0;
        for (CellId cell : XcellTable[xcell])
            if (sideOf(cell) == cell)
                table[xcell][count++] = cell;
    }
    return table;
}

constexpr std::array<CornerSides, XcellCount + 1> CornerSideTable = makeCornerSides();

/// What the cells must hold for one reason.
struct Conclusions {
    /// Empty where the reason says nothing.
    Grid<DigitSet> digits;
    /// The corner that says so.
    Grid<int> xcells;
};

/// Draws the conclusions of one reason at a time.
class Thinker {
public:
    explicit Thinker(const PlayerView& view)
        : m_view(view) {}

    Conclusions conclude(Reason reason) {
        m_found = {};
        if (reason == Reason::Across)
            copyAcross();
        if (reason == Reason::Cell)
            findCells();
        for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon) {
            if (reason == Reason::Last)
                findLast(hexagon);
            if (reason == Reason::Place)
                findPlaces(hexagon);
        }
        for (int xcell = 1; reason == Reason::Xcell && xcell <= XcellCount; ++xcell)
            lookAtCorner(xcell);
        return m_found;
    }

private:
    void copyAcross() {
        for (CellId cell : AllCells)
            if (!m_view.isShown(cell) && !m_view.isInBlank(cell))
                m_found.digits[cell] = m_view.known(cell);
    }

    void findCells() {
        for (CellId cell : AllCells)
            if (m_view.isOpen(cell))
                conclude(cell, m_view.candidates(cell));
    }

    void findLast(int hexagon) {
        std::vector<CellId> open;
        forEachOpenCell(hexagon, [&open](CellId cell) { open.push_back(cell); });
        if (open.size() == 1)
            conclude(open.front(), DigitSet::all() - m_view.placed(hexagon));
    }

    void findPlaces(int hexagon) {
        DigitSet seen, again;
        forEachOpenCell(hexagon, [&](CellId cell) {
            const DigitSet digits = m_view.candidates(cell);
            again = again | (seen & digits);
            seen = seen | digits;
        });
        forEachOpenCell(hexagon, [this, once = seen - again](CellId cell) {
            conclude(cell, m_view.candidates(cell) & once);
        });
    }

    void lookAtCorner(int xcell) {
        const CornerSides& sides = CornerSideTable[static_cast<std::size_t>(xcell)];
        DigitSet seen, again;
        for (CellId side : sides) {
            const DigitSet digits = m_view.candidates(side);
            again = again | (seen & digits);
            seen = seen | digits;
        }
        if (seen.size() != static_cast<int>(sides.size()))
            return;
        for (CellId side : sides)
            for (CellId cell : {side, SideLink[side]})
                if (m_view.isOpen(cell) && conclude(cell, m_view.candidates(cell) - again))
                    m_found.xcells[cell] = xcell;
    }

    template <class Visit>
    void forEachOpenCell(int hexagon, const Visit& visit) const {
        for (int position = 1; position <= CellCount; ++position)
            if (const CellId cell{hexagon, position}; m_view.isOpen(cell))
                visit(cell);
    }

    bool conclude(CellId cell, DigitSet digits) {
        if (digits.size() != 1)
            return false;
        m_found.digits[cell] = digits;
        return true;
    }

    const PlayerView& m_view;
    Conclusions m_found;
};

/// Collects the cells that prove a step.
class Prover {
public:
    explicit Prover(const PlayerView& view)
        : m_view(view) {}

    std::vector<CellId> proofOf(const Step& step) {
        switch (step.reason) {
        case Reason::Across:
            add(m_view.whereShown(step.cell));
            break;
        case Reason::Last:
        case Reason::Place:
            proveOnlyPlace(step);
            break;
        case Reason::Cell:
            exclude(DigitSet::all() - DigitSet::of(step.digit), step.cell);
            break;
        case Reason::Xcell:
            proveCorner(step);
            break;
        }
        return m_proof;
    }

private:
    void proveOnlyPlace(const Step& step) {
        for (int position = 1; position <= CellCount; ++position) {
            const CellId other{step.cell.hexagon, position};
            if (other == step.cell)
                continue;
            if (m_view.isOpen(other))
                exclude(DigitSet::of(step.digit), other);
            else
                add(m_view.whereShown(other));
        }
    }

    void proveCorner(const Step& step) {
        const CornerSides& sides = CornerSideTable[static_cast<std::size_t>(step.xcell)];
        DigitSet possible;
        for (CellId side : sides)
            possible = possible | m_view.candidates(side);
        for (CellId side : sides) {
            const bool isOther = side != sideOf(step.cell);
            const DigitSet excluded = DigitSet::all() - possible;
            if (m_view.isOpen(side))
                exclude(isOther ? excluded | DigitSet::of(step.digit) : excluded, side);
            else
                add(m_view.whereShown(side));
        }
    }

    /// Shows why a cell cannot hold some numbers: they stand in one of its two hexagons.
    void exclude(DigitSet digits, CellId cell) {
        for (; !digits.empty(); digits = digits.withoutFirst()) {
            const CellId here = m_view.holderOf(digits.first(), cell.hexagon);
            add(here ? here : m_view.holderOf(digits.first(), SideLink[cell].hexagon));
        }
    }

    void add(CellId cell) {
        if (std::find(m_proof.begin(), m_proof.end(), cell) == m_proof.end())
            m_proof.push_back(cell);
    }

    const PlayerView& m_view;
    std::vector<CellId> m_proof;
};

/// The first cell that a conclusion was drawn for, the blank hexagon's last.
CellId firstCell(const Conclusions& found, const PlayerView& view) {
    for (bool inBlank : {false, true})
        for (CellId cell : AllCells)
            if (view.isInBlank(cell) == inBlank && !found.digits[cell].empty())
                return cell;
    return {};
}

} // namespace

std::optional<Step> nextStep(const Board& board, const WithheldDigits& withheld) {
    const PlayerView view(board, withheld);
    for (const ReasonEntry& entry : Reasons) {
        const Conclusions found = Thinker(view).conclude(entry.reason);
        if (const CellId cell = firstCell(found, view)) {
            Step step{entry.reason, cell, found.digits[cell].first(), {}, found.xcells[cell]};
            step.proof = Prover(view).proofOf(step);
            return step;
        }
    }
    return std::nullopt;
}

void take(const Step& step, Board& board, WithheldDigits& withheld) {
    if (step.cell.hexagon == board.BlankHex)
        withheld[static_cast<std::size_t>(step.cell.position)] = step.digit;
    else
        board.CellNum[step.cell] = std::to_string(step.digit);
}

int countOpenSteps(const Board& board, const WithheldDigits& withheld) {
    const PlayerView view(board, withheld);
    Grid<bool> sides;
    for (Reason reason : {Reason::Last, Reason::Place, Reason::Cell, Reason::Xcell}) {
        const Conclusions found = Thinker(view).conclude(reason);
        for (CellId cell : AllCells)
            if (!found.digits[cell].empty())
                sides[sideOf(cell)] = true;
    }
    return static_cast<int>(std::count_if(AllCells.begin(), AllCells.end(),
                                          [&sides](CellId cell) { return sides[cell]; }));
}

Way wayFromGivens(Board board) {
    board.ResetToGivens();
    Way way;
    WithheldDigits withheld{};
    while (auto step = nextStep(board, withheld)) {
        take(*step, board, withheld);
        way.steps.push_back(std::move(*step));
    }
    way.end = std::move(board);
    return way;
}

} // namespace tessaly
