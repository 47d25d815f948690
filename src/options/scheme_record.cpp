// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "options/scheme_record.h"

#include "board/line_reader.h"

#include <array>
#include <charconv>
#include <cmath>

namespace tessaly {
namespace {

constexpr std::string_view Blanks = " \t";

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(Blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(Blanks) - first + 1);
}

/// A number from 0 to 255, rounded to a whole one, halves to even.
std::optional<int> parseChannel(std::string_view piece) {
    const std::string_view text = trimmed(piece);
    double value = -1;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size())
        return {};
    const double whole = std::nearbyint(value);
    if (!(whole >= 0 && whole <= 255))
        return {};
    return static_cast<int>(whole);
}

std::string colourLine(Colour colour) {
    std::string line;
    for (int channel : {RedOf(colour), GreenOf(colour), BlueOf(colour)})
        line += (line.empty() ? " " : "; ") + std::to_string(channel);
    return line;
}

/// Whether the bytes at `at` are one of the capitals U+00C0 to U+00DE; U+00D7 among them is a sign.
bool isAccentedCapital(std::string_view text, std::size_t at) {
    const auto byte = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    if (at == 0 || byte(at - 1) != 0xc3)
        return false;
    return byte(at) >= 0x80 && byte(at) <= 0x9e && byte(at) != 0x97;
}

} // namespace

std::string lowerCase(std::string_view text) {
    constexpr char ToLower = 'a' - 'A';
    std::string lower(text);
    for (std::size_t i = 0; i < lower.size(); ++i)
        if ((lower[i] >= 'A' && lower[i] <= 'Z') || isAccentedCapital(text, i))
            lower[i] = static_cast<char>(lower[i] + ToLower);
    return lower;
}

std::string schemeHeader(std::string_view name) {
    return lowerCase(name).append(SchemeExtension);
}

std::optional<std::string_view> listedName(std::string_view line) {
    const std::size_t end = line.find(SchemeExtension);
    if (end == std::string_view::npos)
        return {};
    return line.substr(0, end);
}

std::string schemeRecord(const std::string& header, const SchemeColours& colours) {
    std::string record = header;
    record += LineEnd;
    for (std::size_t slot = 0; slot < StoredSlotCount; ++slot)
        record.append(colourLine(colours[slot])).append(LineEnd);
    return record;
}

std::optional<Colour> parseColourLine(std::string_view line) {
    std::array<int, 3> channels{};
    for (std::size_t i = 0; i < channels.size(); ++i) {
        const std::size_t end = line.find(';');
        const auto channel = parseChannel(line.substr(0, end));
        const bool isLast = i + 1 == channels.size();
        if (!channel || (end == std::string_view::npos && !isLast))
            return {};
        channels[i] = *channel;
        line.remove_prefix(end == std::string_view::npos ? line.size() : end + 1);
    }
    return RGB(channels[0], channels[1], channels[2]);
}

} // namespace tessaly
