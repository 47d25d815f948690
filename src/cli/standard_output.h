#pragma once

#include <cstddef>
#include <streambuf>
#include <vector>

namespace tessaly {

/// Writes to an open file (standard output, mostly) and leaves whole lines there: when a write
/// fails in the middle of a line, as on a full disk, the part of the line is taken back where that
/// can be done, that is, where it is the end of a regular file.
class StandardOutput : public std::streambuf {
public:
    explicit StandardOutput(int fd);
    StandardOutput(const StandardOutput&) = delete;
    StandardOutput& operator=(const StandardOutput&) = delete;
    ~StandardOutput() override;

protected:
    int_type overflow(int_type c) override;
    int sync() override;

private:
    bool writeOut();
    void takeBackPartOfLine() const;

    int m_fd;
    std::vector<char> m_buffer;
    /// How many bytes of a line that is not ended were written.
    std::size_t m_partOfLine = 0;
    bool m_failed = false;
};

} // namespace tessaly
