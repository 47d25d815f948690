#pragma once

#include <chrono>

namespace tessaly {

/// How long the window waits for its turn during a long run.
inline constexpr std::chrono::milliseconds Turn{10};

/// How far a long run is.
struct RunProgress {
    int made = 0;
    int count = 0;
    /// The time that the rest will take at the pace so far.
    std::chrono::seconds left{0};
};

/// Tells how far a run is that begins when this is made.
class RunClock {
public:
    RunProgress progress(int made, int count) const {
        if (made == 0)
            return {0, count, {}};
        const auto each = (std::chrono::steady_clock::now() - m_start) / made;
        return {made, count, std::chrono::ceil<std::chrono::seconds>(each * (count - made))};
    }

private:
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
};

} // namespace tessaly
