#include "core/solver/solution_counter.h"

#include "core/board/tables.h"
#include "core/solver/generator.h"
#include "support/sample_boards.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <numeric>

namespace tessaly {
namespace {

/// Counts by trying every arrangement in hexagon after hexagon.
class PlainCount {
public:
    explicit PlainCount(const Board& board, int limit)
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
        board.SolNum[cell] = std::string(1, static_cast<char>('1' + chance.below(6)));
    }
    board.BlankHex = chance.below(2) == 0 ? 10 : NoHexagon;
    return board;
}

TEST(SolutionCounter, AgreesWithTryingEveryArrangement) {
    constexpr int Limit = 40;
    Chance chance(1);
    std::map<int, int> boardsWith;
    for (std::uint32_t i = 0; i < 300; ++i) {
        const Board board = withRandomGivens(chance, 58 + i % 35, i % 3 == 0 ? 1 : 0);
        const SolutionCount count = countSolutions(board, {Limit});
        EXPECT_TRUE(count.isCertain);
        ASSERT_EQ(count.found, PlainCount(board, Limit).found);
        ++boardsWith[std::min(count.found, 2)];
    }
    for (int found = 0; found <= 2; ++found)
        EXPECT_GT(boardsWith[found], 30) << found;
}

TEST(SolutionCounter, EveryCreatedPuzzleHasOneSolution) {
    for (std::uint64_t stream = 0; stream < 600; ++stream) {
        Board board;
        Chance chance(2, stream);
        CreatePuzzle(board, stream % 2 == 0 ? Difficulty::Easy : Difficulty::Hard, chance,
                     completeFill());
        EXPECT_EQ(countSolutions(board).found, 1);
        for (CellId cell : AllCells)
            board.FixedCell[cell] = board.FixedCell[cell] && SideLink[cell];
        EXPECT_EQ(countSolutions(board).found, 2) << "the numbers on the rim can be swapped";
    }
}

TEST(SolutionCounter, StopsWhereItIsTold) {
    const Board empty;
    EXPECT_EQ(countSolutions(empty, {1}).found, 1);
    const SolutionCount many = countSolutions(empty, {5000});
    EXPECT_EQ(many.found, 5000);
    EXPECT_TRUE(many.isCertain);
    const SolutionCount cut = countSolutions(empty, {5000, 30});
    EXPECT_LT(cut.found, 5000);
    EXPECT_FALSE(cut.isCertain);
}

TEST(SolutionCounter, FewOrWrongGivensNeverTakeLong) {
    Chance chance(3);
    for (std::uint32_t i = 0; i < 2000; ++i) {
        const Board board = withRandomGivens(chance, i % 40, i % 7);
        EXPECT_TRUE(countSolutions(board).isCertain) << "board " << i;
    }
}

} // namespace
} // namespace tessaly
