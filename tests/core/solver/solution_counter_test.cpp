#include "core/solver/solution_counter.h"

#include "support/sample_boards.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace tessaly {
namespace {

TEST(SolutionCounter, CountsEverySolutionOnceAndNeverTakesLong) {
    constexpr int Limit = 1000;
    Chance chance(1);
    std::map<int, int> boardsWith;
    for (std::size_t i = 0; i < 400; ++i) {
        const Sample kind = i % 3 == 0 ? Sample::WrongGivens : Sample::RandomGivens;
        Board board = sampleBoard(kind, chance);
        const SolutionCount count = countSolutions(board, {Limit});
        EXPECT_TRUE(count.isCertain);
        EXPECT_GE(count.found, kind == Sample::RandomGivens ? 1 : 0);
        ++boardsWith[std::min(count.found, 2)];
        if (isHexagon(board.BlankHex))
            board.SolNum[board.BlankHex].fill("1"); // counts for nothing
        // They are those with 1 in an open cell, those with 2 there, and so on.
        const CellId cell = AllCells[i % BoardCellCount];
        if (board.FixedCell[cell] || cell.hexagon == board.BlankHex)
            continue;
        board.FixedCell[cell] = true;
        int sum = 0;
        for (const char* number : {"1", "2", "3", "4", "5", "6"}) {
            board.SolNum[cell] = number;
            sum += countSolutions(board, {Limit}).found;
        }
        EXPECT_EQ(std::min(sum, Limit), count.found);
    }
    for (int found = 0; found <= 2; ++found)
        EXPECT_GT(boardsWith[found], 20) << found;
}

TEST(SolutionCounter, StopsWhereItIsTold) {
    for (const auto& [limits, isCertain] :
         {std::pair(CountLimits{1}, true), {{5000}, true}, {{5000, 30}, false}}) {
        const SolutionCount count = countSolutions(Board(), limits);
        EXPECT_EQ(count.found == limits.solutions, isCertain);
        EXPECT_EQ(count.isCertain, isCertain);
    }
}

} // namespace
} // namespace tessaly
