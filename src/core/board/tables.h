#pragma once

#include "core/board/vocabulary.h"

#include <array>
#include <string_view>

namespace tessaly {

inline constexpr int XcellCount = 24;

/// The neighbours of each hexagon (index 1..19): for sides 1..6 in turn the neighbour's hexagon and
/// the neighbour's side; "00,00" is a side on the board's rim.
inline constexpr std::array<std::string_view, HexagonCount + 1> SideNbr{
    "",
    "00,00,00,00,00,00,03,01,05,02,02,03",
    "00,00,00,00,01,06,05,01,07,02,04,03",
    "01,04,00,00,00,00,06,01,08,02,05,03",
    "00,00,00,00,02,06,07,01,09,02,00,00",
    "02,04,01,05,03,06,08,01,10,02,07,03",
    "03,04,00,00,00,00,00,00,11,02,08,03",
    "04,04,02,05,05,06,10,01,12,02,09,03",
    "05,04,03,05,06,06,11,01,13,02,10,03",
    "00,00,04,05,07,06,12,01,14,02,00,00",
    "07,04,05,05,08,06,13,01,15,02,12,03",
    "08,04,06,05,00,00,00,00,16,02,13,03",
    "09,04,07,05,10,06,15,01,17,02,14,03",
    "10,04,08,05,11,06,16,01,18,02,15,03",
    "00,00,09,05,12,06,17,01,00,00,00,00",
    "12,04,10,05,13,06,18,01,19,02,17,03",
    "13,04,11,05,00,00,00,00,00,00,18,03",
    "14,04,12,05,15,06,19,01,00,00,00,00",
    "15,04,13,05,16,06,00,00,00,00,19,03",
    "17,04,15,05,18,06,00,00,00,00,00,00",
};

/// The inner corners at which three hexagons meet (index 1..24), each with its six cells as three
/// pairs of one hexagon: "015 016" are cells 5 and 6 of hexagon 1. The first cell of each pair
/// faces a cell of another pair across a shared side.
inline constexpr std::array<std::string_view, XcellCount + 1> XCells{
    "",
    "015 016 023 024 051 052",
    "014 015 052 053 031 036",
    "025 026 043 044 071 072",
    "024 025 051 056 072 073",
    "035 036 053 054 081 082",
    "034 035 061 066 082 083",
    "044 045 071 076 092 093",
    "055 056 073 074 101 102",
    "054 055 081 086 102 103",
    "065 066 111 112 083 084",
    "075 076 093 094 121 122",
    "074 075 101 106 122 123",
    "085 086 103 104 131 132",
    "084 085 111 116 132 133",
    "094 095 121 126 142 143",
    "105 106 151 152 123 124",
    "104 105 131 136 152 153",
    "115 116 161 162 133 134",
    "125 126 143 144 171 172",
    "124 125 151 156 172 173",
    "135 136 153 154 181 182",
    "134 135 161 166 182 183",
    "155 156 173 174 191 192",
    "154 155 181 186 192 193",
};

using XcellCells = std::array<CellId, 6>;

namespace detail {

constexpr int digitAt(std::string_view text, std::size_t index) {
    return text[index] - '0';
}

constexpr int twoDigitsAt(std::string_view text, std::size_t index) {
    return 10 * digitAt(text, index) + digitAt(text, index + 1);
}

constexpr Grid<CellId> makeSideLink() {
    constexpr std::size_t EntryWidth = 6; // "03,01,"
    Grid<CellId> links;
    for (CellId cell : AllCells) {
        const auto at = EntryWidth * static_cast<std::size_t>(cell.position - 1);
        const std::string_view row = SideNbr[static_cast<std::size_t>(cell.hexagon)];
        links[cell] = {twoDigitsAt(row, at), twoDigitsAt(row, at + 3)};
    }
    return links;
}

constexpr std::array<XcellCells, XcellCount + 1> makeXcellTable() {
    constexpr std::size_t CodeWidth = 4; // "015 "
    std::array<XcellCells, XcellCount + 1> table{};
    for (std::size_t xcell = 1; xcell <= XcellCount; ++xcell)
        for (std::size_t i = 0; i < table[xcell].size(); ++i)
            table[xcell][i] = {twoDigitsAt(XCells[xcell], CodeWidth * i),
                               digitAt(XCells[xcell], CodeWidth * i + 2)};
    return table;
}

} // namespace detail

/// The cell across the side of each cell; no cell where the side lies on the rim.
inline constexpr Grid<CellId> SideLink = detail::makeSideLink();

/// The cells of each xcell (index 1..24), in the order of `XCells`.
inline constexpr std::array<XcellCells, XcellCount + 1> XcellTable = detail::makeXcellTable();

namespace detail {

constexpr int countRimCells() {
    int count = 0;
    for (CellId cell : AllCells)
        count += SideLink[cell] ? 0 : 1;
    return count;
}

constexpr bool sideLinksAreSymmetric() {
    for (CellId cell : AllCells) {
        const CellId across = SideLink[cell];
        if (!across)
            continue;
        if (SideLink[across] != cell || across.position != opposite(cell.position))
            return false;
    }
    return true;
}

/// Three hexagons, two cells of each, and every cell that opens a pair faces another pair's cell.
constexpr bool xcellIsSound(const XcellCells& cells) {
    for (std::size_t i = 0; i < cells.size(); i += 2)
        if (cells[i].hexagon != cells[i + 1].hexagon ||
            cells[i].hexagon == cells[(i + 2) % cells.size()].hexagon)
            return false;
    int sidePairs = 0;
    for (CellId first : cells)
        for (CellId second : cells)
            sidePairs += SideLink[first] == second ? 1 : 0;
    return sidePairs == 6;
}

constexpr bool allXcellsAreSound() {
    for (std::size_t xcell = 1; xcell <= XcellCount; ++xcell)
        if (!xcellIsSound(XcellTable[xcell]))
            return false;
    return true;
}

} // namespace detail

inline constexpr int RimCellCount = detail::countRimCells();

static_assert(RimCellCount == 30, "42 shared sides leave 30 of the 114 cells on the rim");
static_assert(detail::sideLinksAreSymmetric());
static_assert(detail::allXcellsAreSound());

} // namespace tessaly
