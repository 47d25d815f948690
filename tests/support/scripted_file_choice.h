#pragma once

#include "core/session/file_choice.h"

#include <string>
#include <vector>

namespace tessaly {

/// The file picker, answered by a test.
struct ScriptedFileChoice : FileChoice {
    std::string chooseToOpen(std::string_view title) override { return answer("OPEN", title); }
    std::string chooseToSave(std::string_view title) override { return answer("SAVE", title); }

    std::string answer(std::string_view mode, std::string_view title) {
        asked.push_back(std::string(mode) + ": " + std::string(title));
        return path;
    }

    /// The file that the user chooses; empty cancels.
    std::string path;
    std::vector<std::string> asked;
};

} // namespace tessaly
