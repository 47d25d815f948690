#include "core/solver/search_fill.h"

#include "support/sample_boards.h"

#include <gtest/gtest.h>

#include <set>

namespace tessaly {
namespace {

/// Fills a board, and expects a solution of which every change was told.
Grid<std::string> filling(const SearchFill& fill, Chance& chance) {
    HexagonWords cells{};
    HexagonWords told{};
    EXPECT_TRUE(fill.fill(cells, chance,
                          [&told](int hexagon, HexagonWord now) {
                              told[static_cast<std::size_t>(hexagon)] = now;
                          })
                    .filled);
    EXPECT_EQ(told, cells);
    Grid<std::string> digits;
    unpackChanges({}, cells, digits);
    for (CellId cell : AllCells)
        if (SideLink[cell]) {
            EXPECT_EQ(digits[cell], digits[SideLink[cell]]);
        }
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon)
        EXPECT_EQ(std::set<std::string>(digits[hexagon].begin() + 1, digits[hexagon].end()),
                  (std::set<std::string>{"1", "2", "3", "4", "5", "6"}));
    return digits;
}

TEST(SearchFill, EveryFillingIsASolutionAndAnyDigitMayStandAnywhere) {
    Chance chance(1);
    std::set<HexagonWords> seen;
    Grid<std::set<std::string>> digits;
    for (int i = 0; i < 200; ++i) {
        const Grid<std::string> made = filling(completeFill(), chance);
        seen.insert(packEntries(made));
        for (CellId cell : AllCells)
            digits[cell].insert(made[cell]);
    }
    EXPECT_EQ(seen.size(), 200U);
    for (CellId cell : AllCells)
        EXPECT_EQ(digits[cell].size(), 6U);
}

TEST(SearchFill, DrawsFromTheTableThatItIsGivenAndGivesUpWhenThatHasNoFilling) {
    ArrangementTable table;
    table.words[1] = "BACDFE";
    table.words[2] = "FEDCBA";
    table.wordCount = 2;
    EXPECT_EQ(arrangementsOf(table),
              (std::vector<Arrangement>{{2, 1, 3, 4, 6, 5}, {6, 5, 4, 3, 2, 1}}));

    Chance chance(4);
    std::vector<Arrangement> few = allArrangements();
    std::erase_if(few, [](const Arrangement& digits) { return digits[0] == digits[3] % 6 + 1; });
    const Grid<std::string> digits = filling(SearchFill(few), chance);
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon)
        EXPECT_NE(std::stoi(digits[hexagon][1]), std::stoi(digits[hexagon][4]) % 6 + 1);

    for (std::size_t size : {0, 1, 3}) {
        HexagonWords cells{};
        const FillResult result = SearchFill(std::span(few).first(size)).fill(cells, chance);
        EXPECT_FALSE(result.filled);
        EXPECT_EQ(result.attempts, SearchFill::MaxAttempts);
        EXPECT_EQ(cells[19], 0U) << "cells are left open";
    }
}

} // namespace
} // namespace tessaly
