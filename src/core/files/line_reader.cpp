#include "core/files/line_reader.h"

#include <algorithm>
#include <unistd.h>

namespace tessaly {
namespace {

constexpr std::size_t BufferSize = std::size_t{64} * 1024;

} // namespace

std::string_view takeLine(std::string_view& rest) {
    const std::size_t feed = rest.find('\n');
    const std::string_view line = rest.substr(0, feed == std::string_view::npos ? feed : feed + 1);
    rest.remove_prefix(line.size());
    return line;
}

std::string_view withoutLineEnd(std::string_view line) {
    if (line.ends_with('\n'))
        line.remove_suffix(1);
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    return line;
}

std::string_view withoutMark(std::string_view text) {
    return text.starts_with(ByteOrderMark) ? text.substr(ByteOrderMark.size()) : text;
}

LineReader::LineReader(std::size_t longest)
    : m_longest(longest)
    , m_buffer(BufferSize) {}

Outcome LineReader::open(const std::filesystem::path& path) {
    m_path = path;
    m_rest = {};
    m_offset = 0;
    m_number = 0;
    m_problem = {};
    Outcome opened = openForReadingOnce(path, m_file);
    m_mayWait = opened.ok() && !checkRegular(m_file, path).ok();
    return opened;
}

LineReader::Result LineReader::next() {
    m_line.clear();
    m_overLong = false;
    m_ended = false;
    bool begun = false;
    while (!m_ended && (!m_rest.empty() || fill())) {
        begun = true;
        keep(takeLine(m_rest));
    }
    if (!m_problem.ok())
        return Result::Failed;
    return begun ? finish() : Result::End;
}

/// Whether there is more of the file.
bool LineReader::fill() {
    // What has to wait is not tried again after a signal: whoever sits at the terminal may want to
    // stop.
    const auto got = m_mayWait ? ::read(m_file.get(), m_buffer.data(), m_buffer.size())
                               : readAt(m_file, m_buffer.data(), m_buffer.size(), m_offset);
    if (got < 0)
        m_problem = fileProblem(m_path, "cannot be read");
    m_rest = {m_buffer.data(), static_cast<std::size_t>(std::max<std::int64_t>(got, 0))};
    m_offset += std::ssize(m_rest);
    return !m_rest.empty();
}

void LineReader::keep(std::string_view piece) {
    m_ended = piece.ends_with('\n');
    m_overLong = m_overLong || m_line.size() + piece.size() > m_longest + LineEnd.size();
    if (!m_overLong)
        m_line += piece;
}

LineReader::Result LineReader::finish() {
    ++m_number;
    m_line.resize(withoutLineEnd(m_line).size());
    if (m_number == 1)
        m_line.erase(0, m_line.size() - withoutMark(m_line).size());
    m_overLong = m_overLong || m_line.size() > m_longest;
    if (m_overLong)
        m_line.clear();
    return m_overLong ? Result::OverLong : Result::Line;
}

std::vector<TextLine> splitLines(std::string_view content) {
    std::vector<TextLine> lines;
    while (!content.empty()) {
        const std::string_view raw = takeLine(content);
        lines.push_back({withoutLineEnd(lines.empty() ? withoutMark(raw) : raw), raw});
    }
    return lines;
}

} // namespace tessaly
