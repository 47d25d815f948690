#include "core/solver/even_fill.h"

#include "core/board/digit_set.h"
#include "core/board/symmetry.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>

namespace tessaly {
namespace {

/// A set of digits: bits 0 to 5.
using Digits = std::uint32_t;
constexpr Digits AllDigits = 0x3F;

/// A number for each digit, at places 0 to 5, and for no digit at all: at place 6 where side 4 of a
/// hexagon is not there, at place 7 where side 6 is not. One machine operation works on all.
using Row = std::array<std::int16_t, 8>;
constexpr std::size_t NoLeft = 6;
constexpr std::size_t NoRight = 7;

constexpr Row rowOf(std::size_t place) {
    Row row{};
    row[place] = 1;
    return row;
}

constexpr Row rowOfSet(Digits digits) {
    Row row{};
    for (std::size_t place = 0; place < row.size(); ++place)
        row[place] = static_cast<std::int16_t>((digits >> place) & 1);
    return row;
}

/// What a set still has when each digit is taken away, one at a time.
constexpr Row leftOf(Digits digits) {
    Row row{};
    for (std::size_t place = 0; place < row.size(); ++place)
        row[place] = static_cast<std::int16_t>(std::popcount(digits & ~(1U << place)));
    return row;
}

template <std::size_t Count>
constexpr std::array<Row, Count> makeRows(Row (*make)(Digits)) {
    std::array<Row, Count> rows{};
    for (Digits digits = 0; digits < Count; ++digits)
        rows[digits] = make(digits);
    return rows;
}
constexpr auto Members = makeRows<AllDigits + 1>(rowOfSet);
constexpr auto LeftOf = makeRows<AllDigits + 1>(leftOf);

Row operator*(const Row& a, const Row& b) {
    Row product;
    for (std::size_t place = 0; place < product.size(); ++place)
        product[place] = static_cast<std::int16_t>(a[place] * b[place]);
    return product;
}

std::int16_t sum(const Row& row) {
    std::int16_t total = 0;
    for (std::int16_t number : row)
        total = static_cast<std::int16_t>(total + number);
    return total;
}

/// When all hexagons before it are filled, a hexagon has open sides below it only: sides 4, 5 and 6
/// (index 0, 1, 2). The hexagons beyond 4 and 5 share a side, and those beyond 5 and 6.
constexpr std::size_t LowerSides = 3;

struct Slot {
    /// The hexagon beyond each lower side; 0 where there is none.
    std::array<std::size_t, LowerSides> beyond{};
    /// The open hexagons around each of these that are not beyond the others; 0 ends them.
    std::array<std::array<std::size_t, 4>, LowerSides> around{};
};

constexpr Slot makeSlot(int hexagon) {
    Slot slot;
    for (std::size_t i = 0; i < LowerSides; ++i)
        slot.beyond[i] = static_cast<std::size_t>(
            SideLink[{hexagon, opposite(static_cast<int>(i) + 1)}].hexagon);
    for (std::size_t i = 0; i < LowerSides; ++i) {
        std::size_t count = 0;
        for (int position = 1; slot.beyond[i] != 0 && position <= CellCount; ++position) {
            const int next = SideLink[{static_cast<int>(slot.beyond[i]), position}].hexagon;
            const auto at = static_cast<std::size_t>(next);
            if (next > hexagon &&
                std::find(slot.beyond.begin(), slot.beyond.end(), at) == slot.beyond.end())
                slot.around[i][count++] = at;
        }
    }
    return slot;
}

constexpr std::array<Slot, HexagonCount + 1> makeSlots() {
    std::array<Slot, HexagonCount + 1> slots{};
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon)
        slots[static_cast<std::size_t>(hexagon)] = makeSlot(hexagon);
    return slots;
}
constexpr std::array<Slot, HexagonCount + 1> Slots = makeSlots();

/// The digits that each hexagon still lacks.
using FreeDigits = std::array<Digits, HexagonCount + 1>;

/// Sides 4 and 6 of a hexagon when side 5, between them, is filled: the ways of what they may hold.
struct OuterSides {
    Row left;
    Row right;
    /// For each digit of the left side the ways of all different ones of the right.
    Row beside;

    OuterSides(const Row& leftWays, const Row& rightWays)
        : left(leftWays)
        , right(rightWays) {
        const std::int16_t all = sum(right);
        for (std::size_t place = 0; place < beside.size(); ++place)
            beside[place] = static_cast<std::int16_t>(all - right[place]);
    }

    std::int32_t waysWith(std::size_t place) const { return left[place] * beside[place]; }
    std::int32_t ways() const {
        std::int32_t total = 0;
        for (std::size_t place = 0; place < left.size(); ++place)
            total += waysWith(place);
        return total;
    }
};

/// Digits for the lower sides, by their places, and in how many ways they leave the rest.
struct Choice {
    std::array<std::size_t, LowerSides> places{};
    std::int64_t ways = 0;
};

/// All choices for the lower sides of a hexagon.
class Choices {
public:
    Choices(const FreeDigits& free, std::size_t hexagon)
        : m_free(free)
        , m_slot(Slots[hexagon])
        , m_left(sideOf(hexagon, 0))
        , m_middle(sideOf(hexagon, 1))
        , m_right(sideOf(hexagon, 2)) {
        for (std::size_t place = 0; place < m_ways.size(); ++place) {
            m_ways[place] = std::int64_t{m_middle[place]} * outerSides(place).ways();
            m_total += m_ways[place];
        }
    }

    /// The ways of all choices.
    std::int64_t total() const { return m_total; }

