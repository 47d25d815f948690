#pragma once

#include "ui/output/printers.h"

#include "support/temporary_folder.h"

#include <optional>
#include <vector>

namespace tessaly {

/// The printers of a test's own machine: none at first. What is printed is kept.
class ScriptedPrinters : public Printers {
public:
    struct Printed {
        QString name;
        QString title;
        std::string pdf;
        QStringList options;
    };

    QStringList names() const override { return installed; }
    QString defaultName() const override { return usual; }
    PaperSize paperOf(const QString&) const override { return paper; }
    Outcome print(const QString& name, const std::filesystem::path& pdf, const QString& title,
                  const SheetSettings& sheets) override {
        printed.push_back({name, title, test::contentOf(pdf), sheets.options()});
        return answer;
    }
    std::optional<PrintTarget> setUp(const PrintQuestion&, QWidget*) override {
        ++asked;
        return chosen;
    }

    QStringList installed;
    QString usual;
    PaperSize paper = NamedPapers[0].size;
    Outcome answer;
    std::vector<Printed> printed;
    /// What the user sets up in the platform's dialog; nobody is there at first.
    std::optional<PrintTarget> chosen;
    int asked = 0;
};

} // namespace tessaly
