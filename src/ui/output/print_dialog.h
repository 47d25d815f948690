#pragma once

#include "core/options/appearance.h"
#include "core/output/print_job.h"
#include "core/session/multiple_creation.h"
#include "ui/controls/file_name_picker.h"
#include "ui/output/printers.h"

#include <QDialog>
#include <QString>
#include <QTimer>

#include <filesystem>
#include <optional>
#include <string>

class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QVBoxLayout;

namespace tessaly {

class NewPuzzlesTab;
class PageTab;
class PaperTab;
class PrintPreview;
class Prompts;
class SelectionTab;
class SolutionTab;

/// What is to be printed, and where.
struct PrintOrder {
    PrintRequest request;
    /// New puzzles that are to be made first, and printed instead of those selected.
    std::optional<CreationOrder> creation;
    PrintTarget target;
};

/// What the dialog starts with.
struct PrintSuggestion {
    std::filesystem::path path;
    /// The puzzle shown, and how many its file holds.
    int number = 1;
    int count = 0;
    /// The printer that the program uses: a device name, empty for a PDF file, or none yet.
    std::optional<QString> printer;
};

/// The dialog "Print Puzzles From File". Its property "tag" is "Y" after it was closed in order to
/// print, else "X". It stays open as long as something is wrong with what it asks for.
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
    QGroupBox* addFrame(QVBoxLayout& rows, const QString& title, const QString& name);
    void makePrinterFrame(QVBoxLayout& rows);
    void makeFileFrame(QVBoxLayout& rows, const FileDialog& fileDialog);
    void makeTabs(QVBoxLayout& rows);
    void makeButtons(QVBoxLayout& rows);
    void paint();
    void load(const PrintSuggestion& suggestion);
    void listPrinters(const QString& current);
    void chooseFile();
    void offerPaper();
    void showPages();

    bool isToPdf() const;
    /// Empty for a PDF file.
    QString printer() const;
    Outcome readRequest(PrintRequest& request) const;
    void acceptRange();
    void acceptNewPuzzles();
    void finish(PrintOrder order, int puzzles);
    bool hasPrinter();

    const Appearance& m_appearance;
    Printers& m_printers;
    Prompts& m_prompts;
    std::filesystem::path m_programFolder;
    QString m_tag;
    std::filesystem::path m_path;
    int m_count = 0;
    PrintOrder m_order;
    /// Runs while what is printed has changed and is not shown yet.
    QTimer m_changed;

    QComboBox* m_printer = nullptr; // Combo1
    QLineEdit* m_file = nullptr;    // FileNow
    FNDialog* m_picker = nullptr;   // gf1
    SelectionTab* m_selection = nullptr;
    PageTab* m_pages = nullptr;
    SolutionTab* m_solutions = nullptr;
    PaperTab* m_paper = nullptr;
    NewPuzzlesTab* m_newPuzzles = nullptr;
    QLabel* m_pageCount = nullptr;
    /// Made when the dialog is first shown: it asks the system for its printers.
    PrintPreview* m_preview = nullptr;
};

} // namespace tessaly
