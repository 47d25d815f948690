#pragma once

#include "core/base/outcome.h"

#include <cerrno>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string_view>
#include <utility>

namespace tessaly {

/// An open file, closed when its owner goes.
class FileDescriptor {
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int fd)
        : m_fd(fd) {}
    FileDescriptor(FileDescriptor&& other) noexcept
        : m_fd(std::exchange(other.m_fd, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept;
    ~FileDescriptor() { close(); }

    bool isOpen() const { return m_fd >= 0; }
    int get() const { return m_fd; }
    void close();

private:
    int m_fd = -1;
};

/// Makes a system call again when a signal interrupted it. Not for ever: a call that never gets
/// through is a failure like any other.
template <class Call>
auto retried(Call call) {
    auto result = call();
    for (int again = 0; result == -1 && errno == EINTR && again < 100; ++again)
        result = call();
    return result;
}

/// Which file this is and when it last changed, as far as the system tells.
struct FileState {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::int64_t size = 0;
    /// Nanoseconds since the epoch.
    std::int64_t modified = 0;
    std::int64_t changed = 0;

    /// Whether the next change would leave another state. The clock that file systems read goes in
    /// steps, and two changes within one step look like one.
    bool wouldShowAChange() const;

    static std::optional<FileState> of(const FileDescriptor& file);
    /// The state of what `name` is in `folder`; a symbolic link is not followed.
    static std::optional<FileState> of(const FileDescriptor& folder, const std::string& name);

    bool isSameFile(const FileState& other) const {
        return device == other.device && inode == other.inode;
    }
    friend bool operator==(const FileState&, const FileState&) = default;
};

/// "FILE: WHAT: the system's description of `error`", by default of the last call's error.
Outcome fileProblem(const std::filesystem::path& path, std::string_view what, int error = errno);

/// Refuses names that the system would cut short.
Outcome checkName(const std::filesystem::path& path);

/// Refuses what is open but is no regular file.
Outcome checkRegular(const FileDescriptor& file, const std::filesystem::path& path);

/// Opens a regular file for reading, symbolic links followed. Never waits: a FIFO, a device or a
/// folder is refused at once.
Outcome openForReading(const std::filesystem::path& path, FileDescriptor& file);

/// The same for what may be read only once: pipes and terminals too, which are waited for.
Outcome openForReadingOnce(const std::filesystem::path& path, FileDescriptor& file);

/// Reads up to `size` bytes from `offset`; fewer only at the end of the file. The number of bytes,
/// or -1 with `errno` set.
std::int64_t readAt(const FileDescriptor& file, char* bytes, std::size_t size, std::int64_t offset);

/// Takes the content of what is being written, piece by piece.
class ContentSink {
public:
    using Write = std::function<Outcome(std::string_view piece)>;

    explicit ContentSink(Write write)
        : m_write(std::move(write)) {}
    /// Into an open file, which must outlive the sink.
    ContentSink(const FileDescriptor& file, const std::filesystem::path& path);

    /// Writes all of `piece` or fails. Give large pieces: each may be a system call.
    Outcome write(std::string_view piece) const { return m_write(piece); }

private:
    Write m_write;
};

/// Writes a whole content into the sink it is given.
using ContentWriter = std::function<Outcome(const ContentSink&)>;

/// `Unknown` where the file system knows no locks: who works without one hopes for the best.
enum class LockAnswer { Taken, Unknown, Busy, Failed };

/// Asks for the advisory lock of an open file or folder, without waiting. The lock ends when the
/// file is closed.
LockAnswer takeLock(const FileDescriptor& file);

void releaseLock(const FileDescriptor& file);

/// Calls `attempt` until it answers true, with pauses that last ten seconds in all. Whether it did.
bool patiently(const std::function<bool()>& attempt);

/// How somebody waits for a file that another program is writing: calls `attempt` until it answers
/// true, or gives up. Whether it did. An empty one waits `patiently`.
using LockWait =
    std::function<bool(const std::filesystem::path& path, const std::function<bool()>& attempt)>;

} // namespace tessaly
