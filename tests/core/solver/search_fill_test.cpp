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
    const auto tell = [&](int hexagon, HexagonWord now) {
        told.at(static_cast<std::size_t>(hexagon)) = now;
    };
    EXPECT_TRUE(fill.fill(cells, chance, tell).filled);
    EXPECT_EQ(told, cells);
    Grid<std::string> digits;
    unpackChanges({}, cells, digits);
    for (CellId cell : AllCells)
        EXPECT_EQ(digits[cell], digits[SideLink[cell] ? SideLink[cell] : cell]);
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon)
        EXPECT_TRUE(std::is_permutation(digits[hexagon].begin() + 1, digits[hexagon].end(),
                                        std::array{"1", "2", "3", "4", "5", "6"}.begin()));
    return digits;
}

TEST(SearchFill, EveryFillingIsASolutionAndAnyDigitMayStandAnywhere) {
    Chance chance(1);
    std::set<std::string> seen;
    for (int i = 0; i < 200; ++i) {
        const Grid<std::string> made = filling(completeFill(), chance);
        for (CellId cell : AllCells)
            seen.insert(std::to_string(cell.hexagon) + std::to_string(cell.position) + made[cell]);
    }
    EXPECT_EQ(seen.size(), 6U * BoardCellCount);
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
