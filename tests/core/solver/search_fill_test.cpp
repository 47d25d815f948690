#include "core/solver/search_fill.h"

#include "core/board/tables.h"
#include "core/solver/packed_board.h"
#include "support/sample_boards.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace tessaly {
namespace {

bool isSolution(const Grid<std::string>& entries) {
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon) {
        std::multiset<std::string> digits;
        for (int position = 1; position <= CellCount; ++position)
            digits.insert(entries[{hexagon, position}]);
        if (digits != std::multiset<std::string>{"1", "2", "3", "4", "5", "6"})
            return false;
    }
    for (CellId cell : AllCells)
        if (SideLink[cell] && entries[cell] != entries[SideLink[cell]])
            return false;
    return true;
}

TEST(SearchFill, EveryFillingIsASolutionAndNoneRepeats) {
    Chance chance(1);
    std::set<HexagonWords> seen;
    std::array<std::set<std::string>, BoardCellCount> digits;
    for (int i = 0; i < 2000; ++i) {
        const Board board = filledBoard(chance);
        ASSERT_TRUE(isSolution(board.SolNum));
        seen.insert(packEntries(board.SolNum));
        for (std::size_t at = 0; at < AllCells.size(); ++at)
            digits[at].insert(board.SolNum[AllCells[at]]);
    }
    EXPECT_EQ(seen.size(), 2000U);
    for (const auto& ofCell : digits)
        EXPECT_EQ(ofCell.size(), 6U) << "every digit occurs in every cell";
}

TEST(SearchFill, TellsOfEveryChange) {
    Chance chance(2);
    HexagonWords cells{};
    HexagonWords told{};
    for (int i = 0; i < 100; ++i) {
        told.fill(0);
        completeFill().fill(cells, chance, [&told](int hexagon, HexagonWord now) {
            told[static_cast<std::size_t>(hexagon)] = now;
        });
        EXPECT_EQ(told, cells);
    }
}

TEST(SearchFill, GivesUpOnATableThatHasNoFilling) {
    Chance chance(3);
    const std::vector<Arrangement> all = allArrangements();
    for (std::size_t size : {0, 1, 3}) {
        HexagonWords cells{};
        const FillResult result = SearchFill(std::span(all).first(size)).fill(cells, chance);
        EXPECT_FALSE(result.filled);
        EXPECT_EQ(result.attempts, SearchFill::MaxAttempts);
        EXPECT_EQ(cells[19], 0U) << "cells are left open";
    }
}

TEST(SearchFill, DrawsFromTheTableThatItIsGiven) {
    Chance chance(4);
    std::vector<Arrangement> few;
    for (const Arrangement& digits : allArrangements())
        if (digits[0] != digits[3] % 6 + 1)
            few.push_back(digits);
    const SearchFill fill(few);
    HexagonWords cells{};
    ASSERT_TRUE(fill.fill(cells, chance).filled);
    Board board;
    unpackChanges({}, cells, board.SolNum);
    EXPECT_TRUE(isSolution(board.SolNum));
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon)
        EXPECT_NE(std::stoi(board.SolNum[hexagon][1]), std::stoi(board.SolNum[hexagon][4]) % 6 + 1);
}

TEST(SearchFill, KnowsAllArrangementsInAscendingOrder) {
    const std::vector<Arrangement> all = allArrangements();
    EXPECT_EQ(all.size(), 720U);
    EXPECT_TRUE(std::is_sorted(all.begin(), all.end()));
    EXPECT_EQ(std::set<Arrangement>(all.begin(), all.end()).size(), 720U);
}

TEST(SearchFill, ReadsTheWordsOfATable) {
    ArrangementTable table;
    table.words[1] = "BACDFE";
    table.words[2] = "FEDCBA";
    table.wordCount = 2;
    EXPECT_EQ(arrangementsOf(table),
              (std::vector<Arrangement>{{2, 1, 3, 4, 6, 5}, {6, 5, 4, 3, 2, 1}}));
}

} // namespace
} // namespace tessaly
