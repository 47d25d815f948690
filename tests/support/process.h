#pragma once

#include "core/files/file_access.h"

#include <functional>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tessaly {

/// Starts a process of its own that does `work` and ends with its answer.
inline pid_t startChild(const std::function<bool()>& work) {
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(work() ? 0 : 1);
    return child;
}

/// Whether the child ended of its own accord, with the answer true.
inline bool succeeded(pid_t child) {
    int status = 0;
    return ::waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

/// Files may not grow beyond a size while this lives: as on a disk that is full.
class FullDisk {
public:
    explicit FullDisk(rlim_t size) {
        surviveFileSizeLimit();
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{size, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;
    ~FullDisk() { ::setrlimit(RLIMIT_FSIZE, &m_before); }

private:
    rlimit m_before{};
};

} // namespace tessaly
