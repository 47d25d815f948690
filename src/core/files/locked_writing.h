#pragma once

#include "core/files/content_sink.h"
#include "core/files/locked_file.h"

namespace tessaly {

/// Replaces the content of a file that the caller has locked, or makes it.
Outcome replaceLocked(const LockedFile& file, const ContentWriter& writer);

/// Appends lines, each with its line end, to a file that the caller has locked, or makes it. A last
/// line without a line end is ended first. A failure leaves the file as it was.
Outcome appendLocked(const LockedFile& file, std::string_view wholeLines);

/// What has to be written behind a file that the caller has locked before a new line can follow:
/// the end of its last line, as far as it is missing.
Outcome missingLineEnd(const LockedFile& file, std::string_view& missing);

} // namespace tessaly
