#include "core/options/scheme_record.h"

#include "core/files/line_reader.h"

#include <array>
#include <charconv>
#include <climits>
#include <clocale>
#include <cmath>
#include <cwchar>
#include <cwctype>

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

/// Makes the letters of every script known to this thread, whatever language the user has chosen.
class EveryLetter {
public:
    EveryLetter()
        : m_letters(::newlocale(LC_CTYPE_MASK, "C.UTF-8", locale_t{}))
        , m_before(m_letters == locale_t{} ? locale_t{} : ::uselocale(m_letters)) {}
    ~EveryLetter() {
        if (m_letters == locale_t{})
            return;
        ::uselocale(m_before);
        ::freelocale(m_letters);
    }
    EveryLetter(const EveryLetter&) = delete;
    EveryLetter& operator=(const EveryLetter&) = delete;

private:
    locale_t m_letters;
    locale_t m_before;
};

/// Appends `text`'s first letter in lower case and returns its length; a byte that is no part of
/// UTF-8 stays what it is.
std::size_t appendLower(std::string_view text, std::string& lower) {
    std::array<char, MB_LEN_MAX> bytes{};
    std::mbstate_t state{};
    wchar_t letter = 0;
    const std::size_t length = std::mbrtowc(&letter, text.data(), text.size(), &state);
    if (length == 0 || length > text.size()) {
        lower += text.front();
        return 1;
    }
    state = {};
    const wint_t small = std::towlower(static_cast<wint_t>(letter));
    lower.append(bytes.data(), std::wcrtomb(bytes.data(), static_cast<wchar_t>(small), &state));
    return length;
}

} // namespace

std::string lowerCase(std::string_view text) {
    const EveryLetter known;
    std::string lower;
    while (!text.empty())
        text.remove_prefix(appendLower(text, lower));
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
