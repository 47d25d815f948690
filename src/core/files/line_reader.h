#pragma once

#include "core/files/file_descriptor.h"

#include <string>
#include <string_view>
#include <vector>

namespace tessaly {

/// How new lines are ended. Read are CR LF and LF alike, and a last line without either.
inline constexpr std::string_view LineEnd = "\r\n";

/// What may stand at the start of a file that other programs wrote (UTF-8); no part of line 1.
inline constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

/// A line without the CR that belongs to its end.
constexpr std::string_view withoutReturn(std::string_view line) {
    return line.ends_with('\r') ? line.substr(0, line.size() - 1) : line;
}

/// Reads a file line by line, without its line ends, in bounded memory however long its lines are.
class LineReader {
public:
    enum class Result { Line, OverLong, End, Failed };

    /// Lines longer than `longest` bytes are over-long: told, but not kept.
    explicit LineReader(std::size_t longest);

    Outcome open(const std::filesystem::path& path);
    /// Goes on to the next line.
    Result next();

    /// The line read last, valid until the next call; empty when it was over-long.
    std::string_view line() const { return m_line; }
    /// Its number, counting from 1.
    int number() const { return m_number; }
    /// What is wrong after `Failed`.
    const Outcome& problem() const { return m_problem; }

private:
    bool fill();
    void take(std::string_view piece);
    Result finish();

    std::size_t m_longest;
    std::filesystem::path m_path;
    FileDescriptor m_file;
    std::int64_t m_offset = 0;
    std::vector<char> m_buffer;
    std::string_view m_rest;
    std::string m_line;
    bool m_overLong = false;
    int m_number = 0;
    Outcome m_problem;
};

/// One line of a text that lies in memory.
struct TextLine {
    /// What it says, without its line end and without a byte-order mark before it.
    std::string_view text;
    /// All its bytes: the raw lines of a text, joined, are the text.
    std::string_view raw;
};

/// The lines of a text, which must outlive them.
std::vector<TextLine> splitLines(std::string_view content);

} // namespace tessaly
