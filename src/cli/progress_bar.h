#pragma once

#include "cli/console.h"

#include <chrono>
#include <cstdint>

namespace tessaly {

/// Shows on the terminal, where there is one, how far a long run is and how long the rest will
/// take.
class ProgressBar {
public:
    ProgressBar(const Console& console, std::int64_t total);

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

} // namespace tessaly
