#pragma once

#include "core/files/file_access.h"

#include <sys/resource.h>

namespace tessaly::test {

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

} // namespace tessaly::test
