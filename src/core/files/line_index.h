#pragma once

#include "core/base/yield.h"
#include "core/files/file_descriptor.h"

#include <string_view>
#include <vector>

namespace tessaly {

/// The bytes of one line of a file, its line end included.
struct LineSpan {
    std::int64_t begin = 0;
    std::int64_t end = 0;
};

/// How many lines a file has and where each lies, found out in one pass and kept until the file
/// changes; one that had changed the moment before it was read is read once more. Blank lines at
/// the end are no lines; a byte order mark is no part of line 1.
///
/// Kept is one number for each block of the file, how many line ends lie before it:
///
///     block         0        1        2        3
///     file      |...n..n.|n.......|...n....|.n..       n = line end
///     kept          0        2        3        4
///
/// A line is found by reading the one block that its number points to.
class LineIndex {
public:
    /// Brings the index up to what the open file holds now; reads nothing when the file is the one
    /// indexed last and has not changed. Calls `yield` for every block read.
    Outcome update(const FileDescriptor& file, const Yield& yield = {});
    /// The same after the caller has appended to the file just indexed, and nobody else has: reads
    /// the new part only.
    Outcome updateAppended(const FileDescriptor& file);
    /// Whether `update` would have nothing to read.
    bool isOf(const FileState& state) const { return m_valid && m_settled && m_state == state; }

    /// The file when its lines were counted.
    const FileState& state() const { return m_state; }

    int count() const { return static_cast<int>(m_count); }
    /// Whether the last line is ended, and so cannot be one that was cut short.
    bool endsInLineEnd() const { return m_lineEnds >= m_count; }
    /// Whether the last line is followed by more than its line end.
    bool hasBlankTail() const;

    /// Where line `number` lies, 1 .. count().
    Outcome find(const FileDescriptor& file, int number, LineSpan& span) const;
    /// Where a line begins; also the one behind the last, when that is ended.
    Outcome findStart(const FileDescriptor& file, std::int64_t line, std::int64_t& offset) const;

private:
    Outcome read(const FileDescriptor& file, std::int64_t offset, const Yield& yield);
    void take(std::string_view block, std::int64_t offset);

    bool m_valid = false;
    FileState m_state;
    /// Whether the file, had it changed after it was read, would be in another state by now.
    bool m_settled = false;
    std::vector<std::int64_t> m_lineEndsBefore;
    std::int64_t m_lineEnds = 0;
    std::int64_t m_count = 0;
    std::int64_t m_textStart = 0;
    bool m_endsInLineEnd = false;
};

} // namespace tessaly
