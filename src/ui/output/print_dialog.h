#pragma once

#include "core/options/appearance.h"
#include "core/output/print_job.h"
#include "ui/controls/file_name_picker.h"

#include <QDialog>
#include <QString>

#include <array>
#include <filesystem>
#include <optional>
#include <string>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QHBoxLayout;
class QLineEdit;
class QRadioButton;

namespace tessaly {

class Printers;
class Prompts;

/// What is to be printed, and where.
struct PrintOrder {
    PrintRequest request;
    /// The device name; empty for a PDF file.
    QString printer;
};

/// What the dialog starts with.
struct PrintSuggestion {
    std::filesystem::path path;
    int count = 0;
    /// The printer that the program uses: a device name, empty for a PDF file, or none yet.
    std::optional<QString> printer;
};

/// The dialog "Print Puzzles From File". Its property "tag" is "Y" after it was closed in order to
/// print, else "X".
class Form5 : public QDialog {
    Q_OBJECT
    Q_PROPERTY(QString tag MEMBER m_tag)

public:
    /// The last of the printers, which is there on every machine.
    static constexpr const char* PrintToPdf = "Print to PDF";

    /// All must outlive the form; puzzle files are offered in `programFolder`.
    Form5(const Appearance& appearance, Printers& printers, const FileDialog& fileDialog,
          Prompts& prompts, std::filesystem::path programFolder, QWidget* parent = nullptr);

    /// Asks what to print; nothing when the user cancels.
    std::optional<PrintOrder> choose(const PrintSuggestion& suggestion);

private:
    QGroupBox* addFrame(const QString& title, const QString& name);
    void makePrinterFrame();
    void makeFileFrame(const FileDialog& fileDialog);
    void makeRangeFrame();
    void makePageFrame();
    QHBoxLayout* makeButtons();
    void paint();
    void load(const PrintSuggestion& suggestion);
    void chooseFile();
    void acceptRange();
    PrintOrder order() const;

    const Appearance& m_appearance;
    Printers& m_printers;
    Prompts& m_prompts;
    std::filesystem::path m_programFolder;
    QString m_tag;
    std::filesystem::path m_path;
    int m_count = 0;

    QComboBox* m_printer = nullptr; // Combo1
    QLineEdit* m_file = nullptr;    // FileNow
    FNDialog* m_picker = nullptr;   // gf1
    QLineEdit* m_from = nullptr;    // Text1
    QLineEdit* m_to = nullptr;      // Text2
    std::array<QRadioButton*, PuzzlesPerPage.size()> m_perPage{};
    QCheckBox* m_solutions = nullptr;
};

} // namespace tessaly
