#pragma once

#include "core/base/outcome.h"
#include "core/board/board.h"

#include <string>
#include <string_view>

namespace tessaly {

/// A puzzle record is one line of text without separators, positions counted from 1:
///
///     1        "E" easy or "H" hard
///     2-3      the blank hexagon, two digits
///     4, 5     a hard puzzle's hint: position and number; "00" in an easy one
///     6-119    the solution digits of the 114 cells in order; a given is written as the digit's
///              code plus 32, "Q".."V"; an empty solution cell is "0"
///     120      ":" only when the player's progress follows
///     121-234  the player's number in each cell, or a blank
inline constexpr std::size_t RecordLength = 119;
inline constexpr std::size_t RecordLengthWithProgress = 234;

/// The record of a board, with the progress part when a cell that is no given holds a number.
std::string PuzzleRecord(const Board& board);

/// Puts a record (a line without its line end) onto the board. A line that is no record is refused
/// with the reason, and the board stays as it was.
Outcome readRecord(std::string_view line, Board& board);

/// Whether a line is the first part of a record, and no more.
bool isRecordCutShort(std::string_view line);

} // namespace tessaly
