#include "core/files/file_descriptor.h"

#include <algorithm>
#include <chrono>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <thread>
#include <unistd.h>

namespace tessaly {
namespace {

std::int64_t inNanoseconds(const timespec& time) {
    return static_cast<std::int64_t>(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

FileState stateFrom(const struct stat& status) {
    return {status.st_dev, status.st_ino, status.st_size, inNanoseconds(status.st_mtim),
            inNanoseconds(status.st_ctim)};
}

using namespace std::chrono_literals;

// Long enough for the rewriting of a huge file, short enough not to look like a hang for ever when
// the other instance is stopped.
constexpr auto Patience = 10s;

Outcome openWith(int flags, const std::filesystem::path& path, FileDescriptor& file) {
    if (Outcome named = checkName(path); !named.ok())
        return named;
    file = FileDescriptor(
        retried([&] { return ::open(path.c_str(), flags | O_RDONLY | O_CLOEXEC | O_NOCTTY); }));
    return file.isOpen() ? Outcome::done() : fileProblem(path, "cannot be read");
}

Outcome writeAll(const FileDescriptor& file, const std::filesystem::path& path,
                 std::string_view piece) {
    while (!piece.empty()) {
        const auto written =
            retried([&] { return ::write(file.get(), piece.data(), piece.size()); });
        if (written < 0)
            return fileProblem(path, "cannot be written");
        piece.remove_prefix(static_cast<std::size_t>(written));
    }
    return Outcome::done();
}

bool lacksLocks(int error) {
    return error == ENOLCK || error == EOPNOTSUPP || error == ENOSYS || error == EBADF;
}

} // namespace

FileDescriptor& FileDescriptor::operator=(FileDescriptor&& other) noexcept {
    const int taken = std::exchange(other.m_fd, -1);
    close();
    m_fd = taken;
    return *this;
}

void FileDescriptor::close() {
    // Linux has closed the file whatever it answers, and what counts was flushed before.
    if (isOpen())
        ::close(std::exchange(m_fd, -1));
}

bool FileState::wouldShowAChange() const {
    using namespace std::chrono;
    // The slowest clock that the kernel can be built with makes a hundred steps a second.
    constexpr milliseconds Step{10};
    const auto now = system_clock::now().time_since_epoch();
    return nanoseconds(changed) + 2 * Step < now;
}

std::optional<FileState> FileState::of(const FileDescriptor& file) {
    struct stat status {};
    if (retried([&] { return ::fstat(file.get(), &status); }) != 0)
        return std::nullopt;
    return stateFrom(status);
}

std::optional<FileState> FileState::of(const FileDescriptor& folder, const std::string& name) {
    struct stat status {};
    const auto look = [&] {
        return ::fstatat(folder.get(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW);
    };
    if (retried(look) != 0)
        return std::nullopt;
    return stateFrom(status);
}

Outcome fileProblem(const std::filesystem::path& path, std::string_view what, int error) {
    return Outcome::failed(path.native() + ": " + std::string(what) + ": " +
                           std::generic_category().message(error));
}

Outcome checkName(const std::filesystem::path& path) {
    if (path.native().find('\0') == std::string::npos)
        return Outcome::done();
    return Outcome::failed(path.native() + ": no file can have a NUL character in its name");
}

Outcome checkRegular(const FileDescriptor& file, const std::filesystem::path& path) {
    struct stat status {};
    if (retried([&] { return ::fstat(file.get(), &status); }) != 0)
        return fileProblem(path, "cannot be examined");
    if (S_ISDIR(status.st_mode))
        return Outcome::failed(path.native() + ": is a folder");
    if (!S_ISREG(status.st_mode))
        return Outcome::failed(path.native() + ": is no regular file");
    return Outcome::done();
}

Outcome openForReading(const std::filesystem::path& path, FileDescriptor& file) {
    Outcome opened = openWith(O_NONBLOCK, path, file);
    return opened.ok() ? checkRegular(file, path) : opened;
}

Outcome openForReadingOnce(const std::filesystem::path& path, FileDescriptor& file) {
    if (Outcome opened = openWith(0, path, file); !opened.ok())
        return opened;
    struct stat status {};
    const bool comesOnce =
        ::fstat(file.get(), &status) == 0 &&
        (S_ISFIFO(status.st_mode) || S_ISSOCK(status.st_mode) || ::isatty(file.get()) == 1);
    return comesOnce ? Outcome::done() : checkRegular(file, path);
}

std::int64_t readAt(const FileDescriptor& file, char* bytes, std::size_t size,
                    std::int64_t offset) {
    std::size_t done = 0;
    while (done < size) {
        const auto from = offset + static_cast<std::int64_t>(done);
        const auto got =
            retried([&] { return ::pread(file.get(), bytes + done, size - done, from); });
        if (got < 0)
            return -1;
        if (got == 0)
            break;
        done += static_cast<std::size_t>(got);
    }
    return static_cast<std::int64_t>(done);
}

ContentSink::ContentSink(const FileDescriptor& file, const std::filesystem::path& path)
    : ContentSink([&](std::string_view piece) { return writeAll(file, path, piece); }) {}

LockAnswer takeLock(const FileDescriptor& file) {
    if (retried([&] { return ::flock(file.get(), LOCK_EX | LOCK_NB); }) == 0)
        return LockAnswer::Taken;
    if (lacksLocks(errno))
        return LockAnswer::Unknown;
    return errno == EWOULDBLOCK ? LockAnswer::Busy : LockAnswer::Failed;
}

void releaseLock(const FileDescriptor& file) {
    if (file.isOpen())
        retried([&] { return ::flock(file.get(), LOCK_UN); });
}

bool patiently(const std::function<bool()>& attempt) {
    std::chrono::microseconds pause = 100us;
    for (auto waited = 0us; !attempt(); waited += pause) {
        if (waited > Patience)
            return false;
        // Seldom enough to cost nothing, often enough to find the moment between two writes of
        // one who writes all the time.
        pause = std::min<std::chrono::microseconds>(2 * pause, 1ms);
        std::this_thread::sleep_for(pause);
    }
    return true;
}

} // namespace tessaly
