#pragma once

#include "core/board/board.h"
#include "core/board/tables.h"
#include "core/board/vocabulary.h"

#include <array>
#include <bit>
#include <cstdint>
#include <string>

namespace tessaly {

/// What the six cells of a hexagon hold, a byte for each cell, so that one machine operation works
/// on all six:
///
///     byte      7   6   5   4   3   2   1   0
///     cell      -   -   6   5   4   3   2   1       (the two upper bytes are always 0)
///
/// and within each byte the digits that the cell may hold:
///
///     bit       7   6   5   4   3   2   1   0
///     meaning   *   0   6   5   4   3   2   1
///
/// A byte with one bit set is a settled cell, 0 is an empty one. Bit 6 is the number 0, which a
/// player may place although no solution holds it. Bit 7 marks a text that is not the ascending
/// list of its digits ("351", "11"); bit 6 goes with it, so that it never looks settled.
using HexagonWord = std::uint64_t;

/// One word for each hexagon; word 0 stays 0 and stands for what lies beyond the rim.
using HexagonWords = std::array<HexagonWord, HexagonCount + 1>;

namespace word {

inline constexpr HexagonWord Ones = 0x0101'0101'0101;
inline constexpr HexagonWord Flags = 0x80 * Ones;
inline constexpr HexagonWord Lows = 0x7F * Ones;
inline constexpr HexagonWord Digits = 0x3F * Ones;
inline constexpr unsigned ZeroBit = 0x40;
inline constexpr unsigned UnusualBits = 0xC0;

constexpr int shiftOf(int position) {
    return 8 * (position - 1);
}

constexpr unsigned byteAt(HexagonWord hexagon, int position) {
    return static_cast<unsigned>(hexagon >> shiftOf(position)) & 0xFFU;
}

constexpr HexagonWord maskOf(int position) {
    return HexagonWord{0xFF} << shiftOf(position);
}

constexpr HexagonWord repeat(unsigned byte) {
    return Ones * byte;
}

/// The top bit of every byte that is not 0.
constexpr HexagonWord flagNonZero(HexagonWord bytes) {
    return (((bytes & Lows) + Lows) | bytes) & Flags;
}

/// The top bit of every byte that has two or more bits.
constexpr HexagonWord flagSeveral(HexagonWord bytes) {
    return flagNonZero(bytes & ((bytes | Flags) - Ones));
}

/// The top bit of every byte that has exactly one bit.
constexpr HexagonWord flagSettled(HexagonWord bytes) {
    return flagNonZero(bytes) & ~flagSeveral(bytes);
}

/// Whole bytes from their top bits.
constexpr HexagonWord bytesOf(HexagonWord flags) {
    return (flags << 1) - (flags >> 7);
}

constexpr int countFlags(HexagonWord flags) {
    return static_cast<int>((((flags >> 7) * Ones) >> 40) & 0xFF);
}

/// The flags of cells 1 to 6 as bits 0 to 5.
constexpr unsigned gatherFlags(HexagonWord flags) {
    // Byte i's flag, moved to bit 8i, meets the factor's bit 40 - 7i at bit 40 + i.
    constexpr HexagonWord Factor = 0x0102'0408'1020;
    return static_cast<unsigned>(((flags >> 7) * Factor) >> 40) & 0x3FU;
}

/// The union of the six bytes.
constexpr unsigned unite(HexagonWord bytes) {
    const HexagonWord three = bytes | (bytes >> 24);
    return static_cast<unsigned>(three | (three >> 8) | (three >> 16)) & 0xFFU;
}

/// The bits that exactly one of the six bytes has.
constexpr unsigned onlyOnce(HexagonWord bytes) {
    const HexagonWord either = bytes | (bytes >> 24);
    const HexagonWord both = bytes & (bytes >> 24);
    const HexagonWord first = either;
    const HexagonWord second = either >> 8;
    const HexagonWord third = either >> 16;
    const HexagonWord several =
        both | (both >> 8) | (both >> 16) | (first & second) | ((first | second) & third);
    return static_cast<unsigned>((first | second | third) & ~several) & 0xFFU;
}

/// The bits that exactly two of the six bytes have.
constexpr unsigned exactlyTwice(HexagonWord bytes) {
    const HexagonWord odd = bytes ^ (bytes >> 24);
    const HexagonWord both = bytes & (bytes >> 24);
    const HexagonWord a = odd;
    const HexagonWord b = odd >> 8;
    const HexagonWord c = odd >> 16;
    const HexagonWord one = a ^ b ^ c;
    const HexagonWord carry = (a & b) | ((a ^ b) & c);
    const HexagonWord d = both;
    const HexagonWord e = both >> 8;
    const HexagonWord f = both >> 16;
    // Each of these four stands for two: exactly one of them, and no odd one left.
    const HexagonWord any = carry | d | e | f;
    const HexagonWord more = (carry & (d | e | f)) | (d & (e | f)) | (e & f);
    return static_cast<unsigned>(any & ~more & ~one) & 0xFFU;
}

static_assert(flagSeveral(0xC0'40'00'03'20'3F) == 0x80'00'00'80'00'80);
static_assert(flagSettled(0xC0'40'00'03'20'3F) == 0x00'80'00'00'80'00);
static_assert(bytesOf(0x80'00'00'80'00'80) == 0xFF'00'00'FF'00'FF);
static_assert(countFlags(0x80'00'00'80'00'80) == 3);
static_assert(gatherFlags(0x80'00'00'80'00'80) == 0b10'0101 && gatherFlags(Flags) == 0x3F);
static_assert(unite(0x10'00'02'00'00'01) == 0x13);
static_assert(onlyOnce(0x11'09'22'04'00'3A) == 0x04);
static_assert(exactlyTwice(0x11'09'22'04'00'3A) == 0x3B);
static_assert(exactlyTwice(0x03'03'03'02'04'04) == 0x04);

} // namespace word

/// The byte that stands for an entry: see HexagonWord.
unsigned packEntry(const std::string& entry);

/// Makes `entry` the text of a byte; one that marks an unusual text stands for more than one text
/// and gives the ascending list of its digits.
void unpackEntry(unsigned byte, std::string& entry);

HexagonWords packEntries(const Grid<std::string>& entries);

/// Writes the bytes in which `now` differs from `before`; all other entries keep their texts.
void unpackChanges(const HexagonWords& before, const HexagonWords& now, Grid<std::string>& entries);

namespace detail {

/// The hexagon across each side, 0 beyond the rim.
using Neighbours = std::array<std::size_t, CellCount>;

constexpr std::array<Neighbours, HexagonCount + 1> makeNeighbours() {
    std::array<Neighbours, HexagonCount + 1> table{};
    for (CellId cell : AllCells)
        table[static_cast<std::size_t>(cell.hexagon)][static_cast<std::size_t>(cell.position - 1)] =
            static_cast<std::size_t>(SideLink[cell].hexagon);
    return table;
}

inline constexpr std::array<Neighbours, HexagonCount + 1> NeighbourTable = makeNeighbours();

constexpr HexagonWords makeInnerSideFlags() {
    HexagonWords flags{};
    for (CellId cell : AllCells)
        if (SideLink[cell])
            flags[static_cast<std::size_t>(cell.hexagon)] |= HexagonWord{0x80}
                                                             << word::shiftOf(cell.position);
    return flags;
}

/// For each hexagon, something for any set of its cells (bit 0 is cell 1).
using CellSetTable =
    std::array<std::array<std::uint32_t, std::size_t{1} << CellCount>, HexagonCount + 1>;

constexpr void addForSetsWith(CellSetTable& table, CellId cell, std::uint32_t bits) {
    auto& row = table[static_cast<std::size_t>(cell.hexagon)];
    for (std::size_t set = 0; set < row.size(); ++set)
        if (((set >> (cell.position - 1)) & 1U) != 0)
            row[set] |= bits;
}

constexpr CellSetTable makeHexagonsAcross() {
    CellSetTable table{};
    for (CellId cell : AllCells)
        if (SideLink[cell])
            addForSetsWith(table, cell, 1U << SideLink[cell].hexagon);
    return table;
}

constexpr CellSetTable makeXcellsTouched() {
    CellSetTable table{};
    for (std::size_t xcell = 1; xcell <= XcellCount; ++xcell)
        for (CellId cell : XcellTable[xcell])
            addForSetsWith(table, cell, 1U << xcell);
    return table;
}

/// The hexagons across the sides of the cells, and the xcells that the cells touch: a bit for each.
inline constexpr CellSetTable HexagonsAcross = makeHexagonsAcross();
inline constexpr CellSetTable XcellsTouched = makeXcellsTouched();

} // namespace detail

/// The top bit of each cell of a hexagon (index 1..19) that has a cell across its side.
inline constexpr HexagonWords InnerSideFlags = detail::makeInnerSideFlags();

/// What has to be looked at again because something changed since it was last looked at: a bit for
/// each hexagon (or xcell) with its number.
class Agenda {
public:
    static constexpr std::uint32_t allUpTo(int last) { return (2U << last) - 2; }

    explicit Agenda(std::uint32_t bits)
        : m_bits(bits) {}

    void add(std::uint32_t bits) { m_bits |= bits; }

    /// Takes every item off in ascending order and hands it to `visit`, until that answers false.
    /// What a visit adds behind itself is visited too, the rest stays for the next time.
    template <class Visit>
    void work(const Visit& visit) {
        for (std::uint32_t left = m_bits; left != 0;) {
            const std::uint32_t item = left & (~left + 1);
            m_bits ^= item;
            if (!visit(std::countr_zero(item)))
                return;
            left = m_bits & ~((item << 1) - 1);
        }
    }

private:
    std::uint32_t m_bits;
};

/// An agenda for each of the four rules.
struct RuleAgendas {
    Agenda neighbours{Agenda::allUpTo(HexagonCount)};
    Agenda candidates{Agenda::allUpTo(HexagonCount)};
    Agenda singles{Agenda::allUpTo(HexagonCount)};
    Agenda xcells{Agenda::allUpTo(XcellCount)};
};

/// The cells of a board as words, with what the rules ask about them again and again kept ready.
class PackedBoard {
public:
    explicit PackedBoard(const HexagonWords& cells);

    const HexagonWords& cells() const { return m_cells; }
    HexagonWord hexagon(int hexagon) const { return m_cells[index(hexagon)]; }
    /// The cells of a hexagon that are settled; all others 0.
    HexagonWord settled(int hexagon) const { return m_settled[index(hexagon)]; }
    /// The digits 1 to 6 that are settled in a hexagon, in every byte.
    HexagonWord placed(int hexagon) const { return m_placed[index(hexagon)]; }
    bool isSettled(int hexagon) const { return m_openFlags[index(hexagon)] == 0; }
    /// The top bit of each cell that is not settled.
    HexagonWord openFlags(int hexagon) const { return m_openFlags[index(hexagon)]; }

    /// Replaces the cells of a hexagon; what is settled stays so.
    void set(int hexagon, HexagonWord cells) {
        const std::size_t at = index(hexagon);
        const HexagonWord changed = word::flagNonZero(cells ^ m_cells[at]);
        m_agendas.singles.add(1U << hexagon);
        m_agendas.xcells.add(detail::XcellsTouched[at][word::gatherFlags(changed)]);
        m_cells[at] = cells;
        const HexagonWord settled = word::flagSettled(cells);
        const HexagonWord wasOpen = m_openFlags[at];
        if ((settled & wasOpen) == 0)
            return;
        // What is across a cell that was settled before takes no notice of this hexagon any more.
        m_agendas.candidates.add((1U << hexagon) |
                                 detail::HexagonsAcross[at][word::gatherFlags(wasOpen)]);
        m_agendas.neighbours.add(detail::HexagonsAcross[at][word::gatherFlags(settled & wasOpen)]);
        settle(at, settled);
    }

    RuleAgendas& agendas() { return m_agendas; }

    /// For each cell of a hexagon, what the cell across its side holds if that is settled, else 0.
    HexagonWord settledAcross(int hexagon) const {
        // Side k meets the opposite side of its neighbour: three bytes lower or higher in the word.
        constexpr int ThreeBytes = 24;
        const detail::Neighbours& next = detail::NeighbourTable[index(hexagon)];
        const HexagonWord down = (m_settled[next[0]] & word::maskOf(4)) |
                                 (m_settled[next[1]] & word::maskOf(5)) |
                                 (m_settled[next[2]] & word::maskOf(6));
        const HexagonWord up = (m_settled[next[3]] & word::maskOf(1)) |
                               (m_settled[next[4]] & word::maskOf(2)) |
                               (m_settled[next[5]] & word::maskOf(3));
        return (down >> ThreeBytes) | (up << ThreeBytes);
    }
    /// For each cell of a hexagon, the digits settled in the hexagon across its side.
    HexagonWord placedAcross(int hexagon) const {
        const detail::Neighbours& next = detail::NeighbourTable[index(hexagon)];
        return (m_placed[next[0]] & word::maskOf(1)) | (m_placed[next[1]] & word::maskOf(2)) |
               (m_placed[next[2]] & word::maskOf(3)) | (m_placed[next[3]] & word::maskOf(4)) |
               (m_placed[next[4]] & word::maskOf(5)) | (m_placed[next[5]] & word::maskOf(6));
    }

    bool isSettled(CellId cell) const {
        return (settled(cell.hexagon) & word::maskOf(cell.position)) != 0;
    }
    /// Whether a cell has two or more candidates.
    bool isOpen(CellId cell) const {
        return (word::flagSeveral(hexagon(cell.hexagon)) & word::maskOf(cell.position)) != 0;
    }
    bool everyCellIsSettled() const;

private:
    static constexpr std::size_t index(int hexagon) { return static_cast<std::size_t>(hexagon); }

    void settle(std::size_t at, HexagonWord flags) {
        m_settled[at] = m_cells[at] & word::bytesOf(flags);
        m_openFlags[at] = word::Flags & ~flags;
        m_placed[at] = word::repeat(word::unite(m_settled[at] & word::Digits));
    }

    HexagonWords m_cells{};
    HexagonWords m_settled{};
    HexagonWords m_placed{};
    HexagonWords m_openFlags{};
    RuleAgendas m_agendas;
};

} // namespace tessaly
