#pragma once

#include "core/base/outcome.h"
#include "core/files/file_descriptor.h"
#include "core/options/appearance.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessaly {

/// The library of colour schemes in the program's folder.
inline constexpr const char* SchemeLibraryFile = "all.col";

/// A scheme in the library file is one header line, the scheme's name in lower case with ".col"
/// behind it, and one line for each of the slots 0 to 12:
///
///     xp.col
///      1; 1; 1              red; green; blue, each 0 to 255
///      240; 240; 240
///      ...
inline constexpr std::size_t StoredSlotCount = 13;
inline constexpr std::string_view SchemeExtension = ".col";

/// The header of the scheme that the user calls `name` (UTF-8).
std::string schemeHeader(std::string_view name);

/// The name that a line lists: what stands before its first ".col"; nothing when it has none.
std::optional<std::string_view> listedName(std::string_view line);

/// The 14 lines of a scheme, each with its line end.
std::string schemeRecord(const std::string& header, const SchemeColours& colours);

/// The colour schemes in the file "all.col" of the program's folder. Every operation works on what
/// the file holds at that time, whoever wrote it, and keeps the bytes of the records that it does
/// not touch. When one fails, nothing is changed and its `Outcome` is the text for the user.
class SchemeLibrary {
public:
    /// `wait` says how to wait for another program that is writing the library.
    explicit SchemeLibrary(std::filesystem::path programFolder, LockWait wait = {});

    /// The listed names, without ".col", in the file's order, as of the last refresh or change.
    const std::vector<std::string>& names() const { return m_names; }
    /// Lists the names that the file holds now.
    Outcome RefreshSchemeList();

    /// Loads the scheme whose header is `file` ("xp.col", compared byte by byte) into
    /// `SchemeColours`; its base colour then stands in `slot::Background`. "default.col" needs no
    /// file. A scheme that is not there fails and makes "default.col" the `ActiveScheme`.
    Outcome LoadScheme(const std::string& file, Appearance& appearance) const;

    /// Appends a scheme. A name that is listed, in whatever case, is refused.
    Outcome AddScheme(const std::string& name, const SchemeColours& colours);

    /// Gives every record of `entry` new colours, in its place.
    Outcome ReplaceScheme(const std::string& entry, const SchemeColours& colours);

    /// Removes every record of `entry`; it is no failure when there is none.
    Outcome DeleteScheme(const std::string& entry);

private:
    Outcome rewriteRecords(const std::string& header, const std::string& replacement);
    Outcome rewrite(const std::function<Outcome(std::string& content)>& change);

    std::filesystem::path m_folder;
    LockWait m_wait;
    std::vector<std::string> m_names;
};

/// Whether `entry` must not be deleted because it is in force. The comparison is with the bare
/// entry, so it holds for an `ActiveScheme` without ".col" only.
bool isSchemeInForce(const std::string& entry, const std::string& ActiveScheme);

} // namespace tessaly
