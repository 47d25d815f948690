#pragma once

#include "core/files/file_descriptor.h"

#include <functional>

namespace tessaly {

enum class LockAnswer { Taken, Busy, Failed };

/// Asks for the advisory lock of an open file or folder, without waiting. The lock ends when the
/// file is closed. Where the file system knows no locks, the answer is `Taken`.
LockAnswer takeLock(const FileDescriptor& file);

void releaseLock(const FileDescriptor& file);

/// Calls `attempt` until it answers true, for ten seconds at most. Whether it did.
bool patiently(const std::function<bool()>& attempt);

} // namespace tessaly
