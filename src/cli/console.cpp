#include "cli/console.h"

#include "core/files/file_descriptor.h"

#include <algorithm>
#include <cmath>
#include <ostream>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace tessaly {
namespace {

constexpr auto ProgressInterval = std::chrono::milliseconds(100);
constexpr std::int64_t WidestBar = 30;
constexpr const char* EmptyLine = "\r\x1B[K";

/// "12 s", "3 min", "2 h 5 min"
std::string inWords(std::int64_t seconds) {
    constexpr std::int64_t Minute = 60;
    if (seconds < 2 * Minute)
        return std::to_string(seconds) + " s";
    const std::int64_t minutes = seconds / Minute;
    return (minutes < Minute ? "" : std::to_string(minutes / Minute) + " h ") +
           std::to_string(minutes % Minute) + " min";
}

} // namespace

int fail(const Console& console, std::string_view problem) {
    sayProblem(console.err, ProgramName, problem);
    return exit_status::Failed;
}

int refuseUsage(const Console& console, std::string_view problem) {
    fail(console, std::string(problem) + " (try --help)");
    return exit_status::WrongUsage;
}

void tellSeed(const Console& console, const std::optional<std::uint64_t>& given,
              std::uint64_t seed) {
    if (!given)
        sayProblem(console.err, ProgramName, "the seed was " + std::to_string(seed));
}

bool isSameFile(const std::filesystem::path& one, const std::filesystem::path& other) {
    std::error_code oneIsMissing;
    return std::filesystem::equivalent(one, other, oneIsMissing);
}

std::string counted(std::int64_t count, const std::string& thing) {
    return std::to_string(count) + " " + thing + (count == 1 ? "" : "s");
}

Outcome flushed(std::ostream& out) {
    return out.flush() ? Outcome::done() : fileProblem("standard output", "cannot be written");
}

TerminalProgressBar::TerminalProgressBar(const Console& console, std::int64_t total)
    : m_console(console)
    , m_total(std::max<std::int64_t>(total, 1)) {}

void TerminalProgressBar::show(std::int64_t done) {
    const Clock::time_point now = Clock::now();
    if (!m_console.errIsTerminal || now < m_next)
        return;
    m_next = now + ProgressInterval;
    const std::chrono::duration<double> passed = now - m_start;
    const double left = passed.count() * static_cast<double>(m_total - done) /
                        static_cast<double>(std::max<std::int64_t>(done, 1));
    const std::string text = "] " + std::to_string(done) + " of " + std::to_string(m_total) + ", " +
                             inWords(std::llround(left)) + " left";
    const std::int64_t width = std::clamp<std::int64_t>(
        m_console.errColumns - static_cast<std::int64_t>(text.size()) - 2, 0, WidestBar);
    std::string bar(static_cast<std::size_t>(width * done / m_total), '#');
    bar.resize(static_cast<std::size_t>(width), '.');
    m_console.err << EmptyLine << '[' << bar << text << std::flush;
}

void TerminalProgressBar::clear() {
    if (m_console.errIsTerminal)
        m_console.err << EmptyLine << std::flush;
}

StandardOutput::StandardOutput(int fd)
    : m_fd(fd)
    , m_buffer(std::size_t{1} << 16) {
    setp(m_buffer.data(), m_buffer.data() + m_buffer.size());
}

StandardOutput::~StandardOutput() {
    writeOut();
}

StandardOutput::int_type StandardOutput::overflow(int_type c) {
    if (!writeOut())
        return traits_type::eof();
    if (!traits_type::eq_int_type(c, traits_type::eof()))
        sputc(traits_type::to_char_type(c));
    return traits_type::not_eof(c);
}

int StandardOutput::sync() {
    return writeOut() ? 0 : -1;
}

StandardOutput::pos_type StandardOutput::seekoff(off_type offset, std::ios_base::seekdir from,
                                                 std::ios_base::openmode) {
    const bool isQuestion = offset == 0 && from == std::ios_base::cur;
    return isQuestion ? pos_type(static_cast<off_type>(m_written - m_partOfLine)) : pos_type(-1);
}

bool StandardOutput::writeOut() {
    std::string_view rest(pbase(), static_cast<std::size_t>(pptr() - pbase()));
    setp(m_buffer.data(), m_buffer.data() + m_buffer.size());
    while (!rest.empty() && !m_failed) {
        const auto written = retried([&] { return ::write(m_fd, rest.data(), rest.size()); });
        if (written < 0) {
            m_failed = true;
            takeBackPartOfLine();
            break;
        }
        const std::string_view done = rest.substr(0, static_cast<std::size_t>(written));
        const std::size_t lineEnd = done.rfind('\n');
        m_partOfLine = lineEnd == std::string_view::npos ? m_partOfLine + done.size()
                                                         : done.size() - lineEnd - 1;
        m_written += done.size();
        rest.remove_prefix(done.size());
    }
    return !m_failed;
}

void StandardOutput::takeBackPartOfLine() const {
    struct stat state {};
    const off_t end = ::lseek(m_fd, 0, SEEK_CUR);
    const bool endsHere =
        ::fstat(m_fd, &state) == 0 && S_ISREG(state.st_mode) && state.st_size == end;
    if (endsHere && m_partOfLine > 0 &&
        ::ftruncate(m_fd, end - static_cast<off_t>(m_partOfLine)) == 0)
        ::lseek(m_fd, 0, SEEK_END);
}

} // namespace tessaly
