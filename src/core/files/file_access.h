#pragma once

#include "core/base/outcome.h"
#include "core/files/file_descriptor.h"

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

/// How everything that Tessaly keeps is read and written. Whatever instant the process dies or the
/// disk fills, a file holds its old or its new content, whole, and `done` is answered only when the
/// new content is on the disk. Symbolic links are followed; what is no regular file is refused and
/// never waited on; other instances of the program are kept from writing the same file meanwhile.

namespace tessaly {

/// Whether there is a regular file; false for the empty path and for one that ends in "/".
bool FileExists(const std::filesystem::path& path);

/// Gives a file new content, keeping its permissions, or makes it.
Outcome replaceFile(const std::filesystem::path& path, std::string_view content,
                    const LockWait& wait = {});
/// The same for content that is too large to hold in memory.
Outcome replaceFile(const std::filesystem::path& path, const ContentWriter& writer,
                    const LockWait& wait = {});

/// The content of a file of at most `limit` bytes; a larger one is refused.
Outcome readSmallFile(const std::filesystem::path& path, std::size_t limit, std::string& content);

/// Changes what a small file holds now: `change` gets the content (empty when there is no file) and
/// leaves the new one; a failure of its own leaves the file alone.
Outcome rewriteSmallFile(const std::filesystem::path& path, std::size_t limit,
                         const std::function<Outcome(std::string& content)>& change,
                         const LockWait& wait = {});

/// Makes the system's limit on the size of files a failure to write like any other, instead of the
/// end of the process. For the start of a program.
void surviveFileSizeLimit();

} // namespace tessaly
