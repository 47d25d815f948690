#include "core/files/file_lock.h"

#include <algorithm>
#include <chrono>
#include <sys/file.h>
#include <thread>

namespace tessaly {
namespace {

using namespace std::chrono_literals;

// Long enough for the rewriting of a huge file, short enough not to look like a hang for ever when
// the other instance is stopped.
constexpr auto Patience = 10s;

bool lacksLocks(int error) {
    return error == ENOLCK || error == EOPNOTSUPP || error == ENOSYS || error == EBADF;
}

} // namespace

LockAnswer takeLock(const FileDescriptor& file) {
    if (retried([&] { return ::flock(file.get(), LOCK_EX | LOCK_NB); }) == 0 || lacksLocks(errno))
        return LockAnswer::Taken;
    return errno == EWOULDBLOCK ? LockAnswer::Busy : LockAnswer::Failed;
}

void releaseLock(const FileDescriptor& file) {
    if (file.isOpen())
        retried([&] { return ::flock(file.get(), LOCK_UN); });
}

bool patiently(const std::function<bool()>& attempt) {
    const auto end = std::chrono::steady_clock::now() + Patience;
    std::chrono::microseconds pause = 100us;
    while (!attempt()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        std::this_thread::sleep_for(pause);
        pause = std::min<std::chrono::microseconds>(2 * pause, 5ms);
    }
    return true;
}

} // namespace tessaly
