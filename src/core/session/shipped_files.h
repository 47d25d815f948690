#pragma once

#include "core/base/outcome.h"

#include <filesystem>

namespace tessaly {

/// Makes `folder`, which does not exist or is empty, with a copy of every data file that `share`
/// has. All or nothing: the folder is filled under another name, and whatever interrupts that, the
/// next start begins anew. Two instances may start at once.
Outcome installShippedFiles(const std::filesystem::path& share,
                            const std::filesystem::path& folder);

/// Renews the program's own files in `folder` where `share` has others. Contents are compared, for
/// some systems give every installed file the same time. What cannot be renewed stays as it is: an
/// older file still works.
void renewShippedFiles(const std::filesystem::path& share, const std::filesystem::path& folder);

} // namespace tessaly
