#pragma once

#include "core/board/puzzle_store.h"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <iosfwd>
#include <string>
#include <string_view>
#include <unordered_set>

namespace tessaly {

/// Where new records go: a stream, or the end of a puzzle file. A record that was added before, or
/// that the file held already, is passed over. Whole lines are kept until they are written
/// together.
class RecordOutput {
public:
    /// Without a path, to the stream.
    RecordOutput(std::ostream& stream, std::filesystem::path path);

    /// Learns which puzzles the file holds; there need not be one.
    Outcome open();
    void add(const std::string& record);
    /// Whether enough was added, or enough time has passed, to write it out.
    bool isDue() const;
    /// Writes out what was added; what goes to a file is then on the disk.
    Outcome flush();

    /// "; 2 puzzles added" or "written": how many got into the file, or out; "" when none was made.
    std::string howMuch() const;
    /// How many records were added.
    std::int64_t count() const { return m_count; }

private:
    using Clock = std::chrono::steady_clock;

    std::ostream& m_stream;
    std::filesystem::path m_path;
    PuzzleStore m_store;
    /// A hash for each record. Two different records with one hash are no harm: the second is
    /// passed over like a repeated one.
    std::unordered_set<std::size_t> m_known;
    std::string m_lines;
    Clock::time_point m_lastFlush = Clock::now();
    std::int64_t m_count = 0;
    std::int64_t m_written = 0;
    std::streamoff m_streamStart;
};

} // namespace tessaly
