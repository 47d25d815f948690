#include "core/solver/search_fill.h"

#include "core/board/tables.h"
#include "core/solver/even_fill.h"

#include <algorithm>
#include <bit>
#include <numeric>

namespace tessaly {
namespace {

constexpr std::size_t BlockBits = 64;

/// Row by row: each hexagon meets at most three that are filled, all of them above it.
constexpr std::array<int, HexagonCount> SlotOrder{1,  2,  3,  4,  5,  6,  7,  8,  9, 10,
                                                  11, 12, 13, 14, 15, 16, 17, 18, 19};

/// An attempt that had to turn back this often is given up.
constexpr int MaxStepsBack = 200;

HexagonWord packArrangement(const Arrangement& digits) {
    HexagonWord cells = 0;
    for (int position = 1; position <= CellCount; ++position)
        cells |= HexagonWord{DigitSet::of(digits[static_cast<std::size_t>(position - 1)]).bits()}
                 << word::shiftOf(position);
    return cells;
}

/// Takes a random choice out; the table's index of it. There must be one.
std::size_t drawChoice(SearchFill::Choices& choices, Chance& chance) {
    std::uint32_t total = 0;
    for (std::uint64_t block : choices)
        total += static_cast<std::uint32_t>(std::popcount(block));
    auto left = static_cast<int>(chance.below(total));
    std::size_t at = 0;
    for (; left >= std::popcount(choices[at]); ++at)
        left -= std::popcount(choices[at]);
    std::uint64_t block = choices[at];
    for (; left > 0; --left)
        block &= block - 1;
    choices[at] ^= block & (~block + 1);
    return BlockBits * at + static_cast<std::size_t>(std::countr_zero(block));
}

bool holdsAll(std::vector<Arrangement> table) {
    std::sort(table.begin(), table.end());
    return table == allArrangements();
}

bool hasChoice(const SearchFill::Choices& choices) {
    return std::any_of(choices.begin(), choices.end(),
                       [](std::uint64_t block) { return block != 0; });
}

/// One search from the empty board.
class Attempt {
public:
    Attempt(const SearchFill& table, HexagonWords& cells, Chance& chance,
            const SearchFill::OnChange& onChange)
        : m_table(table)
        , m_cells(cells)
        , m_chance(chance)
        , m_onChange(onChange) {}

    bool run() {
        int stepsBack = 0;
        std::size_t depth = 0;
        open(depth);
        while (depth < SlotOrder.size()) {
            if (hasChoice(m_choices[depth])) {
                put(SlotOrder[depth], m_table.arrangement(drawChoice(m_choices[depth], m_chance)));
                if (++depth < SlotOrder.size())
                    open(depth);
            } else {
                if (depth == 0 || ++stepsBack > MaxStepsBack)
                    return false;
                take(SlotOrder[--depth]);
            }
        }
        return true;
    }

private:
    /// Finds out what the slot at a depth may hold: across a side that is filled the same digit,
    /// across an open one none that the hexagon there has to take from elsewhere.
    void open(std::size_t depth) {
        std::array<DigitSet, CellCount> allowed;
        for (int position = 1; position <= CellCount; ++position) {
            const CellId across = SideLink[{SlotOrder[depth], position}];
            DigitSet& digits = allowed[static_cast<std::size_t>(position - 1)];
            const HexagonWord cells = m_cells[static_cast<std::size_t>(across.hexagon)];
            if (cells != 0)
                digits = DigitSet::fromBits(word::byteAt(cells, across.position));
            else
                digits = DigitSet::all() - m_demanded[static_cast<std::size_t>(across.hexagon)];
        }
        m_choices[depth] = m_table.choices(allowed);
    }

    void put(int hexagon, HexagonWord cells) {
        changeDemands(hexagon, cells);
        m_cells[static_cast<std::size_t>(hexagon)] = cells;
        if (m_onChange)
            m_onChange(hexagon, cells);
    }

    void take(int hexagon) {
        HexagonWord& cells = m_cells[static_cast<std::size_t>(hexagon)];
        changeDemands(hexagon, cells);
        cells = 0;
        if (m_onChange)
            m_onChange(hexagon, 0);
    }

    /// Adds or takes back what a hexagon's cells demand of the open hexagons around it.
    void changeDemands(int hexagon, HexagonWord cells) {
        for (int position = 1; position <= CellCount; ++position) {
            const auto across = static_cast<std::size_t>(SideLink[{hexagon, position}].hexagon);
            if (across != 0)
                m_demanded[across] =
                    DigitSet::fromBits(m_demanded[across].bits() ^ word::byteAt(cells, position));
        }
    }

    const SearchFill& m_table;
    HexagonWords& m_cells;
    Chance& m_chance;
    const SearchFill::OnChange& m_onChange;
    std::array<SearchFill::Choices, HexagonCount> m_choices;
    /// The digits that each hexagon's filled neighbours hold against it.
    std::array<DigitSet, HexagonCount + 1> m_demanded{};
};

} // namespace

std::vector<Arrangement> allArrangements() {
    Arrangement digits{};
    std::iota(digits.begin(), digits.end(), std::uint8_t{1});
    std::vector<Arrangement> all;
    do {
        all.push_back(digits);
    } while (std::next_permutation(digits.begin(), digits.end()));
    return all;
}

std::vector<Arrangement> arrangementsOf(const ArrangementTable& table) {
    std::vector<Arrangement> all;
    for (std::size_t at = 1; at <= static_cast<std::size_t>(table.wordCount); ++at) {
        Arrangement& digits = all.emplace_back();
        std::transform(table.words[at].begin(), table.words[at].end(), digits.begin(),
                       [](char letter) { return static_cast<std::uint8_t>(letter - 'A' + 1); });
    }
    return all;
}

SearchFill::SearchFill(std::span<const Arrangement> table)
    : m_isComplete(holdsAll({table.begin(), table.end()})) {
    for (const Arrangement& digits : table) {
        const std::size_t index = m_arrangements.size();
        m_arrangements.push_back(packArrangement(digits));
        for (std::size_t cell = 0; cell < CellCount; ++cell)
            for (unsigned set = 0; set < SetCount; ++set)
                if (DigitSet::fromBits(set).contains(digits[cell]))
                    m_fitting[cell][set][index / BlockBits] |= std::uint64_t{1}
                                                               << (index % BlockBits);
    }
}

SearchFill::Choices SearchFill::choices(const std::array<DigitSet, CellCount>& allowed) const {
    Choices fitting = m_fitting[0][allowed[0].bits()];
    for (std::size_t cell = 1; cell < CellCount; ++cell) {
        const Choices& here = m_fitting[cell][allowed[cell].bits()];
        for (std::size_t i = 0; i < fitting.size(); ++i)
            fitting[i] &= here[i];
    }
    return fitting;
}

bool SearchFill::fillEvenly(HexagonWords& cells, Chance& chance, const OnChange& onChange) const {
    const auto filling = drawEvenFilling(chance);
    cells = filling.value_or(HexagonWords{});
    for (int hexagon = 1; onChange && hexagon <= HexagonCount; ++hexagon)
        onChange(hexagon, cells[static_cast<std::size_t>(hexagon)]);
    return filling.has_value();
}

FillResult SearchFill::fill(HexagonWords& cells, Chance& chance, const OnChange& onChange) const {
    FillResult result;
    while (!result.filled && result.attempts < MaxAttempts) {
        ++result.attempts;
        cells.fill(0);
        result.filled = m_isComplete ? fillEvenly(cells, chance, onChange)
                                     : Attempt(*this, cells, chance, onChange).run();
    }
    return result;
}

} // namespace tessaly