    /// Draws one of them, each with a chance by its ways.
    Choice draw(Chance& chance) const {
        Choice choice;
        auto& [left, middle, right] = choice.places;
        auto rest = static_cast<std::int64_t>(chance.unit() * static_cast<double>(m_total));
        for (; rest >= m_ways[middle]; ++middle)
            rest -= m_ways[middle];
        const OuterSides outer = outerSides(middle);
        rest = chance.below(static_cast<std::uint32_t>(outer.ways()));
        for (; rest >= outer.waysWith(left); ++left)
            rest -= outer.waysWith(left);
        rest = chance.below(static_cast<std::uint32_t>(outer.beside[left]));
        for (; right == left || rest >= outer.right[right]; ++right)
            rest -= right == left ? 0 : outer.right[right];
        choice.ways = std::int64_t{m_middle[middle]} * outer.left[left] * outer.right[right];
        return choice;
    }

private:
    /// The ways of each digit of a lower side: the product of how many digits it leaves to each of
    /// the open sides of the hexagon beyond.
    Row sideOf(std::size_t hexagon, std::size_t index) const {
        constexpr std::array<std::size_t, LowerSides> Nothing{NoLeft, NoLeft, NoRight};
        const std::size_t beyond = m_slot.beyond[index];
        if (beyond == 0)
            return rowOf(Nothing[index]);
        Row ways = Members[m_free[hexagon] & m_free[beyond]];
        for (const std::size_t* next = m_slot.around[index].data(); *next != 0; ++next)
            ways = ways * LeftOf[m_free[beyond] & m_free[*next]];
        return ways;
    }

    OuterSides outerSides(std::size_t middle) const {
        return {besideMiddle(m_left, m_slot.beyond[0], middle),
                besideMiddle(m_right, m_slot.beyond[2], middle)};
    }

    /// The ways of a side when the middle one is filled, with those of the side that the two
    /// hexagons beyond share.
    Row besideMiddle(const Row& side, std::size_t beyond, std::size_t middle) const {
        if (beyond == 0 || m_slot.beyond[1] == 0)
            return side;
        const Digits others = AllDigits & ~(1U << middle);
        return side * Members[others] * LeftOf[m_free[beyond] & m_free[m_slot.beyond[1]] & others];
    }

    const FreeDigits& m_free;
    const Slot& m_slot;
    Row m_left;
    Row m_middle;
    Row m_right;
    /// The ways of all choices with each digit in the middle.
    std::array<std::int64_t, NoLeft + 1> m_ways{};
    std::int64_t m_total = 0;
};

class Drawing {
public:
    explicit Drawing(Chance& chance)
        : m_chance(chance) {
        m_free.fill(AllDigits);
    }

    std::optional<WeightedFilling> run() {
        for (std::size_t hexagon = 1; hexagon <= HexagonCount; ++hexagon) {
            const Choices choices(m_free, hexagon);
            if (choices.total() == 0)
                return std::nullopt;
            const Choice choice = choices.draw(m_chance);
            m_filling.weight *=
                static_cast<double>(choices.total()) / static_cast<double>(choice.ways);
            fillSides(hexagon, choice);
            fillRim(hexagon);
        }
        return m_filling;
    }

private:
    void fillSides(std::size_t hexagon, const Choice& choice) {
        for (std::size_t i = 0; i < LowerSides; ++i)
            if (const std::size_t beyond = Slots[hexagon].beyond[i]; beyond != 0) {
                const int upper = static_cast<int>(i) + 1;
                put(hexagon, opposite(upper), choice.places[i]);
                put(beyond, upper, choice.places[i]);
            }
    }

    /// Gives the cells on the rim what is left, in random order.
    void fillRim(std::size_t hexagon) {
        for (int position = 1; m_free[hexagon] != 0; ++position) {
            if (SideLink[{static_cast<int>(hexagon), position}])
                continue;
            Digits rest = m_free[hexagon];
            const auto count = static_cast<std::uint32_t>(std::popcount(rest));
            for (std::uint32_t skipped = count > 1 ? m_chance.below(count) : 0; skipped > 0;
                 --skipped)
                rest &= rest - 1;
            put(hexagon, position, static_cast<std::size_t>(std::countr_zero(rest)));
        }
    }

    void put(std::size_t hexagon, int position, std::size_t place) {
        m_filling.cells[hexagon] |= HexagonWord{1}
                                    << (word::shiftOf(position) + static_cast<int>(place));
        m_free[hexagon] &= ~(1U << place);
    }

    Chance& m_chance;
    WeightedFilling m_filling;
    FreeDigits m_free{};
};

HexagonWords transformed(const HexagonWords& cells, const Symmetry& symmetry) {
    HexagonWords result{};
    for (CellId cell : AllCells) {
        const CellId image = symmetry.cell(cell);
        const unsigned byte =
            word::byteAt(cells[static_cast<std::size_t>(cell.hexagon)], cell.position);
        result[static_cast<std::size_t>(image.hexagon)] |= HexagonWord{byte}
                                                           << word::shiftOf(image.position);
    }
    return result;
}

} // namespace

std::optional<WeightedFilling> drawWeightedFilling(Chance& chance) {
    return Drawing(chance).run();
}

std::optional<HexagonWords> drawEvenFilling(Chance& chance) {
    for (;;) {
        const auto filling = drawWeightedFilling(chance);
        if (!filling)
            return std::nullopt;
        if (chance.unit() * HeavyWeight < filling->weight)
            return transformed(filling->cells, symmetry::All[chance.below(symmetry::All.size())]);
    }
}

} // namespace tessaly
