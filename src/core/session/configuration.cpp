#include "core/session/configuration.h"

#include "core/base/text.h"
#include "core/files/file_access.h"
#include "core/files/line_reader.h"
#include "core/files/locked_file.h"
#include "core/options/scheme_library.h"
#include "core/session/program_folder.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <string_view>
#include <vector>

namespace tessaly {
namespace {

constexpr Colour LastColour = White;

/// In bytes.
constexpr std::size_t LargestConfiguration = std::size_t{1} << 20;

/// Takes a list of numbers apart, one number after the other. Each is nothing when it is missing,
/// garbled or out of the range that is asked for; then the list is damaged, unless that is a colour
/// that was never chosen.
class NumberList {
public:
    explicit NumberList(std::string_view text)
        : m_rest(text) {}

    bool isDamaged() const { return m_isDamaged; }

    std::optional<int> next(int lowest, int highest) {
        const std::optional<int> value = numberIn(nextField(), lowest, highest);
        m_isDamaged = m_isDamaged || !value;
        return value;
    }

    std::optional<Colour> nextColour() {
        const std::string_view field = nextField();
        const auto value = numberIn(field, 0, static_cast<int>(LastColour));
        m_isDamaged = m_isDamaged || !(value || field.empty());
        return value ? std::optional(static_cast<Colour>(*value)) : std::nullopt;
    }

private:
    static std::optional<int> numberIn(std::string_view text, int lowest, int highest) {
        int value = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
        const bool isNumber = error == std::errc() && end == text.data() + text.size();
        if (!isNumber || value < lowest || value > highest)
            return {};
        return value;
    }

    std::string_view nextField() {
        const std::size_t comma = m_rest.find(',');
        const std::string_view field = m_rest.substr(0, comma);
        m_rest.remove_prefix(comma == std::string_view::npos ? m_rest.size() : comma + 1);
        return trimmed(field);
    }

