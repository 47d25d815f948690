#include "support/file_calls.h"

#include <cerrno>
#include <ctime>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>
#include <utility>

namespace tessaly {
namespace {

thread_local FileCalls* active = nullptr;

template <class... Arguments>
auto guarded(std::string_view name, auto(*call)(Arguments...), Arguments... arguments) {
    if (const int error = FileCalls::errorOf(name); error != 0) {
        errno = error;
        return decltype(call(arguments...))(error == FileCalls::Skipped ? 0 : -1);
    }
    return call(arguments...);
}

} // namespace

FileCalls::FileCalls(Before before)
    : m_before(std::move(before)) {
    active = this;
}

FileCalls::~FileCalls() {
    active = nullptr;
}

int FileCalls::errorOf(std::string_view name) {
    if (!active)
        return 0;
    FileCalls* const calls = std::exchange(active, nullptr);
    const int error = calls->m_before(name, calls->m_count++);
    active = calls;
    return error;
}

FileCalls::Before failing(std::string_view name, int error, int first, int times) {
    return [=, seen = 0](std::string_view each, int) mutable {
        const int number = each == name ? seen++ : -1;
        return number >= first && number < first + times ? error : 0;
    };
}

FileCalls::Before meanwhile(std::string_view name, const std::function<void()>& work, int first) {
    return [=, seen = 0](std::string_view each, int) mutable {
        if (each == name && seen++ == first)
            work();
        return 0;
    };
}

} // namespace tessaly

// The linker leads each call to __wrap_NAME, and __real_NAME to where it went before.
#define TESSALY_FILE_CALL(type, name, parameters, ...)                                             \
    type real_##name parameters asm("__real_" #name);                                              \
    type wrap_##name parameters asm("__wrap_" #name);                                              \
    type wrap_##name parameters {                                                                  \
        return tessaly::guarded(#name, real_##name, __VA_ARGS__);                                  \
    }

extern "C" {
TESSALY_FILE_CALL(int, open, (const char* path, int flags, mode_t mode), path, flags, mode)
TESSALY_FILE_CALL(int, openat, (int folder, const char* path, int flags, mode_t mode), folder, path,
                  flags, mode)
TESSALY_FILE_CALL(int, stat, (const char* path, struct stat* status), path, status)
TESSALY_FILE_CALL(int, fstat, (int file, struct stat* status), file, status)
TESSALY_FILE_CALL(int, fstatat, (int folder, const char* path, struct stat* status, int flags),
                  folder, path, status, flags)
TESSALY_FILE_CALL(ssize_t, readlink, (const char* path, char* target, size_t size), path, target,
                  size)
TESSALY_FILE_CALL(ssize_t, readlinkat, (int folder, const char* path, char* target, size_t size),
                  folder, path, target, size)
TESSALY_FILE_CALL(int, symlinkat, (const char* target, int folder, const char* path), target,
                  folder, path)
TESSALY_FILE_CALL(int, flock, (int file, int operation), file, operation)
TESSALY_FILE_CALL(ssize_t, pread, (int file, void* bytes, size_t size, off_t offset), file, bytes,
                  size, offset)
TESSALY_FILE_CALL(ssize_t, write, (int file, const void* bytes, size_t size), file, bytes, size)
TESSALY_FILE_CALL(int, fsync, (int file), file)
TESSALY_FILE_CALL(int, syncfs, (int file), file)
TESSALY_FILE_CALL(int, ftruncate, (int file, off_t size), file, size)
TESSALY_FILE_CALL(int, rename, (const char* from, const char* to), from, to)
TESSALY_FILE_CALL(int, renameat, (int fromFolder, const char* from, int toFolder, const char* to),
                  fromFolder, from, toFolder, to)
TESSALY_FILE_CALL(int, linkat,
                  (int fromFolder, const char* from, int toFolder, const char* to, int flags),
                  fromFolder, from, toFolder, to, flags)
TESSALY_FILE_CALL(int, unlinkat, (int folder, const char* path, int flags), folder, path, flags)
TESSALY_FILE_CALL(int, fchmod, (int file, mode_t mode), file, mode)
TESSALY_FILE_CALL(int, fchown, (int file, uid_t owner, gid_t group), file, owner, group)
TESSALY_FILE_CALL(int, fsetxattr,
                  (int file, const char* name, const void* value, size_t size, int flags), file,
                  name, value, size, flags)
TESSALY_FILE_CALL(int, nanosleep, (const timespec* time, timespec* left), time, left)
}
