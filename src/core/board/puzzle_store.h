#pragma once

#include "core/base/outcome.h"
#include "core/base/yield.h"
#include "core/board/board.h"
#include "core/files/file_descriptor.h"
#include "core/files/line_index.h"

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

/// Puzzle files: plain text, one record a line, the puzzle number is the line number. Blank lines
/// at the end are no records, nor is a record there that was cut short, which a process left that
/// was killed as it wrote; a new record takes the place of both.

namespace tessaly {

class LockedFile;

/// The puzzle file in the program's folder that puzzles without a file of their own go to.
inline constexpr std::string_view TemporaryPuzzleFile = "temporarypuzfile.txt";
/// Where those of the days live.
inline constexpr std::string_view DayPuzzleFile = "today.txt";

/// "FILE: line N: what is wrong".
std::string lineProblem(const std::filesystem::path& path, int number, std::string_view problem);

inline constexpr std::string_view OverLongProblem = "the line is longer than any record";

/// One line of a puzzle file.
struct RecordLine {
    /// From 1.
    int number = 0;
    std::string_view text;
    /// Whether it is longer than any record can be; its text is not kept then.
    bool isOverLong = false;

    /// Puts the record onto the board; a line that is none is refused with the reason.
    Outcome read(Board& board) const;
};

/// Goes through the records of a puzzle file until `visit` answers false.
Outcome forEachRecord(const std::filesystem::path& path,
                      const std::function<bool(RecordLine)>& visit);

/// Puts the record with that number, counting from 1, onto the board. Reads what can be read only
/// once, too.
Outcome readRecordAt(const std::filesystem::path& path, int number, Board& board);

/// How reading a puzzle ended.
struct PuzzleRead {
    enum class Status { Done, NoRecord, CannotRead };

    Status status = Status::CannotRead;
    /// What is wrong, in words; empty when done.
    std::string reason = {};
    /// How many records the file holds; 0 when it cannot be read.
    int count = 0;
    /// The line as it stands in the file, without its line end, a record or not; empty where there
    /// is none.
    std::string record = {};
    /// What is wrong with that line; empty when it is a record.
    std::string flaw = {};

    bool ok() const { return status == Status::Done; }
};

/// Reads puzzles by their number, and is the one way to append and delete them. Knows where the
/// lines of the file used last lie, so that stepping through a huge file takes no time, and looks
/// anew whenever a file has changed.
class PuzzleStore {
public:
    /// `yield` is called for every block of a file that is read or copied, `wait` for a file that
    /// another program is writing.
    explicit PuzzleStore(Yield yield = {}, LockWait wait = {})
        : m_yield(std::move(yield))
        , m_wait(std::move(wait)) {}

    /// Counts the records of a file.
    Outcome CountLines(const std::filesystem::path& path, int& count);

    /// Puts record `number`, from 1, onto the board. The board stays as it was unless done.
    PuzzleRead ReadPuzzle(const std::filesystem::path& path, int number, Board& board);

    /// The file as it was when a puzzle was read or counted last.
    const FileState& lastRead() const { return m_index.state(); }

    /// Writes the board's record: mode 1 makes it the only one of the file, any other appends it.
    Outcome WritePuzzle(const std::filesystem::path& path, int mode, const Board& board);

    /// Appends a record as a new last line; `number` gets its puzzle number.
    Outcome appendPuzzle(const std::filesystem::path& path, std::string_view record, int& number);

    /// Appends whole lines, each with its line end, in one write.
    Outcome appendPuzzles(const std::filesystem::path& path, std::string_view wholeLines);

    /// Appends all the lines that `writer` writes, or none.
    Outcome appendPuzzles(const std::filesystem::path& path, const ContentWriter& writer);

    /// Removes line `number` if it is still `expected`, the record as it was read; otherwise
    /// another program has changed the file, which is reported, and nothing is removed. All other
    /// bytes stay as they are.
    Outcome DeletePuzzle(const std::filesystem::path& path, int number, std::string_view expected);

private:
    Outcome openIndexed(const std::filesystem::path& path, FileDescriptor& file);
    Outcome updateIndex(const std::filesystem::path& path, const FileDescriptor& file);
    int count() const { return m_index.count() - (m_endsTorn ? 1 : 0); }
    Outcome readLine(const std::filesystem::path& path, const FileDescriptor& file, int number,
                     LineSpan& span, std::string& line);
    Outcome append(const std::filesystem::path& path, std::string_view wholeLines, int& number);
    Outcome appendOnce(const std::filesystem::path& path, std::string_view wholeLines, int& number,
                       bool& standsThere);
    Outcome rewriteWithMore(const LockedFile& file, const ContentWriter& more);

    Yield m_yield;
    LockWait m_wait;
    LineIndex m_index;
    /// Whether the last line of the indexed file is a record cut short.
    bool m_endsTorn = false;
};

} // namespace tessaly
