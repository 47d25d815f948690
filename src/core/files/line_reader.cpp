#include "core/files/line_reader.h"

namespace tessaly {
namespace {

constexpr std::size_t BufferSize = std::size_t{64} * 1024;

} // namespace

LineReader::LineReader(std::size_t longest)
    : m_longest(longest)
    , m_buffer(BufferSize) {}

Outcome LineReader::open(const std::filesystem::path& path) {
    m_path = path;
    m_offset = 0;
    m_rest = {};
    m_number = 0;
    m_problem = {};
    return openForReading(path, m_file);
}

LineReader::Result LineReader::next() {
    m_line.clear();
    m_overLong = false;
    bool begun = false;
    while (!m_rest.empty() || fill()) {
        begun = true;
        const std::size_t end = m_rest.find('\n');
        take(m_rest.substr(0, end));
        if (end != std::string_view::npos) {
            m_rest.remove_prefix(end + 1);
            return finish();
        }
        m_rest = {};
    }
    if (!m_problem.ok())
        return Result::Failed;
    return begun ? finish() : Result::End;
}

/// Whether there is more of the file.
bool LineReader::fill() {
    const auto got = readAt(m_file, m_buffer.data(), m_buffer.size(), m_offset);
    if (got < 0)
        m_problem = fileProblem(m_path, "cannot be read");
    if (got <= 0)
        return false;
    m_rest = {m_buffer.data(), static_cast<std::size_t>(got)};
    if (m_offset == 0 && m_rest.starts_with(ByteOrderMark))
        m_rest.remove_prefix(ByteOrderMark.size());
    m_offset += got;
    return !m_rest.empty();
}

void LineReader::take(std::string_view piece) {
    // One more than the longest line may be the CR of its end.
    m_overLong = m_overLong || m_line.size() + piece.size() > m_longest + 1;
    if (m_overLong)
        m_line.clear();
    else
        m_line += piece;
}

LineReader::Result LineReader::finish() {
    ++m_number;
    m_line.resize(withoutReturn(m_line).size());
    if (m_line.size() > m_longest) {
        m_line.clear();
        m_overLong = true;
    }
    return m_overLong ? Result::OverLong : Result::Line;
}

std::vector<TextLine> splitLines(std::string_view content) {
    std::vector<TextLine> lines;
    while (!content.empty()) {
        const std::size_t feed = content.find('\n');
        const std::size_t rawSize = feed == std::string_view::npos ? content.size() : feed + 1;
        std::string_view text = withoutReturn(content.substr(0, feed));
        if (lines.empty() && text.starts_with(ByteOrderMark))
            text.remove_prefix(ByteOrderMark.size());
        lines.push_back({text, content.substr(0, rawSize)});
        content.remove_prefix(rawSize);
    }
    return lines;
}

} // namespace tessaly
