#pragma once

#include "core/base/outcome.h"

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

namespace tessaly {

/// One line of a puzzle file.
struct RecordLine {
    /// From 1.
    int number = 0;
    std::string_view text;
    /// Whether it is longer than any record can be; its text is not kept then.
    bool isOverLong = false;
};

/// Goes through the records of a puzzle file until `visit` answers false. Blank lines at the end of
/// the file are no records.
Outcome readRecordLines(const std::filesystem::path& path,
                        const std::function<bool(RecordLine)>& visit);

/// "FILE: line N: what is wrong".
std::string lineProblem(const std::filesystem::path& path, int number, std::string_view problem);

inline constexpr std::string_view OverLongProblem = "the line is longer than any record";

} // namespace tessaly
