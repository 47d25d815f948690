#pragma once

#include "core/base/command_line.h"
#include "core/base/outcome.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <iosfwd>
#include <optional>
#include <streambuf>
#include <string>
#include <string_view>
#include <vector>

namespace tessaly {

inline constexpr const char* ProgramName = "tessaly-cli";

namespace exit_status {
inline constexpr int Done = 0;
inline constexpr int Failed = 1;
inline constexpr int WrongUsage = tessaly::WrongUsage;
/// Of a check, which tells by `Failed` that something was found.
inline constexpr int CannotCheck = 2;
/// As shells report the end by Ctrl+C.
inline constexpr int Interrupted = 130;
} // namespace exit_status

/// What a command line program reads and writes besides files.
struct Console {
    std::ostream& out;
    std::ostream& err;
    /// Whether `err` is a terminal, where a progress bar can be drawn.
    bool errIsTerminal = false;
    /// Whether the user has asked to stop; may be empty.
    std::function<bool()> wasInterrupted = {};
    /// How wide the terminal is.
    int errColumns = 80;

    bool isInterrupted() const { return wasInterrupted && wasInterrupted(); }
};

/// Says on one line of `err` what is wrong; the exit status of a failure.
int fail(const Console& console, std::string_view problem);
/// The same for a command line that asks for what cannot be.
int refuseUsage(const Console& console, std::string_view problem);

/// Says which seed chance has chosen, so that it can be given again; nothing when it was given.
void tellSeed(const Console& console, const std::optional<std::uint64_t>& given,
              std::uint64_t seed);

/// Whether two names, through links or not, mean one file.
bool isSameFile(const std::filesystem::path& one, const std::filesystem::path& other);

/// "1 puzzle", "2 puzzles"
std::string counted(std::int64_t count, const std::string& thing);

/// Flushes standard output; a failure when something, now or before, could not be written.
Outcome flushed(std::ostream& out);

/// Shows on the terminal, where there is one, how far a long run is and how long the rest will
/// take.
class TerminalProgressBar {
public:
    TerminalProgressBar(const Console& console, std::int64_t total);

    void show(std::int64_t done);
    /// Leaves the line empty.
    void clear();

private:
    using Clock = std::chrono::steady_clock;

    const Console& m_console;
    std::int64_t m_total;
    Clock::time_point m_start = Clock::now();
    Clock::time_point m_next = m_start;
};

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
    /// Tells only where it is: how many bytes of whole lines were written.
    pos_type seekoff(off_type offset, std::ios_base::seekdir from,
                     std::ios_base::openmode which) override;

private:
    bool writeOut();
    void takeBackPartOfLine() const;

    int m_fd;
    std::vector<char> m_buffer;
    /// How many bytes were written, and how many of them of a line that is not ended.
    std::size_t m_written = 0;
    std::size_t m_partOfLine = 0;
    bool m_failed = false;
};

} // namespace tessaly
