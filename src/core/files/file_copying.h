#pragma once

#include "core/base/yield.h"
#include "core/files/content_sink.h"
#include "core/files/line_index.h"
#include "core/files/locked_file.h"

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

} // namespace tessaly
