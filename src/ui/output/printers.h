#pragma once

#include "core/base/outcome.h"
#include "core/output/page_layout.h"

#include <QStringList>

#include <filesystem>

class QPrinter;
class QWidget;

namespace tessaly {

/// The printers of the system, as far as printing needs to know them.
class Printers {
public:
    virtual ~Printers() = default;

    /// The device names, in the system's order.
    virtual QStringList names() const = 0;
    /// The printer that is used when nobody chooses one; empty when there is none.
    virtual QString defaultName() const = 0;
    /// The paper that lies in a printer.
    virtual PaperSize paperOf(const QString& name) const = 0;

    /// Hands a PDF file over to a printer.
    virtual Outcome print(const QString& name, const std::filesystem::path& pdf,
                          const QString& title) = 0;

    /// Lets the user set up one print in the platform's dialog; whether it is to be made.
    virtual bool setUp(QPrinter& printer, QWidget* owner) = 0;
};

class SystemPrinters : public Printers {
public:
    QStringList names() const override;
    QString defaultName() const override;
    PaperSize paperOf(const QString& name) const override;
    Outcome print(const QString& name, const std::filesystem::path& pdf,
                  const QString& title) override;
    bool setUp(QPrinter& printer, QWidget* owner) override;
};

/// The paper that people use in this part of the world: A4 or Letter.
PaperSize customaryPaper();

} // namespace tessaly
