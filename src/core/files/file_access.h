#pragma once

#include "core/base/outcome.h"
#include "core/base/yield.h"
#include "core/files/content_sink.h"
#include "core/files/line_index.h"
#include "core/files/locked_file.h"

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

/// How everything that Tessaly keeps is read and written. Whatever instant the process dies or the
/// disk fills, a file holds its old or its new content, whole, and `done` is answered only when the
/// new content is on the disk. Symbolic links are followed; what is no regular file is refused and
/// never waited on; other instances of the program are kept from writing the same file meanwhile.

namespace tessaly {

/// Writes a part of a file into the sink, calling `yield` for every piece.
Outcome copyPart(const LockedFile& file, LineSpan part, const ContentSink& sink,
                 const Yield& yield);

/// Removes a line from a file that the caller has locked; all other bytes stay as they are. They
/// are also written to the scratch file `copy`, unless that is the very file.
///
/// The copy is overwritten where it stands and in the same pass, for a second new file would double
/// the time that a million records take. So it is no more than scratch: a process that dies
/// meanwhile leaves old lines behind the new ones in it.
Outcome removeLine(const LockedFile& file, LineSpan line, const std::filesystem::path& copy,
                   const Yield& yield);

/// Whether there is a regular file; false for the empty path and for one that ends in "/".
bool FileExists(const std::filesystem::path& path);

/// Gives a file new content, keeping its permissions, or makes it.
Outcome replaceFile(const std::filesystem::path& path, std::string_view content);
/// The same for content that is too large to hold in memory.
Outcome replaceFile(const std::filesystem::path& path, const ContentWriter& writer);

/// Appends lines, each with its line end. A last line that has none is ended first. Makes the file
/// when there is none.
Outcome appendLines(const std::filesystem::path& path, std::string_view wholeLines);

/// The content of a file of at most `limit` bytes; a larger one is refused.
Outcome readSmallFile(const std::filesystem::path& path, std::size_t limit, std::string& content);

/// Changes what a small file holds now: `change` gets the content (empty when there is no file) and
/// leaves the new one; a failure of its own leaves the file alone.
Outcome rewriteSmallFile(const std::filesystem::path& path, std::size_t limit,
                         const std::function<Outcome(std::string& content)>& change);

/// Removes what killed processes left in a folder while they wrote.
void removeLeftovers(const std::filesystem::path& folder);
/// Removes what a killed process left while it wrote the file `path`.
void removeLeftoverOf(const std::filesystem::path& path);

/// Makes the system's limit on the size of files a failure to write like any other, instead of the
/// end of the process. For the start of a program.
void surviveFileSizeLimit();

} // namespace tessaly
