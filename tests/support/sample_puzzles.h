#pragma once

#include "core/board/puzzle_record.h"
#include "core/board/tables.h"
#include "support/temporary_folder.h"

#include <array>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace tessaly {

/// The records of a puzzle file, without their line ends.
inline std::vector<std::string> recordsOf(const std::string& path) {
    return linesOf(contentOf(path), "\r\n");
}

/// The records of a puzzle file among the tests' own data.
inline std::vector<std::string> sampleRecords(const std::string& name) {
    return recordsOf(TESSALY_TEST_DATA "/puzzles/" + name);
}

inline Board boardOf(const std::string& record) {
    Board board;
    if (const Outcome read = readRecord(record, board); !read.ok())
        throw std::runtime_error(read.problem);
    return board;
}

/// The same puzzle with exactly those cells given for which `isGiven` answers true.
template <class IsGiven>
std::string givenWhere(const std::string& record, const IsGiven& isGiven) {
    Board board = boardOf(record);
    for (CellId cell : AllCells)
        board.FixedCell[cell] = isGiven(cell);
    board.ResetToGivens();
    return PuzzleRecord(board);
}

/// A puzzle that the rules leave open and sound: only the cells on the rim are given.
inline std::string recordOfTheRim(const std::string& record) {
    return givenWhere(record, [](CellId cell) { return !SideLink[cell]; });
}

/// How a failing test shows a board.
inline void PrintTo(const Board& board, std::ostream* out) {
    *out << PuzzleRecord(board);
}

/// A puzzle of which nothing is given and nothing known, so that every cell may be filled.
inline Board puzzleWithoutGivens() {
    Board board;
    for (CellId cell : AllCells)
        board.SolNum[cell] = "0";
    return board;
}

/// A well-formed record, another one for each seed.
inline std::string recordNumbered(int seed) {
    std::string record = "E0700";
    for (; record.size() < RecordLength; seed /= 6)
        record += static_cast<char>((record.size() % 3 == 0 ? 'Q' : '1') + seed % 6);
    return record;
}

/// The text of a puzzle file of `count` different records.
inline std::string recordFile(int count, std::string_view lineEnd = "\r\n") {
    std::string text;
    for (int seed = 1; seed <= count; ++seed)
        text += recordNumbered(seed) + std::string(lineEnd);
    return text;
}

/// A puzzle with hexagon 7 blank. It never changes, so that pictures of it can be kept.
inline Board sampleBoard() {
    return boardOf("E0700TRV531RV14535RV431VU342Q4S15624QUS26TURSVQ536142T2136U36215412V"
                   "T35364125Q45263R653TQ1532T623VQU43261TU264QU3143VRU");
}

/// The sample in the middle of a play: numbers, cells of one to six marks, empty cells.
inline Board sampleBoardInPlay() {
    constexpr std::array Marks{"12", "135", "1246", "23456", "123456", "35"};
    Board board = sampleBoard();
    std::size_t open = 0;
    for (CellId cell : AllCells) {
        if (board.FixedCell[cell])
            continue;
        if (open % 3 == 0)
            board.CellNum[cell] = board.SolNum[cell];
        else if (open % 3 == 1)
            board.CellNum[cell] = Marks[open / 3 % Marks.size()];
        ++open;
    }
    return board;
}

} // namespace tessaly
