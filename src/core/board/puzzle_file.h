#pragma once

#include "core/base/outcome.h"
#include "core/base/yield.h"
#include "core/board/board.h"
#include "core/files/content_sink.h"
#include "core/files/line_index.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace tessaly {

class LockedFile;

/// The puzzle file in the program's folder that puzzles without a file of their own go to, and that
/// deleting a puzzle writes the others to.
inline constexpr std::string_view TemporaryPuzzleFile = "temporarypuzfile.txt";

/// How reading a puzzle ended.
struct PuzzleRead {
    enum class Status { Done, NoRecord, CannotRead };

    Status status = Status::CannotRead;
    /// What is wrong, in words; empty when done.
    std::string reason;
    /// How many records the file holds; 0 when it cannot be read.
    int count = 0;
    /// The record as it stands in the file, without its line end; empty unless done.
    std::string record;

    bool ok() const { return status == Status::Done; }
};

/// Puzzle files: plain text, one record a line, the puzzle number is the line number. Knows where
/// the lines of the file used last lie, so that stepping through a huge file takes no time, and
/// looks anew whenever a file has changed.
class PuzzleFiles {
public:
    /// `yield` is called for every block of a file that is read or copied.
    explicit PuzzleFiles(Yield yield = {})
        : m_yield(std::move(yield)) {}

    /// Counts the records of a file. Blank lines at its end are none.
    Outcome CountLines(const std::filesystem::path& path, int& count);

    /// Puts record `number`, from 1, onto the board. The board stays as it was unless done.
    PuzzleRead ReadPuzzle(const std::filesystem::path& path, int number, Board& board);

    /// Writes the board's record: mode 1 makes it the only one of the file, any other appends it.
    Outcome WritePuzzle(const std::filesystem::path& path, int mode, const Board& board);

    /// Appends a record as a new last line; `number` gets its puzzle number.
    Outcome appendPuzzle(const std::filesystem::path& path, std::string_view record, int& number);

    /// Appends all the lines that `writer` writes, or none.
    Outcome appendPuzzles(const std::filesystem::path& path, const ContentWriter& writer);

    /// Removes line `number` if it is still `expected`, the record as it was read; otherwise
    /// another program has changed the file, which is reported, and nothing is removed. All lines
    /// but that one are also left in `TemporaryPuzzleFile` in `programFolder`.
    Outcome DeletePuzzle(const std::filesystem::path& path, int number, std::string_view expected,
                         const std::filesystem::path& programFolder);

private:
    Outcome openIndexed(const std::filesystem::path& path, FileDescriptor& file);
    Outcome updateIndex(const std::filesystem::path& path, const FileDescriptor& file);
    Outcome readLine(const std::filesystem::path& path, const FileDescriptor& file, int number,
                     LineSpan& span, std::string& line);
    Outcome appendInPlace(const LockedFile& file, const std::string& line);
    Outcome rewriteWithMore(const LockedFile& file, const ContentWriter& more);

    Yield m_yield;
    LineIndex m_index;
};

} // namespace tessaly
