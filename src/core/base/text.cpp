#include "core/base/text.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <utility>

namespace tessaly {

std::string_view trimmed(std::string_view text) {
    if (isBlank(text))
        return {};
    const std::size_t first = text.find_first_not_of(BlankCharacters);
    return text.substr(first, text.find_last_not_of(BlankCharacters) - first + 1);
}

std::string printable(std::string_view text) {
    constexpr std::string_view Hex = "0123456789abcdef";
    std::string shown;
    bool isC1 = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        const auto next = static_cast<unsigned char>(i + 1 < text.size() ? text[i + 1] : 0);
        const bool endsC1 = std::exchange(isC1, byte == 0xC2 && next >= 0x80 && next < 0xA0);
        if (byte < 0x20 || byte == 0x7F || isC1 || endsC1)
            shown.append("\\x").append(1, Hex[byte / 16]).append(1, Hex[byte % 16]);
        else
            shown += text[i];
    }
    return shown;
}

double leadingNumber(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    if (text.starts_with('+'))
        text.remove_prefix(1);
    // "inf" and "nan" are words here, not numbers.
    if (text.empty() ||
        std::string_view("-.0123456789").find(text.front()) == std::string_view::npos)
        return 0;
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc::result_out_of_range)
        return error == std::errc() ? value : 0;
    const std::string_view number(text.data(), static_cast<std::size_t>(end - text.data()));
    const bool isTiny = number.find("e-") != std::string_view::npos;
    return isTiny || number.starts_with('-') ? 0 : std::numeric_limits<double>::max();
}

int leadingWholeNumber(std::string_view text) {
    constexpr double Smallest = std::numeric_limits<int>::min();
    constexpr double Largest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(leadingNumber(text), Smallest, Largest));
}

} // namespace tessaly
