#include "cli/record_output.h"

#include "cli/console.h"
#include "core/board/puzzle_record.h"
#include "core/board/puzzle_store.h"
#include "core/files/file_access.h"
#include "core/files/line_reader.h"

#include <functional>
#include <ostream>
#include <utility>

namespace tessaly {
namespace {

constexpr std::size_t FileBatch = 100'000;
constexpr std::size_t StreamBatch = 32'000;

/// New records carry no progress.
constexpr std::streamoff BytesPerRecord = RecordLength + LineEnd.size();

/// How far a stream is, also one that has failed.
std::streamoff placeIn(const std::ostream& stream) {
    return stream.rdbuf()->pubseekoff(0, std::ios_base::cur, std::ios_base::out);
}

/// The puzzle that a record stands for, whatever progress the player made on it.
std::size_t puzzleHash(std::string_view record) {
    return std::hash<std::string_view>()(record.substr(0, RecordLength));
}

} // namespace

RecordOutput::RecordOutput(std::ostream& stream, std::filesystem::path path)
    : m_stream(stream)
    , m_path(std::move(path))
    , m_streamStart(placeIn(stream)) {}

Outcome RecordOutput::open() {
    if (m_path.empty() || !FileExists(m_path))
        return Outcome::done();
    bool hasLines = false;
    bool hasRecord = false;
    Board board;
    Outcome read = forEachRecord(m_path, [&](RecordLine line) {
        m_known.insert(puzzleHash(line.text));
        hasLines = true;
        hasRecord = hasRecord || line.read(board).ok();
        return true;
    });
    if (read.ok() && hasLines && !hasRecord)
        return Outcome::failed(m_path.native() + ": is no puzzle file");
    return read;
}

void RecordOutput::add(const std::string& record) {
    if (!m_known.insert(puzzleHash(record)).second)
        return;
    m_lines += record;
    m_lines += LineEnd;
    ++m_count;
}

bool RecordOutput::isDue() const {
    return m_lines.size() >= (m_path.empty() ? StreamBatch : FileBatch) ||
           Clock::now() - m_lastFlush > std::chrono::seconds(1);
}

Outcome RecordOutput::flush() {
    const std::string lines = std::exchange(m_lines, {});
    m_lastFlush = Clock::now();
    if (!m_path.empty()) {
        Outcome written = lines.empty() ? Outcome::done() : m_store.appendPuzzles(m_path, lines);
        m_written = written.ok() ? m_count : m_written;
        return written;
    }
    m_stream << lines;
    Outcome written = flushed(m_stream);
    m_written = (placeIn(m_stream) - m_streamStart) / BytesPerRecord;
    return written;
}

std::string RecordOutput::howMuch() const {
    const char* const done = m_path.empty() ? " written" : " added";
    return m_count == 0 ? "" : "; " + counted(m_written, "puzzle") + done;
}

} // namespace tessaly
