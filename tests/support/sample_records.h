#pragma once

#include "core/board/puzzle_record.h"

#include <string>

namespace tessaly::test {

/// A well-formed record, another one for each seed.
inline std::string recordNumbered(int seed) {
    std::string record = "E0700";
    for (; record.size() < RecordLength; seed /= 6)
        record += static_cast<char>((record.size() % 3 == 0 ? 'Q' : '1') + seed % 6);
    return record;
}

/// The text of a puzzle file of `count` different records.
inline std::string recordFile(int count, std::string_view lineEnd = "\r\n") {
    std::string text;
    for (int seed = 1; seed <= count; ++seed)
        text += recordNumbered(seed) + std::string(lineEnd);
    return text;
}

} // namespace tessaly::test
