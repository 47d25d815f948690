#pragma once

#include "core/session/file_choice.h"

#include <filesystem>
#include <string>
#include <vector>

namespace tessaly {

/// The file picker, answered by a test.
struct ScriptedFileChoice : FileChoice {
    std::filesystem::path chooseToOpen(std::string_view title) override {
        return answer("OPEN", title);
    }
    std::filesystem::path chooseToSave(std::string_view title) override {
        return answer("SAVE", title);
    }

    std::filesystem::path answer(std::string_view mode, std::string_view title) {
        asked.push_back(std::string(mode) + ": " + std::string(title));
        return path;
    }

    /// The file that the user chooses; empty cancels.
    std::filesystem::path path;
    std::vector<std::string> asked;
};

} // namespace tessaly
