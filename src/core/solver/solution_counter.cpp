#include "core/solver/solution_counter.h"

#include "core/board/digit_set.h"
#include "core/solver/board_planes.h"

#include <array>

namespace tessaly {
namespace {

using planes::DigitPlanes;
using planes::Word;

/// The digits that every cell may still hold: of cell k in all hexagons at once.
class Candidates {
public:
    enum class State { Impossible, Open, Solved };

    Candidates() {
        m_cells.fill({planes::EveryHexagon, planes::EveryHexagon, planes::EveryHexagon});
    }

    /// Leaves a cell only those of its digits that `digits` has.
    void restrict(CellId cell, DigitSet digits) {
        DigitPlanes& words = cellPlanes(cell);
        for (int digit = 1; digit <= CellCount; ++digit)
            if (!digits.contains(digit))
                words[planes::wordOf(digit)] &= ~planes::bitOf(cell.hexagon, digit);
    }

    DigitSet at(CellId cell) const {
        const DigitPlanes& words = m_cells[planes::sideIndex(cell)];
        DigitSet digits;
        for (int digit = 1; digit <= CellCount; ++digit)
            if ((words[planes::wordOf(digit)] & planes::bitOf(cell.hexagon, digit)) != 0)
                digits = digits | DigitSet::of(digit);
        return digits;
    }

    /// Draws every conclusion: the two cells of a side hold the same; a settled digit leaves the
    /// other cells of its hexagon; a digit with one place left is settled there.
    State conclude() {
        State state = State::Open;
        for (auto before = m_cells; state == State::Open; before = m_cells) {
            matchSides();
            state = settle();
            if (state != State::Open || m_cells == before)
                break;
        }
        return state;
    }

    /// The open cell to guess at: one of two candidates if there is any.
    CellId openCell() const;

private:
    DigitPlanes& cellPlanes(CellId cell) { return m_cells[planes::sideIndex(cell)]; }

    /// The cells with one candidate left.
    struct Settled {
        /// By position; all bits of such a cell.
        std::array<Word, CellCount> single;
        /// What they hold.
        DigitPlanes placed;
        /// A cell has no candidate, or two of a hexagon hold the same.
        bool conflict;
        bool all;
    };

    void matchSides();
    State settle();
    Settled findSettled() const;
    void settleLone(const DigitPlanes& again);

    std::array<DigitPlanes, CellCount> m_cells{};
};

void Candidates::matchSides() {
    constexpr std::size_t Half = CellCount / 2;
    for (std::size_t side = 0; side < Half; ++side)
        for (std::size_t i = 0; i < planes::WordCount; ++i) {
            Word& here = m_cells[side][i];
            Word& there = m_cells[side + Half][i];
            const Word inner = here & planes::InnerSides[side];
            const Word innerThere = there & planes::InnerSides[side + Half];
            here &=
                planes::shifted(innerThere, planes::Step[side + Half]) | ~planes::InnerSides[side];
            there &= planes::shifted(inner, planes::Step[side]) | ~planes::InnerSides[side + Half];
        }
}

/// In one hexagon no digit helps another: all hexagons at once.
Candidates::State Candidates::settle() {
    const Settled settled = findSettled();
    if (settled.conflict)
        return State::Impossible;
    if (settled.all)
        return State::Solved;

    DigitPlanes seen{};
    DigitPlanes again{};
    for (std::size_t cell = 0; cell < CellCount; ++cell)
        for (std::size_t i = 0; i < planes::WordCount; ++i) {
            Word& word = m_cells[cell][i];
            word &= settled.single[cell] | ~settled.placed[i];
            again[i] |= seen[i] & word;
            seen[i] |= word;
        }
    if ((seen[0] & seen[1] & seen[2]) != planes::EveryHexagon)
        return State::Impossible;
    settleLone(again);
    return State::Open;
}

Candidates::Settled Candidates::findSettled() const {
    Settled settled{};
    Word conflict = 0;
    Word allSingle = planes::EveryHexagon;
    for (std::size_t cell = 0; cell < CellCount; ++cell) {
        const auto& [a, b, c] = m_cells[cell];
        conflict |= planes::EveryHexagon & ~planes::eitherHalf(a | b | c);
        settled.single[cell] = planes::exactlyOne(m_cells[cell]);
        allSingle &= settled.single[cell];
        for (std::size_t i = 0; i < planes::WordCount; ++i) {
            const Word placed = m_cells[cell][i] & settled.single[cell];
            conflict |= settled.placed[i] & placed;
            settled.placed[i] |= placed;
        }
    }
    settled.conflict = conflict != 0;
    settled.all = allSingle == planes::EveryHexagon;
    return settled;
}

/// A digit that no other cell of the hexagon may hold settles its cell. `again` has the digits that
/// two cells or more may hold.
void Candidates::settleLone(const DigitPlanes& again) {
    for (DigitPlanes& cell : m_cells) {
        DigitPlanes lone;
        Word anyLone = 0;
        for (std::size_t i = 0; i < planes::WordCount; ++i) {
            lone[i] = cell[i] & ~again[i];
            anyLone |= lone[i];
        }
        const Word others = ~planes::eitherHalf(anyLone);
        for (std::size_t i = 0; i < planes::WordCount; ++i)
            cell[i] &= others | lone[i];
    }
}

CellId Candidates::openCell() const {
    CellId best;
    int fewest = CellCount + 1;
    for (CellId cell : AllCells) {
        const int size = at(cell).size();
        if (size == 2)
            return cell;
        if (size > 2 && size < fewest) {
            fewest = size;
            best = cell;
        }
    }
    return best;
}

class Search {
public:
    explicit Search(const CountLimits& limits)
        : m_limits(limits) {}

    void run(Candidates candidates) {
        switch (candidates.conclude()) {
        case Candidates::State::Impossible:
            return;
        case Candidates::State::Solved:
            ++m_count.found;
            return;
        case Candidates::State::Open:
            break;
        }
        const CellId cell = candidates.openCell();
        for (DigitSet rest = candidates.at(cell); !rest.empty() && mayGoOn();
             rest = rest.withoutFirst()) {
            Candidates guess = candidates;
            guess.restrict(cell, DigitSet::of(rest.first()));
            run(guess);
        }
    }

    const SolutionCount& count() const { return m_count; }

private:
    bool mayGoOn() {
        if (m_count.found >= m_limits.solutions)
            return false;
        m_count.isCertain = m_guesses++ < m_limits.guesses;
        return m_count.isCertain;
    }

    CountLimits m_limits;
    SolutionCount m_count;
    std::int64_t m_guesses = 0;
};

} // namespace

SolutionCount countSolutions(const Board& board, const CountLimits& limits) {
    Candidates candidates;
    for (CellId cell : AllCells)
        if (board.FixedCell[cell] && cell.hexagon != board.BlankHex)
            candidates.restrict(cell, DigitSet::fromText(board.SolNum[cell]));
    Search search(limits);
    search.run(candidates);
    return search.count();
}

} // namespace tessaly
