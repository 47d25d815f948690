#include "core/play/assists.h"

#include "core/play/game.h"
#include "support/sample_puzzles.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

/// Hexagon 10 holds the givens 1, 2 and 3 in its cells 1, 2 and 3. Its cell 5 faces hexagon 15, its
/// cell 2 faces hexagon 5.
struct AssistsTest : testing::Test, Game {
    AssistsTest() {
        for (int position = 1; position <= 3; ++position) {
            board.CellNum[10][static_cast<std::size_t>(position)] = NumText(position);
            board.FixedCell[CellId{10, position}] = true;
        }
    }
    std::string candidates(CellId cell) const { return CandidateText(board, TouchedCell, cell); }
};

TEST_F(AssistsTest, CandidatesComeFromBothHexagonsOfTheSide) {
    place({15, 1}, "6");
    EXPECT_EQ(candidates({10, 5}), "45");
    board.CellNum[10][5] = "45";
    EXPECT_EQ(candidates({10, 5}), "456") << "its own hexagon's where the marks stand already";
    board.CellNum[10][5] = "";
    place({15, 2}, "5");
    EXPECT_EQ(candidates({10, 5}), "5") << "the pair must match";
    EXPECT_EQ(candidates({10, 1}), "1") << "a given is itself";
    EXPECT_EQ(candidates({1, 1}), "123456") << "a rim cell";

    board.CellNum[10][4] = "4";
    EXPECT_EQ(candidates({10, 4}), "456") << "a number of a saved game counts only once touched";
    TouchedCell[10][4] = true;
    EXPECT_EQ(candidates({10, 4}), "4");
    EXPECT_EQ(CountedNumbers(board, TouchedCell, 10), "1234");
    place({10, 5}, "5");
    board.CellNum[10][6] = "12";
    EXPECT_EQ(candidates({10, 6}), "12") << "the last cell of a hexagon is left alone";
    board.SkipHex = 10;
    EXPECT_EQ(candidates({10, 5}), "");
}

TEST_F(AssistsTest, MarksReplaceMarksAndUntouchedNumbersAndAreCleared) {
    board.CellNum[10] = {"", "1", "2", "3", "6", "12", ""};
    const Board before = board;
    EXPECT_EQ(withCandidates(board, TouchedCell, 10).CellNum[10][5], "456");
    EXPECT_EQ(board, before) << "a peek is a copy";
    fillPencilMarks(board, TouchedCell);
    EXPECT_EQ(board.CellNum[10], (Grid<std::string>::Row{"", "1", "2", "3", "456", "456", "456"}));
    EXPECT_EQ(board.CellNum[5][5], "2") << "what the given across the side holds";
    clearPencilMarks(board);
    EXPECT_EQ(board.CellNum[10], (Grid<std::string>::Row{"", "1", "2", "3", "", "", ""}));
    EXPECT_EQ(board.CellNum[5][5], "2");
}

TEST(SingleCandidate, NamesTheFirstOpenCellOfAHexagonThatLacksOneNumber) {
    struct Row {
        Grid<std::string>::Row entries;
        int position;
    };
    Board board;
    for (const auto& [entries, position] : {
             Row{{"", "1", "23", "3", "4", "5", "6"}, 2},
             Row{{"", "1", "23", "3", "4", "3", "6"}, 0}, // two numbers are missing
             Row{{"", "1", "1", "3", "4", "5", "6"}, 0},  // no open cell
         }) {
        board.CellNum[4] = entries;
        const Single single = SingleCandidate(board, 4);
        EXPECT_EQ(single.cell.position, position);
        EXPECT_EQ(single.number, position == 0 ? "" : "2");
    }
    board.CellNum[4][2] = "";
    board.SkipHex = 4;
    EXPECT_FALSE(SingleCandidate(board, 4).cell);
    EXPECT_FALSE(SingleCandidate(board, 20).cell);
}

TEST(SolutionCheck, NamesTheLowestHexagonWithARepeatedNumberOrAZero) {
    Board board = boardOf(sampleRecords("easy.txt").front());
    EXPECT_EQ(firstWrongHexagon(board), 0) << "missing numbers are no fault";
    board.CellNum[12] = {"", "3", "", "3", "", "33", ""};
    EXPECT_EQ(firstWrongHexagon(board), 12);
    board.CellNum[3] = {"", "", "", "0", "", "", ""};
    EXPECT_EQ(firstWrongHexagon(board), 3);
}

TEST(SolutionCheck, SolvedMeansOneNumberInEachCellWhichIsItsSolutionIfItHasOne) {
    Board board = boardOf(sampleRecords("hard.txt").front());
    board.CellNum = board.SolNum;
    const Board solved = board;
    EXPECT_TRUE(isSolved(board));
    for (const char* wrong : {"12", ""}) {
        board.CellNum[19][6] = wrong;
        EXPECT_FALSE(isSolved(board)) << wrong;
    }
    board = solved;
    std::swap(board.CellNum[1][1], board.CellNum[1][2]);
    EXPECT_FALSE(isSolved(board));
    for (CellId cell : AllCells)
        board.SolNum[cell] = cell.hexagon % 2 == 0 ? "" : "0";
    EXPECT_TRUE(isSolved(board));
    board.CellNum[2][1] = "45";
    EXPECT_FALSE(isSolved(board));
}

} // namespace
} // namespace tessaly
