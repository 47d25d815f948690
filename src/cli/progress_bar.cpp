#include "cli/progress_bar.h"

#include <algorithm>
#include <cmath>
#include <ostream>
#include <string>

namespace tessaly {
namespace {

constexpr auto Interval = std::chrono::milliseconds(100);
constexpr std::int64_t Width = 30;
constexpr const char* EmptyLine = "\r\x1B[K";

} // namespace

ProgressBar::ProgressBar(const Console& console, std::int64_t total)
    : m_console(console)
    , m_total(std::max<std::int64_t>(total, 1)) {}

void ProgressBar::show(std::int64_t done) {
    const Clock::time_point now = Clock::now();
    if (!m_console.errIsTerminal || now < m_next)
        return;
    m_next = now + Interval;
    const std::chrono::duration<double> passed = now - m_start;
    const double left = passed.count() * static_cast<double>(m_total - done) /
                        static_cast<double>(std::max<std::int64_t>(done, 1));
    std::string bar(static_cast<std::size_t>(Width * done / m_total), '#');
    bar.resize(static_cast<std::size_t>(Width), '.');
    m_console.err << EmptyLine << '[' << bar << "] " << done << " of " << m_total << ", "
                  << std::llround(left) << " s left" << std::flush;
}

void ProgressBar::clear() {
    if (m_console.errIsTerminal)
        m_console.err << EmptyLine << std::flush;
}

} // namespace tessaly
