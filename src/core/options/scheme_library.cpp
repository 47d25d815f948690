#include "core/options/scheme_library.h"

#include "core/files/file_access.h"
#include "core/files/line_reader.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <climits>
#include <clocale>
#include <cmath>
#include <cwchar>
#include <cwctype>
#include <string_view>
#include <utility>

namespace tessaly {
namespace {

constexpr std::size_t SizeLimit = std::size_t{16} << 20;
constexpr const char* ScratchCopy = "newall.cox";

/// A number from 0 to 255, rounded to a whole one, halves to even.
std::optional<int> parseChannel(std::string_view piece) {
    constexpr const char* Blanks = " \t";
    piece.remove_prefix(std::min(piece.find_first_not_of(Blanks), piece.size()));
    double value = -1;
    const auto [end, error] = std::from_chars(piece.data(), piece.data() + piece.size(), value);
    piece.remove_prefix(static_cast<std::size_t>(end - piece.data()));
    if (error != std::errc() || piece.find_first_not_of(Blanks) != std::string_view::npos)
        return {};
    const double whole = std::nearbyint(value);
    if (!(whole >= 0 && whole <= 255))
        return {};
    return static_cast<int>(whole);
}

/// Reads a colour line; what follows the third number is ignored.
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

/// `text` with its letters in lower case, those of other scripts too.
std::string lowerCase(std::string_view text) {
    const EveryLetter known;
    std::string lower;
    while (!text.empty())
        text.remove_prefix(appendLower(text, lower));
    return lower;
}

std::vector<std::string> listNames(std::string_view content) {
    std::vector<std::string> names;
    for (const TextLine& line : splitLines(content))
        if (const auto name = listedName(line.text))
            names.emplace_back(*name);
    return names;
}

bool listsName(const std::vector<std::string>& names, const std::string& name) {
    const std::string wanted = lowerCase(name);
    return std::any_of(names.begin(), names.end(),
                       [&](const std::string& listed) { return lowerCase(listed) == wanted; });
}

/// Reads the colour lines that follow the header at `headerIndex`.
Outcome readColours(const std::vector<TextLine>& lines, std::size_t headerIndex,
                    SchemeColours& colours) {
    SchemeColours read = colours;
    for (std::size_t slot = 0; slot < StoredSlotCount; ++slot) {
        const std::size_t at = headerIndex + 1 + slot;
        if (at >= lines.size())
            return Outcome::failed("the colour scheme at the end has " + std::to_string(slot) +
                                   " colours instead of " + std::to_string(StoredSlotCount));
        const auto colour = parseColourLine(lines[at].text);
        if (!colour)
            return Outcome::failed("line " + std::to_string(at + 1) +
                                   ": this is no colour (three numbers from 0 to 255): " +
                                   std::string(lines[at].text.substr(0, 80)));
        read[slot] = *colour;
    }
    colours = read;
    return Outcome::done();
}

/// The line behind the record whose header is at `headerIndex`. The header of the next record ends
/// a record that is too short, so that its neighbour does not go with it.
std::size_t endOfRecord(const std::vector<TextLine>& lines, std::size_t headerIndex) {
    const std::size_t furthest = std::min(lines.size(), headerIndex + 1 + StoredSlotCount);
    std::size_t end = headerIndex + 1;
    while (end < furthest && !listedName(lines[end].text))
        ++end;
    return end;
}

std::string withRecordsReplaced(const std::string& content, const std::string& header,
                                const std::string& replacement) {
    const std::vector<TextLine> lines = splitLines(content);
    std::string result;
    for (std::size_t i = 0; i < lines.size();) {
        if (lines[i].text == header) {
            result += replacement;
            i = endOfRecord(lines, i);
        } else {
            result += lines[i++].raw;
        }
    }
    return result;
}

std::string addingFailed(const std::string& why) {
    return "Error in adding Colour Scheme:\r\n" + why;
}
std::string updatingFailed(const std::string& why) {
    return "Error in updating Colour Scheme:\r\n" + why;
}

Outcome reported(const Outcome& outcome, std::string (*message)(const std::string&)) {
    return outcome.ok() ? outcome : Outcome::failed(message(outcome.problem));
}

} // namespace

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

SchemeLibrary::SchemeLibrary(std::filesystem::path programFolder, LockWait wait)
    : m_folder(std::move(programFolder))
    , m_wait(std::move(wait)) {}

Outcome SchemeLibrary::RefreshSchemeList() {
    std::string content;
    if (Outcome read = readSmallFile(m_folder / SchemeLibraryFile, SizeLimit, content); !read.ok())
        return read;
    m_names = listNames(content);
    return Outcome::done();
}

Outcome SchemeLibrary::LoadScheme(const std::string& file, Appearance& appearance) const {
    SchemeColours& colours = appearance.SchemeColours;
    if (lowerCase(file) == BuiltInScheme) {
        colours[slot::Background] = DesignBackground;
        colours[slot::Button] = DesignBackground;
        colours[slot::Menu] = Black;
        return Outcome::done();
    }
    const std::filesystem::path path = m_folder / SchemeLibraryFile;
    std::string content;
    if (Outcome read = readSmallFile(path, SizeLimit, content); !read.ok())
        return read;
    const std::vector<TextLine> lines = splitLines(content);
    const auto header = std::find_if(lines.begin(), lines.end(),
                                     [&](const TextLine& line) { return line.text == file; });
    if (header == lines.end()) {
        appearance.ActiveScheme = BuiltInScheme;
        return Outcome::failed("Colour Scheme: " + file + " not found");
    }
    const auto at = static_cast<std::size_t>(header - lines.begin());
    const Outcome read = readColours(lines, at, colours);
    return read.ok() ? read : Outcome::failed(path.native() + ": " + read.problem);
}

Outcome SchemeLibrary::AddScheme(const std::string& name, const SchemeColours& colours) {
    if (name.find_first_of("\r\n") != std::string::npos)
        return Outcome::failed(addingFailed("A name cannot hold a line break"));
    bool isListed = false;
    const Outcome added = rewrite([&](std::string& content) {
        isListed = listsName(listNames(content), name);
        if (isListed)
            return Outcome::failed("Colour Scheme: " + name + " already exists");
        if (!content.empty() && !content.ends_with('\n'))
            content += LineEnd;
        content += schemeRecord(schemeHeader(name), colours);
        return Outcome::done();
    });
    return isListed ? added : reported(added, addingFailed);
}

Outcome SchemeLibrary::ReplaceScheme(const std::string& entry, const SchemeColours& colours) {
    const std::string header = schemeHeader(entry);
    return rewriteRecords(header, schemeRecord(header, colours));
}

Outcome SchemeLibrary::DeleteScheme(const std::string& entry) {
    return rewriteRecords(schemeHeader(entry), {});
}

/// The new content goes to the scratch copy in full before the library is touched.
Outcome SchemeLibrary::rewriteRecords(const std::string& header, const std::string& replacement) {
    const Outcome rewritten = rewrite([&](std::string& content) {
        content = withRecordsReplaced(content, header, replacement);
        return replaceFile(m_folder / ScratchCopy, content);
    });
    return reported(rewritten, updatingFailed);
}

Outcome SchemeLibrary::rewrite(const std::function<Outcome(std::string& content)>& change) {
    const std::filesystem::path library = m_folder / SchemeLibraryFile;
    if (!FileExists(library))
        return Outcome::failed(library.native() + ": does not exist");
    std::vector<std::string> names;
    const auto changeAndList = [&](std::string& content) {
        Outcome changed = change(content);
        names = listNames(content);
        return changed;
    };
    Outcome rewritten = rewriteSmallFile(library, SizeLimit, changeAndList, m_wait);
    if (rewritten.ok())
        m_names = std::move(names);
    return rewritten;
}

bool isSchemeInForce(const std::string& entry, const std::string& ActiveScheme) {
    return lowerCase(ActiveScheme) == lowerCase(entry);
}

} // namespace tessaly
