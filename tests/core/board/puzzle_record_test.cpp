#include "core/board/puzzle_record.h"

#include <gtest/gtest.h>

#include <vector>

namespace tessaly {
namespace {

/// A well-formed easy record: blank hexagon 7, hexagon 1 given, the others not.
std::string sampleRecord() {
    std::string record = "E0700QRSTUV";
    while (record.size() < RecordLength)
        record += "123456";
    return record;
}

std::string withProgress(const std::string& numbers) {
    return sampleRecord() + ":" + numbers;
}

TEST(PuzzleRecord, ReadsGivensAsNumbersAndTheRestAsSolutionOnly) {
    Board board;
    ASSERT_TRUE(readRecord(sampleRecord(), board).ok());
    EXPECT_EQ(board.DifName(), "Easy");
    EXPECT_EQ(board.BlankHex, 7);
    EXPECT_TRUE(board.FixedCell[1][1]);
    EXPECT_EQ(board.CellNum[1][1], "1");
    EXPECT_FALSE(board.FixedCell[2][1]);
    EXPECT_EQ(board.CellNum[2][1], "");
    EXPECT_EQ(board.SolNum[2][1], "1");
    EXPECT_EQ(board.SolNum[19][6], "6");
}

TEST(PuzzleRecord, HardRecordsCarryTheirHint) {
    std::string record = sampleRecord();
    record.replace(0, 5, "H1243");
    Board board;
    ASSERT_TRUE(readRecord(record, board).ok());
    EXPECT_EQ(board.DifName(), "Hard");
    EXPECT_EQ(board.BlankHex, 12);
    EXPECT_EQ(board.HintCell, 4);
    EXPECT_EQ(board.HintNum, 3);
    EXPECT_EQ(PuzzleRecord(board), record);
}

TEST(PuzzleRecord, ProgressIsWrittenOnlyForSingleNumbersOfThePlayer) {
    Board board;
    ASSERT_TRUE(readRecord(sampleRecord(), board).ok());
    EXPECT_EQ(PuzzleRecord(board), sampleRecord());

    board.CellNum[2][1] = "35";
    EXPECT_EQ(PuzzleRecord(board), sampleRecord()) << "pencil marks alone are no progress";

    board.CellNum[19][6] = "0";
    const std::string record = PuzzleRecord(board);
    ASSERT_EQ(record.size(), RecordLengthWithProgress);
    EXPECT_EQ(record, withProgress(std::string(BoardCellCount - 1, ' ').append("0")));
}

TEST(PuzzleRecord, ProgressMayBeCutShortAndIgnoresWhatIsNoNumber) {
    Board board;
    // Cells 1 to 6 are givens; cell 2/1 holds 4; "7" and "x" count as blank.
    ASSERT_TRUE(readRecord(withProgress("5     47x 2"), board).ok());
    EXPECT_EQ(board.CellNum[1][1], "1");
    EXPECT_EQ(board.CellNum[2][1], "4");
    EXPECT_EQ(board.CellNum[2][2], "");
    EXPECT_EQ(board.CellNum[2][3], "");
    EXPECT_EQ(board.CellNum[2][5], "2");
    EXPECT_EQ(board.CellNum[3][1], "");
}

TEST(PuzzleRecord, ReadingReplacesEverythingThatTheBoardHeld) {
    Board board;
    board.FixedCell[5][5] = true;
    board.CellNum[5][5] = "12";
    board.SkipHex = 3;
    Board fresh;
    ASSERT_TRUE(readRecord(sampleRecord(), board).ok());
    ASSERT_TRUE(readRecord(sampleRecord(), fresh).ok());
    EXPECT_EQ(board, fresh);
}

TEST(PuzzleRecord, AnEmptySolutionCellIsZeroAndABlankHexagonOutOfRangeIsNone) {
    std::string record = sampleRecord();
    record[118] = '0';
    record.replace(1, 2, "20");
    Board board;
    ASSERT_TRUE(readRecord(record, board).ok());
    EXPECT_EQ(board.SolNum[19][6], "0");
    EXPECT_FALSE(isHexagon(board.BlankHex));
}

TEST(PuzzleRecord, LinesThatAreNoRecordAreRefusedAndChangeNothing) {
    std::string badHeader = sampleRecord();
    badHeader.replace(0, 5, "EXX00");
    std::string letters = sampleRecord();
    letters[60] = 'A';
    std::string seven = sampleRecord();
    seven[118] = '7';
    std::string zeroGiven = sampleRecord();
    zeroGiven[50] = 'P';
    std::string nul = sampleRecord();
    nul[60] = '\0';
    const std::vector<std::string> lines{
        "", "E", sampleRecord().substr(0, 118), badHeader, letters, seven, zeroGiven, nul};
    Board before;
    ASSERT_TRUE(readRecord(withProgress("      3"), before).ok());
    for (const std::string& line : lines) {
        Board board = before;
        EXPECT_FALSE(readRecord(line, board).ok()) << line;
        EXPECT_EQ(board, before) << line;
    }
}

} // namespace
} // namespace tessaly
