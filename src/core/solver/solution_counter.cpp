#include "core/solver/solution_counter.h"

#include "core/board/digit_set.h"
#include "core/board/tables.h"
#include "core/board/vocabulary.h"

#include <array>
#include <bit>
#include <cstdint>

namespace tessaly {
namespace {

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
using Word = std::uint64_t;

constexpr int HalfBits = 32;
constexpr std::size_t WordsPerCell = 3;

constexpr Word inBothHalves(Word half) {
    return half | (half << HalfBits);
}
/// What either half of a word holds, in both.
constexpr Word eitherHalf(Word word) {
    return word | (word >> HalfBits) | (word << HalfBits);
}
constexpr Word bothHalves(Word word) {
    return word & ((word >> HalfBits) | (word << HalfBits));
}

constexpr std::array<int, HexagonCount + 1> BitOf{-1, 12, 7, 18, 2, 13, 24, 8,  19, 3,
                                                  14, 25, 9, 20, 4, 15, 26, 10, 21, 16};

/// How many bits away the hexagon across side k (index 0 is side 1) lies.
constexpr std::array<int, CellCount> Step{-6, -1, 5, 6, 1, -5};

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

constexpr std::array<Word, CellCount> makeInnerSides() {
    std::array<Word, CellCount> inner{};
    for (CellId cell : AllCells)
        if (SideLink[cell])
            inner[static_cast<std::size_t>(cell.position - 1)] |=
                inBothHalves(hexagonBit(cell.hexagon));
    return inner;
}

/// All hexagons, in both halves of a word.
constexpr Word EveryHexagon = inBothHalves(makeEveryHexagon());
/// For each side the hexagons that have a neighbour across it, in both halves.
constexpr std::array<Word, CellCount> InnerSides = makeInnerSides();

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

using CellPlanes = std::array<Word, WordsPerCell>;

/// The digits that every cell may still hold.
class Candidates {
public:
    enum class State { Impossible, Open, Solved };

    Candidates() { m_cells.fill({EveryHexagon, EveryHexagon, EveryHexagon}); }

    /// Leaves a cell only those of its digits that `digits` has.
    void restrict(CellId cell, DigitSet digits) {
        CellPlanes& words = cellPlanes(cell);
        for (int digit = 1; digit <= CellCount; ++digit)
            if (!digits.contains(digit))
                words[wordOf(digit)] &= ~bitOf(cell.hexagon, digit);
    }

    DigitSet at(CellId cell) const {
        const CellPlanes& words = m_cells[static_cast<std::size_t>(cell.position - 1)];
        DigitSet digits;
        for (int digit = 1; digit <= CellCount; ++digit)
            if ((words[wordOf(digit)] & bitOf(cell.hexagon, digit)) != 0)
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
    static constexpr std::size_t wordOf(int digit) {
        return static_cast<std::size_t>(digit - 1) / 2;
    }
    static constexpr Word bitOf(int hexagon, int digit) {
        return hexagonBit(hexagon) << (digit % 2 == 0 ? HalfBits : 0);
    }
    CellPlanes& cellPlanes(CellId cell) {
        return m_cells[static_cast<std::size_t>(cell.position - 1)];
    }

    /// The cells with one candidate left.
    struct Settled {
        /// By position; all bits of such a cell.
        std::array<Word, CellCount> single;
        /// What they hold.
        CellPlanes placed;
        /// A cell has no candidate, or two of a hexagon hold the same.
        bool conflict;
        bool all;
    };

    void matchSides();
    State settle();
    Settled findSettled() const;
    void settleLone(const CellPlanes& again);

    std::array<CellPlanes, CellCount> m_cells{};
};

void Candidates::matchSides() {
    constexpr std::size_t Half = CellCount / 2;
    for (std::size_t side = 0; side < Half; ++side)
        for (std::size_t i = 0; i < WordsPerCell; ++i) {
            Word& here = m_cells[side][i];
            Word& there = m_cells[side + Half][i];
            const Word inner = here & InnerSides[side];
            const Word innerThere = there & InnerSides[side + Half];
            here &= shifted(innerThere, Step[side + Half]) | ~InnerSides[side];
            there &= shifted(inner, Step[side]) | ~InnerSides[side + Half];
        }
}

/// In one hexagon no digit helps another: all hexagons at once.
Candidates::State Candidates::settle() {
    const Settled settled = findSettled();
    if (settled.conflict)
        return State::Impossible;
    if (settled.all)
        return State::Solved;

    CellPlanes seen{};
    CellPlanes again{};
    for (std::size_t cell = 0; cell < CellCount; ++cell)
        for (std::size_t i = 0; i < WordsPerCell; ++i) {
            Word& word = m_cells[cell][i];
            word &= settled.single[cell] | ~settled.placed[i];
            again[i] |= seen[i] & word;
            seen[i] |= word;
        }
    if ((seen[0] & seen[1] & seen[2]) != EveryHexagon)
        return State::Impossible;
    settleLone(again);
    return State::Open;
}

Candidates::Settled Candidates::findSettled() const {
    Settled settled{};
    Word conflict = 0;
    Word allSingle = EveryHexagon;
    for (std::size_t cell = 0; cell < CellCount; ++cell) {
        const auto& [a, b, c] = m_cells[cell];
        const Word any = a | b | c;
        const Word several = (a & b) | ((a | b) & c);
        conflict |= EveryHexagon & ~eitherHalf(any);
        settled.single[cell] = eitherHalf(any) & ~(eitherHalf(several) | bothHalves(any));
        allSingle &= settled.single[cell];
        for (std::size_t i = 0; i < WordsPerCell; ++i) {
            const Word placed = m_cells[cell][i] & settled.single[cell];
            conflict |= settled.placed[i] & placed;
            settled.placed[i] |= placed;
        }
    }
    settled.conflict = conflict != 0;
    settled.all = allSingle == EveryHexagon;
    return settled;
}

/// A digit that no other cell of the hexagon may hold settles its cell. `again` has the digits that
/// two cells or more may hold.
void Candidates::settleLone(const CellPlanes& again) {
    for (CellPlanes& cell : m_cells) {
        CellPlanes lone;
        Word anyLone = 0;
        for (std::size_t i = 0; i < WordsPerCell; ++i) {
            lone[i] = cell[i] & ~again[i];
            anyLone |= lone[i];
        }
        const Word others = ~eitherHalf(anyLone);
        for (std::size_t i = 0; i < WordsPerCell; ++i)
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
