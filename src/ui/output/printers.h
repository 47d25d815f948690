#pragma once

#include "core/base/outcome.h"
#include "core/output/booklet.h"
#include "core/output/paper.h"

#include <QStringList>

#include <filesystem>
#include <optional>
#include <vector>

class QPrinter;
class QWidget;

namespace tessaly {

/// How a printer puts a document onto its sheets.
struct SheetSettings {
    Copies copies;
    /// What the print system calls the paper and its sides ("A4", "two-sided-long-edge"); empty for
    /// those that the printer is set to.
    QString media;
    QString sides;

    /// The same as options of the system's print command.
    QStringList options() const;
};

/// A paper that a printer can take.
struct PrinterPaper {
    QString name;
    PaperSize size;
    /// As in `SheetSettings`.
    QString media = {};
};

/// What can be chosen of a printer.
struct PrinterOffer {
    std::vector<PrinterPaper> papers;
    /// The place of the paper that lies in it.
    std::size_t usual = 0;
    bool isTwoSided = false;
};

/// Where and how something is printed.
struct PrintTarget {
    /// The device name; empty for a file.
    QString printer;
    /// The PDF file. Both are empty where there is no printer.
    std::filesystem::path file;
    PaperSize paper;
    /// The pages of the document, from 0, in their order; empty for all.
    std::vector<int> pages = {};
    SheetSettings sheets = {};
};

/// What is to be set up in the platform's dialog.
struct PrintQuestion {
    QString title;
    int pageCount = 1;
    /// The printer to start with; empty for the usual one.
    QString printer;
};

/// The printers of the system, as far as printing needs to know them.
class Printers {
public:
    virtual ~Printers() = default;

    /// The device names, in the system's order.
    virtual QStringList names() const = 0;
    /// The printer that is used when nobody chooses one; empty when there is none.
    virtual QString defaultName() const = 0;
    virtual PrinterOffer offerOf(const QString& name) const = 0;

    /// Hands a PDF file over to a printer.
    virtual Outcome print(const QString& name, const std::filesystem::path& pdf,
                          const QString& title, const SheetSettings& sheets) = 0;

    /// Lets the user set up one print in the platform's dialog; nothing when it is not to be made.
    virtual std::optional<PrintTarget> setUp(const PrintQuestion& question, QWidget* owner) = 0;
};

class SystemPrinters : public Printers {
public:
    QStringList names() const override;
    QString defaultName() const override;
    PrinterOffer offerOf(const QString& name) const override;
    Outcome print(const QString& name, const std::filesystem::path& pdf, const QString& title,
                  const SheetSettings& sheets) override;
    std::optional<PrintTarget> setUp(const PrintQuestion& question, QWidget* owner) override;
};

/// What was set up for a document of `pageCount` pages.
PrintTarget targetOf(const QPrinter& printer, int pageCount);

/// The papers for a PDF file; the usual one is what people use in this part of the world, A4 or
/// Letter.
PrinterOffer customaryPapers();

} // namespace tessaly
