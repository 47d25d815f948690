#pragma once

#include <functional>
#include <sys/wait.h>
#include <unistd.h>

namespace tessaly::test {

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

} // namespace tessaly::test
