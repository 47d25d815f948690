#include "core/solver/solution_counter.h"

#include "core/board/tables.h"
#include "support/sample_boards.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace tessaly {
namespace {

/// Counts by trying every arrangement in hexagon after hexagon.
class PlainCount {
public:
    PlainCount(const Board& board, int limit)
        : m_board(board)
        , m_limit(limit) {
        fill(1);
    }
    int found = 0;

private:
    void fill(int hexagon) {
        if (hexagon > HexagonCount) {
            ++found;
            return;
        }
        for (const Arrangement& digits : m_arrangements) {
            if (found == m_limit)
                return;
            if (!fits(hexagon, digits))
                continue;
            for (int position = 1; position <= CellCount; ++position)
                m_digits[{hexagon, position}] = digits[static_cast<std::size_t>(position - 1)];
            fill(hexagon + 1);
        }
    }

    bool fits(int hexagon, const Arrangement& digits) const {
        for (int position = 1; position <= CellCount; ++position) {
            const CellId cell{hexagon, position};
            const int digit = digits[static_cast<std::size_t>(position - 1)];
            const CellId across = SideLink[cell];
            const bool isGiven = m_board.FixedCell[cell] && hexagon != m_board.BlankHex;
            if (isGiven && m_board.SolNum[cell] != std::to_string(digit))
                return false;
            if (across && across.hexagon < hexagon && m_digits[across] != digit)
                return false;
        }
        return true;
    }

    const Board& m_board;
    int m_limit;
    Grid<int> m_digits;
    std::vector<Arrangement> m_arrangements = allArrangements();
};

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

TEST(SolutionCounter, AgreesWithTryingEveryArrangement) {
    constexpr int Limit = 40;
    Chance chance(1);
    std::map<int, int> boardsWith;
    for (std::uint32_t i = 0; i < 75; ++i) {
        const Board board = withRandomGivens(chance, 58 + i % 35, i % 3 == 0 ? 1 : 0);
        const SolutionCount count = countSolutions(board, {Limit});
        EXPECT_TRUE(count.isCertain);
        ASSERT_EQ(count.found, PlainCount(board, Limit).found);
        ++boardsWith[std::min(count.found, 2)];
    }
    for (int found = 0; found <= 2; ++found)
        EXPECT_GT(boardsWith[found], 8) << found;
}

TEST(SolutionCounter, StopsWhereItIsTold) {
    for (const auto& [limits, isCertain] :
         {std::pair(CountLimits{1}, true), {{5000}, true}, {{5000, 30}, false}}) {
        const SolutionCount count = countSolutions(Board(), limits);
        EXPECT_EQ(count.found == limits.solutions, isCertain);
        EXPECT_EQ(count.isCertain, isCertain);
    }
}

TEST(SolutionCounter, FewOrWrongGivensNeverTakeLong) {
    Chance chance(3);
    for (std::uint32_t i = 0; i < 500; ++i)
        EXPECT_TRUE(countSolutions(withRandomGivens(chance, i % 40, i % 7)).isCertain) << i;
}

} // namespace
} // namespace tessaly
