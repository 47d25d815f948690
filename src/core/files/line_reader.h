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

/// Takes the first line off a text that is not empty, with its line end if it has one.
std::string_view takeLine(std::string_view& rest);

/// A line without its line end.
std::string_view withoutLineEnd(std::string_view line);

/// A text without the byte order mark at its start.
std::string_view withoutMark(std::string_view text);

/// Reads a file, a pipe or a terminal line by line, without its line ends, in bounded memory
/// however long its lines are.
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
    /// Whether it ends in a line feed, as every line but the last of a file does.
    bool isEnded() const { return m_ended; }
    /// What is wrong after `Failed`.
    const Outcome& problem() const { return m_problem; }

private:
    bool fill();
    void keep(std::string_view piece);
    Result finish();

    std::size_t m_longest;
    std::filesystem::path m_path;
    FileDescriptor m_file;
    /// A pipe or a terminal: it has no offsets, and what it holds may come later.
    bool m_mayWait = false;
    std::int64_t m_offset = 0;
    std::vector<char> m_buffer;
    std::string_view m_rest;
    std::string m_line;
    bool m_ended = false;
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
