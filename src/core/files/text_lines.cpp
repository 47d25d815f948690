#include "core/files/text_lines.h"

#include "core/files/line_reader.h"

namespace tessaly {

std::vector<TextLine> splitLines(std::string_view content) {
    std::vector<TextLine> lines;
    while (!content.empty()) {
        const std::size_t feed = content.find('\n');
        const std::size_t rawSize = feed == std::string_view::npos ? content.size() : feed + 1;
        std::string_view text = withoutReturn(content.substr(0, feed));
        if (lines.empty() && text.starts_with(ByteOrderMark))
            text.remove_prefix(ByteOrderMark.size());
        lines.push_back({text, content.substr(0, rawSize)});
        content.remove_prefix(rawSize);
    }
    return lines;
}

} // namespace tessaly
