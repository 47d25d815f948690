#pragma once

#include "core/base/outcome.h"
#include "core/options/appearance.h"

#include <functional>
#include <string>
#include <vector>

namespace tessaly {

/// The colour schemes in the file "all.col" of the program's folder. Every operation works on what
/// the file holds at that time, whoever wrote it, and keeps the bytes of the records that it does
/// not touch. When one fails, nothing is changed and its `Outcome` is the text for the user.
class SchemeLibrary {
public:
    /// `programFolder` ends in "/".
    explicit SchemeLibrary(std::string programFolder);

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

    std::string m_folder;
    std::vector<std::string> m_names;
};

/// Whether `entry` must not be deleted because it is in force. The comparison is with the bare
/// entry, so it holds for an `ActiveScheme` without ".col" only.
bool isSchemeInForce(const std::string& entry, const std::string& ActiveScheme);

} // namespace tessaly
