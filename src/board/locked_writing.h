// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "board/content_sink.h"
#include "board/locked_file.h"

namespace tessaly {

/// Replaces the content of a file that the caller has locked, or makes it.
Outcome replaceLocked(const LockedFile& file, const ContentWriter& writer);

/// Appends lines, each with its line end, to a file that the caller has locked, or makes it. A last
/// line without a line end is ended first. A failure leaves the file as it was.
Outcome appendLocked(const LockedFile& file, std::string_view wholeLines);

} // namespace tessaly
