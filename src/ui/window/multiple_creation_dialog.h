#pragma once

#include "core/options/appearance.h"
#include "core/session/multiple_creation.h"
#include "ui/controls/file_name_picker.h"

#include <QDialog>

#include <filesystem>

class QCheckBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QRadioButton;

namespace tessaly {

/// The dialog that sets up the creation of many puzzles.
class Form3 : public QDialog, public CreationOrderChoice {
    Q_OBJECT

public:
    /// All must outlive the form; the files are offered in `programFolder`.
    Form3(const Appearance& appearance, const FileDialog& fileDialog, Prompts& prompts,
          std::filesystem::path programFolder, QWidget* parent = nullptr);

    std::optional<CreationOrder> choose() override;

private:
    QWidget* makeDifficultyFrame();
    QWidget* makeNumberFrame();
    QWidget* makeFileFrame(const FileDialog& fileDialog);
    QHBoxLayout* makeButtons();
    void chooseFile();
    void showFile(const std::filesystem::path& path);
    void acceptOrder();
    int number() const;
    DifficultyChoice difficulty() const;

    const Appearance& m_appearance;
    Prompts& m_prompts;
    std::filesystem::path m_programFolder;
    std::filesystem::path m_path;

    QRadioButton* m_random = nullptr; // Option1_0
    QRadioButton* m_easy = nullptr;   // Option1_1
    QRadioButton* m_hard = nullptr;   // Option1_2
    QLineEdit* m_number = nullptr;    // Text1
    QLabel* m_file = nullptr;         // Label2
    QCheckBox* m_default = nullptr;   // Check3
    FNDialog* m_picker = nullptr;     // gf1
};

} // namespace tessaly
