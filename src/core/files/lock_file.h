#pragma once

#include "core/files/file_descriptor.h"

#include <string>

namespace tessaly {

/// Keeps other instances of this program from a file where the file system knows no locks: a
/// symbolic link beside the file, which leads nowhere and says who is writing, for as long as its
/// writer works.
///
///     .tessaly-0123456789abcdef.lock -> HOST:PROCESS
///
/// To make a link is one step that only one can take. The link of a process of this machine that
/// has died counts for nothing, nor does one that has stood longer than any work takes.
class LockFile {
public:
    LockFile() = default;
    LockFile(const LockFile&) = delete;
    LockFile& operator=(const LockFile&) = delete;
    ~LockFile() { release(); }

    /// Asks for the file of that name in a folder, without waiting; `folder` must be open until the
    /// release. `Unknown` where no such link can be made: who works without one hopes for the best.
    LockAnswer take(const FileDescriptor& folder, const std::string& name);
    void release();

private:
    const FileDescriptor* m_folder = nullptr;
    std::string m_link;
};

} // namespace tessaly
