#pragma once

#include "core/base/outcome.h"

#include <functional>
#include <iosfwd>
#include <string_view>

namespace tessaly {

namespace exit_status {
inline constexpr int Done = 0;
inline constexpr int Failed = 1;
inline constexpr int WrongUsage = 2;
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
    std::function<bool()> wasInterrupted;

    bool isInterrupted() const { return wasInterrupted && wasInterrupted(); }
};

/// Says on one line of `err` what is wrong; the exit status of a failure.
int fail(const Console& console, std::string_view problem);

/// Flushes standard output; a failure when something, now or before, could not be written.
Outcome flushed(std::ostream& out);

} // namespace tessaly
