#include "core/board/puzzle_record.h"

#include "support/sample_puzzles.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

/// A well-formed easy record: blank hexagon 7, hexagon 1 given, the others not.
std::string sampleRecord(const std::string& header = "E0700") {
    std::string record = header + "QRSTUV";
    while (record.size() < RecordLength)
        record += "123456";
    return record;
}

TEST(PuzzleRecord, ARecordIsTheWholeBoardWhateverItHeldBefore) {
    Board board;
    board.FixedCell[5][5] = true;
    board.CellNum[5][5] = "12";
    board.SkipHex = 3;
    const std::string record = sampleRecord("H1243").replace(118, 1, "0");
    ASSERT_TRUE(readRecord(record, board).ok());
    EXPECT_EQ(board, boardOf(record));
    EXPECT_EQ(PuzzleRecord(board), record);
    EXPECT_EQ(board.DifName(), "Hard");
    EXPECT_EQ((std::array{board.BlankHex, board.HintCell, board.HintNum}), (std::array{12, 4, 3}));
    EXPECT_TRUE(board.FixedCell[1][1] && !board.FixedCell[2][1]);
    EXPECT_EQ(board.CellNum[1][1] + board.CellNum[2][1], "1");
    EXPECT_EQ(board.SolNum[2][1] + board.SolNum[19][6], "10");
    EXPECT_FALSE(isHexagon(boardOf(sampleRecord("E2000")).BlankHex));
}

TEST(PuzzleRecord, ProgressIsWrittenForSingleNumbersOfThePlayerAndReadBack) {
    Board board = boardOf(sampleRecord());
    board.CellNum[2][1] = "35";
    EXPECT_EQ(PuzzleRecord(board), sampleRecord()) << "pencil marks alone are no progress";
    board.CellNum[3] = {"", "0", "1", "2", "3", "4", "5"};
    board.CellNum[4][1] = "6";
    const std::string written = sampleRecord() + ":            0123456";
    EXPECT_EQ(PuzzleRecord(board), written + std::string(95, ' '));
    board.CellNum[2][1].clear();
    EXPECT_EQ(boardOf(written), board) << "what is missing at the end is blank";
    // Cells 1 to 6 are givens; what is no number counts as blank.
    board = boardOf(sampleRecord() + ":5     47x 2");
    EXPECT_EQ(board.CellNum[1][1], "1");
    EXPECT_EQ(board.CellNum[2], (std::array<std::string, 7>{"", "4", "", "", "", "2", ""}));
}

} // namespace
} // namespace tessaly