    std::string_view m_rest;
    bool m_isDamaged = false;
};

/// Whether every number is one.
bool readNumbers(std::string_view line, Configuration& into) {
    constexpr int Unlimited = std::numeric_limits<int>::max();
    NumberList numbers(line);
    into.PuzNum = numbers.next(1, Unlimited).value_or(into.PuzNum);
    into.PrintLineWidth = numbers.next(1, Unlimited).value_or(into.PrintLineWidth);
    into.HexaBorderWidth = numbers.next(1, MaxBorderWidth).value_or(into.HexaBorderWidth);
    into.FixedNumberColour = numbers.nextColour();
    into.UserNumberColour = numbers.nextColour();
    into.HexaBorderColour = numbers.nextColour();
    into.SplitHexas = numbers.next(0, 1).value_or(0) == 1;
    into.HexaFillColour = numbers.nextColour();
    into.NumBorder = numbers.next(0, 1).value_or(0) == 1;
    return !numbers.isDamaged();
}

/// Whether every line is whole, as far as that can be seen.
bool readLines(const std::vector<TextLine>& lines, Configuration& read) {
    constexpr std::size_t LeastLines = 4;
    const auto lineAt = [&](std::size_t i) { return i < lines.size() ? lines[i].text : ""; };
    const bool hasNumbers = readNumbers(lineAt(0), read);
    if (!isBlank(lineAt(1)))
        read.ActiveScheme = lineAt(1);
    if (!isBlank(lineAt(2)))
        read.NumberFont = lineAt(2);
    read.PuzPath = lineAt(3);
    for (std::size_t i = 4; i < lines.size(); ++i)
        if (!isBlank(lines[i].text))
            read.recentFiles.append(lines[i].text);
    return hasNumbers && lines.size() >= LeastLines && lines.back().raw.ends_with('\n');
}

std::string colourText(std::optional<Colour> colour) {
    return colour ? std::to_string(*colour) : std::string();
}

std::string numberLine(const Configuration& from) {
    const std::vector<std::string> numbers{
        std::to_string(from.PuzNum),
        std::to_string(from.PrintLineWidth),
        std::to_string(from.HexaBorderWidth),
        colourText(from.FixedNumberColour),
        colourText(from.UserNumberColour),
        colourText(from.HexaBorderColour),
        std::to_string(from.SplitHexas ? 1 : 0),
        colourText(from.HexaFillColour),
        std::to_string(from.NumBorder ? 1 : 0),
    };
    std::string line;
    for (const std::string& number : numbers)
        line.append(line.empty() ? "" : ",").append(number);
    return line;
}

void addLine(std::string_view line, std::string& content) {
    if (line.find('\n') == std::string_view::npos)
        content.append(line);
    content.append(LineEnd);
}

std::filesystem::path configurationPath(const Session& session) {
    return session.ProgramFolder / ConfigurationFile;
}

/// False only where there is no file; one that cannot be examined may hold what must not be lost.
bool isThere(const std::filesystem::path& path) {
    std::error_code error;
    return std::filesystem::status(path, error).type() != std::filesystem::file_type::not_found;
}

/// The schemes must be listed before anything can be coloured by them.
void checkSchemes(const std::filesystem::path& folder, LoadedSession& loaded) {
    const std::filesystem::path path = folder / SchemeLibraryFile;
    SchemeLibrary schemes(folder);
    if (!isThere(path))
        loaded.outcome =
            Outcome::failed("File: all.col is missing\r\nProgram cannot run without this file");
    else
        loaded.outcome = schemes.RefreshSchemeList();
    if (!loaded.outcome.ok() || !schemes.names().empty())
        return;
    loaded.outcome = Outcome::failed(path.native() + ": there is no colour scheme in it");
    loaded.damagedFile = SchemeLibraryFile;
}

void checkArrangements(Session& session, LoadedSession& loaded) {
    const std::filesystem::path path = session.ProgramFolder / ArrangementFile;
    loaded.outcome = Set6Combos(path, session.arrangements);
    FileDescriptor file;
    if (!loaded.outcome.ok() && (!isThere(path) || openForReading(path, file).ok()))
        loaded.damagedFile = ArrangementFile;
}

bool hasScheme(const std::filesystem::path& folder, const std::string& scheme) {
    Appearance tried;
    return SchemeLibrary(folder).LoadScheme(scheme, tried).ok();
}

Outcome applyConfiguration(const Configuration& configuration, Session& session) {
    session.recentFiles = configuration.recentFiles;
    session.appearance.ActiveScheme = configuration.ActiveScheme;
    const SchemeLibrary schemes(session.ProgramFolder);
    Outcome scheme = schemes.LoadScheme(configuration.ActiveScheme, session.appearance);
    if (!scheme.ok()) {
        session.appearance.ActiveScheme = BuiltInScheme;
        static_cast<void>(schemes.LoadScheme(BuiltInScheme, session.appearance).ok());
    }
    configuration.applyTo(session.appearance);
    return scheme;
}

} // namespace

void Configuration::remember(const Appearance& appearance) {
    PrintLineWidth = appearance.PrintLineWidth;
    HexaBorderWidth = appearance.HexaBorderWidth;
    SplitHexas = appearance.SplitHexas;
    NumBorder = appearance.NumBorder;
    FixedNumberColour = appearance.FixedNumberColour;
    UserNumberColour = appearance.UserNumberColour;
    HexaBorderColour = appearance.HexaBorderColour;
    HexaFillColour = appearance.HexaFillColour;
    ActiveScheme = appearance.ActiveScheme;
    NumberFont = appearance.NumberFont;
}

void Configuration::applyTo(Appearance& appearance) const {
    appearance.PrintLineWidth = PrintLineWidth;
    appearance.HexaBorderWidth = HexaBorderWidth;
    appearance.SplitHexas = SplitHexas;
    appearance.NumBorder = NumBorder;
    appearance.NumberFont = NumberFont;
    appearance.UserNumberColour =
        UserNumberColour.value_or(appearance.SchemeColours[slot::DarkRed]);
    appearance.HexaBorderColour =
        HexaBorderColour.value_or(readableOn(appearance.SchemeColours[slot::Background]));
    appearance.HexaFillColour = HexaFillColour.value_or(appearance.SchemeColours[slot::Button]);
    appearance.FixedNumberColour =
        FixedNumberColour.value_or(readableOn(appearance.HexaFillColour));
}

ConfigurationRead ReadcfgFile(const std::filesystem::path& path, Configuration& configuration) {
    std::string content;
    configuration = {};
    if (!isThere(path))
        return {};
    ConfigurationRead read{readSmallFile(path, LargestConfiguration, content)};
    read.isDamaged = read.ok() && !readLines(splitLines(content), configuration);
    return read;
}

Outcome SavecfgFile(const std::filesystem::path& path, const Configuration& configuration,
                    const LockWait& wait) {
    std::string content;
    addLine(numberLine(configuration), content);
    addLine(configuration.ActiveScheme, content);
    addLine(configuration.NumberFont, content);
    addLine(configuration.PuzPath.native(), content);
    for (const std::filesystem::path& file : configuration.recentFiles.paths())
        addLine(file.native(), content);
    return replaceFile(path, content, wait);
}

LoadedSession loadSession(Session& session, const std::string& firstScheme) {
    LoadedSession loaded;
    removeLeftovers(session.ProgramFolder);
    checkSchemes(session.ProgramFolder, loaded);
    if (loaded.outcome.ok())
        checkArrangements(session, loaded);
    if (!loaded.outcome.ok())
        return loaded;
    const std::filesystem::path path = configurationPath(session);
    Configuration configuration;
    const ConfigurationRead read = ReadcfgFile(path, configuration);
    const Outcome kept = read.isDamaged ? keepDamaged(path) : Outcome{read.problem};
    session.configurationIsUnread = !kept.ok();
    session.last = {configuration.PuzPath, configuration.PuzNum};
    if (!isThere(path)) {
        session.last.path = session.ProgramFolder / EasyLibraryFile;
        if (hasScheme(session.ProgramFolder, firstScheme))
            configuration.ActiveScheme = firstScheme;
    }
    const Outcome applied = applyConfiguration(configuration, session);
    loaded.notice = kept.ok() ? applied.problem : kept.problem;
    if (read.isDamaged && kept.ok())
        loaded.notice = path.native() + ": is damaged; what was in it is kept in \"" +
                        path.filename().native() + DamagedExtension + "\"\r\n" + applied.problem;
    return loaded;
}

Outcome SavecfgFile(const Session& session, const LockWait& wait) {
    if (session.configurationIsUnread)
        return Outcome::done();
    Configuration configuration;
    const bool showedPuzzle = !session.puzzle.PuzPath.empty();
    configuration.PuzNum = std::max(showedPuzzle ? session.puzzle.PuzNum : session.last.number, 1);
    configuration.ActiveScheme = session.appearance.ActiveScheme;
    configuration.remember(session.appearance);
    configuration.PuzPath = showedPuzzle ? session.puzzle.PuzPath : session.last.path;
    configuration.recentFiles = session.recentFiles;
    return SavecfgFile(configurationPath(session), configuration, wait);
}

} // namespace tessaly
