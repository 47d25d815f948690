#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tessaly {

/// Lets the user choose a puzzle file: the file picker, as commands see it.
class FileChoice {
public:
    virtual ~FileChoice() = default;

    /// The full path of the chosen file; empty when none was chosen.
    virtual std::filesystem::path chooseToOpen(std::string_view title) = 0;
    virtual std::filesystem::path chooseToSave(std::string_view title) = 0;
};

} // namespace tessaly
