#pragma once

#include <string_view>
#include <vector>

namespace tessaly {

/// One line of a text that lies in memory.
struct TextLine {
    /// What it says, without its line end and without a byte-order mark before it.
    std::string_view text;
    /// All its bytes: the raw lines of a text, joined, are the text.
    std::string_view raw;
};

/// The lines of a text, which must outlive them.
std::vector<TextLine> splitLines(std::string_view content);

} // namespace tessaly
