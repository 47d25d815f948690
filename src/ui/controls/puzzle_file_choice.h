#pragma once

#include "core/session/file_choice.h"

#include <string>

namespace tessaly {

class FNDialog;

/// Asks for puzzle files with a file-name picker.
class PuzzleFileChoice : public FileChoice {
public:
    /// The picker must outlive the choice; it opens in `programFolder`.
    PuzzleFileChoice(FNDialog& picker, std::string programFolder);

    std::string chooseToOpen(std::string_view title) override;
    std::string chooseToSave(std::string_view title) override;

private:
    std::string choose(std::string_view title, const char* mode);

    FNDialog& m_picker;
    std::string m_programFolder;
};

} // namespace tessaly
