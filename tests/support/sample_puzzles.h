#pragma once

#include "core/board/puzzle_record.h"

#include <fstream>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace tessaly {

/// The records of a puzzle file among the tests' own data, without their line ends.
inline std::vector<std::string> sampleRecords(const std::string& name) {
    std::ifstream file(TESSALY_TEST_DATA "/puzzles/" + name, std::ios::binary);
    if (!file)
        throw std::runtime_error("no sample puzzles: " + name);
    std::vector<std::string> records;
    for (std::string line; std::getline(file, line);) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        records.push_back(line);
    }
    return records;
}

inline Board boardOf(const std::string& record) {
    Board board;
    if (const Outcome read = readRecord(record, board); !read.ok())
        throw std::runtime_error(read.problem);
    return board;
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

} // namespace tessaly
