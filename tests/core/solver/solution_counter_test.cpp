#include "core/solver/solution_counter.h"

#include "core/board/tables.h"
#include "support/sample_boards.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace tessaly {
namespace {

/// A solved board of which about so many percent are given, some of them wrong.
Board withRandomGivens(Chance& chance, std::uint32_t percent, std::uint32_t wrong) {
    Board board = filledBoard(chance);
    for (CellId cell : AllCells)
        board.FixedCell[cell] = chance.below(100) < percent;
    for (; wrong > 0; --wrong) {
        const CellId cell = AllCells[chance.below(BoardCellCount)];
        board.FixedCell[cell] = true;
        board.SolNum[cell] = std::to_string(1 + chance.below(6));
    }
    board.BlankHex = chance.below(2) == 0 ? 10 : NoHexagon;
    return board;
}

/// The solutions of a board counted the long way: those with each number in a cell, summed up.
int countByCases(Board board, CellId cell) {
    int count = 0;
    board.FixedCell[cell] = true;
    for (const char* number : {"1", "2", "3", "4", "5", "6"}) {
        board.SolNum[cell] = number;
        count += countSolutions(board, {1'000'000}).found;
    }
    return count;
}

TEST(SolutionCounter, CountsEverySolutionOnce) {
    Chance chance(1);
    std::map<int, int> boardsWith;
    for (std::uint32_t i = 0; i < 150; ++i) {
        const bool isWrong = i % 3 == 0;
        const Board board = withRandomGivens(chance, 50 + i % 40, isWrong ? 1 : 0);
        const SolutionCount count = countSolutions(board, {1'000'000});
        EXPECT_TRUE(count.isCertain);
        EXPECT_GE(count.found, isWrong ? 0 : 1);
        for (CellId cell : {CellId{7, 4}, {1, 6}, {15, 2}})
            EXPECT_TRUE(board.FixedCell[cell] || countByCases(board, cell) == count.found);
        ++boardsWith[std::min(count.found, 2)];
    }
    for (int found = 0; found <= 2; ++found)
        EXPECT_GT(boardsWith[found], 16) << found;
}

TEST(SolutionCounter, StopsWhereItIsToldAndNeverTakesLong) {
    for (const auto& [limits, isCertain] :
         {std::pair(CountLimits{1}, true), {{5000}, true}, {{5000, 30}, false}}) {
        const SolutionCount count = countSolutions(Board(), limits);
        EXPECT_EQ(count.found == limits.solutions, isCertain);
        EXPECT_EQ(count.isCertain, isCertain);
    }
    Chance chance(3);
    for (std::uint32_t i = 0; i < 500; ++i)
        EXPECT_TRUE(countSolutions(withRandomGivens(chance, i % 40, i % 7)).isCertain) << i;
}

} // namespace
} // namespace tessaly
