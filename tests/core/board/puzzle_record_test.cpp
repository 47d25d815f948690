#include "core/board/puzzle_record.h"

#include "support/sample_puzzles.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

/// A well-formed easy record: blank hexagon 7, hexagon 1 given, the others not.
std::string sampleRecord() {
    std::string record = "E0700QRSTUV";
    while (record.size() < RecordLength)
        record += "123456";
    return record;
}

std::string changed(std::size_t at, const std::string& characters) {
    return sampleRecord().replace(at, characters.size(), characters);
}

std::string withProgress(const std::string& numbers) {
    return sampleRecord() + ":" + numbers;
}

TEST(PuzzleRecord, ARecordIsTheWholeBoardWhateverItHeldBefore) {
    Board board;
    board.FixedCell[5][5] = true;
    board.CellNum[5][5] = "12";
    board.SkipHex = 3;
    const std::string record = changed(0, "H1243");
    ASSERT_TRUE(readRecord(record, board).ok());
    EXPECT_EQ(board, boardOf(record));
    EXPECT_EQ(PuzzleRecord(board), record);
    EXPECT_EQ(board.DifName(), "Hard");
    EXPECT_EQ((std::array{board.BlankHex, board.HintCell, board.HintNum}), (std::array{12, 4, 3}));
    EXPECT_TRUE(board.FixedCell[1][1] && !board.FixedCell[2][1]);
    EXPECT_EQ(board.CellNum[1][1] + board.CellNum[2][1], "1");
    EXPECT_EQ(board.SolNum[2][1] + board.SolNum[19][6], "16");
    EXPECT_FALSE(isHexagon(boardOf(changed(1, "20")).BlankHex));
    EXPECT_EQ(boardOf(changed(118, "0")).SolNum[19][6], "0");
}

TEST(PuzzleRecord, ProgressIsWrittenForSingleNumbersOfThePlayerAndReadBack) {
    Board board = boardOf(sampleRecord());
    board.CellNum[2][1] = "35";
    EXPECT_EQ(PuzzleRecord(board), sampleRecord()) << "pencil marks alone are no progress";
    board.CellNum[3] = {"", "0", "1", "2", "3", "4", "5"};
    board.CellNum[4][1] = "6";
    std::string numbers(BoardCellCount, ' ');
    const std::string written = withProgress(numbers.replace(12, 7, "0123456"));
    EXPECT_EQ(PuzzleRecord(board), written);
    board.CellNum[2][1].clear();
    EXPECT_EQ(boardOf(written), board);
    // Cells 1 to 6 are givens; what is no number counts as blank, and the rest may be missing.
    board = boardOf(withProgress("5     47x 2"));
    EXPECT_EQ(board.CellNum[1][1], "1");
    EXPECT_EQ(board.CellNum[2], (std::array<std::string, 7>{"", "4", "", "", "", "2", ""}));
}

TEST(PuzzleRecord, LinesThatAreNoRecordAreRefusedAndChangeNothing) {
    const std::string cut = sampleRecord().substr(0, 118);
    const Board before = boardOf(withProgress("      3"));
    for (const std::string& line :
         {std::string(), std::string("E"), cut, changed(0, "EXX00"), changed(60, "A"),
          changed(118, "7"), changed(50, "P"), changed(60, std::string(1, '\0')), std::string("x"),
          std::string("EXX"), std::string("E0700A"), std::string("07")}) {
        Board board = before;
        EXPECT_FALSE(readRecord(line, board).ok()) << line;
        EXPECT_EQ(board, before) << line;
        EXPECT_EQ(isRecordCutShort(line), line == "E" || line == cut) << line;
    }
    EXPECT_FALSE(isRecordCutShort(sampleRecord()));
}

} // namespace
} // namespace tessaly
