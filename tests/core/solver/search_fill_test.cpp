#include "core/solver/search_fill.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

// That a complete table gives sound fillings is what puzzles promise.
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
    HexagonWords cells{};
    EXPECT_TRUE(SearchFill(few).fill(cells, chance).filled);
    Grid<std::string> digits;
    unpackChanges({}, cells, digits);
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon)
        EXPECT_NE(std::stoi(digits[hexagon][1]), std::stoi(digits[hexagon][4]) % 6 + 1);
    for (CellId cell : AllCells)
        EXPECT_EQ(digits[cell], digits[SideLink[cell] ? SideLink[cell] : cell]);

    for (std::size_t size : {0, 1, 3}) {
        const FillResult result = SearchFill(std::span(few).first(size)).fill(cells, chance);
        EXPECT_FALSE(result.filled);
        EXPECT_EQ(result.attempts, SearchFill::MaxAttempts);
        EXPECT_EQ(cells[19], 0U) << "cells are left open";
    }
}

} // namespace
} // namespace tessaly
