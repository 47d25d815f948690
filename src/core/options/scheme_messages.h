#pragma once

#include <string>

/// What the user is asked and told about the scheme library. Failures are told by the operations
/// themselves, in the `Outcome` they return.
namespace tessaly::scheme_messages {

inline const std::string LibraryMissing =
    "File: all.col is missing\r\nProgram cannot run without this file";

inline std::string caption(const std::string& scheme) {
    return "Colour Scheme: " + scheme;
}

inline const std::string AskName = "Enter new Colour Scheme name";
inline const std::string SelectToReplace = "Select a colour scheme to replace";
inline const std::string SelectToDelete = "Select a colour scheme to delete";
inline const std::string ActiveCannotBeDeleted = "Cannot delete currently active Colour Scheme";

inline std::string askReplace(const std::string& entry) {
    return "Replace colour scheme: " + entry;
}
inline std::string askDelete(const std::string& entry) {
    return "Delete colour scheme: " + entry;
}

inline std::string notFound(const std::string& file) {
    return "Colour Scheme: " + file + " not found";
}
inline std::string exists(const std::string& name) {
    return "Colour Scheme: " + name + " already exists";
}
/// `name` as it was typed.
inline std::string added(const std::string& name) {
    return "Colour Scheme: " + name + " added";
}
/// `header` is the scheme's file name, in lower case and with ".col".
inline std::string replaced(const std::string& header) {
    return "Colour Scheme: " + header + " replaced";
}
inline std::string deleted(const std::string& header) {
    return "Colour Scheme: " + header + " deleted";
}

inline std::string addingFailed(const std::string& why) {
    return "Error in adding Colour Scheme:\r\n" + why;
}
inline std::string updatingFailed(const std::string& why) {
    return "Error in updating Colour Scheme:\r\n" + why;
}

} // namespace tessaly::scheme_messages
