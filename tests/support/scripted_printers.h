#pragma once

#include "ui/output/printers.h"

#include "support/temporary_folder.h"

#include <QPrinter>

#include <functional>

namespace tessaly {

/// The printers of a test's own machine: none at first. What is printed is kept.
class ScriptedPrinters : public Printers {
public:
    struct Printed {
        QString name;
        QString title;
        std::string pdf;
    };

    QStringList names() const override { return installed; }
    QString defaultName() const override { return usual; }
    PaperSize paperOf(const QString&) const override { return paper; }
    Outcome print(const QString& name, const std::filesystem::path& pdf,
                  const QString& title) override {
        printed.push_back({name, title, test::contentOf(pdf)});
        return answer;
    }
    bool setUp(QPrinter& printer, QWidget*) override {
        ++asked;
        return userSetsUp && userSetsUp(printer);
    }

    QStringList installed;
    QString usual;
    PaperSize paper = NamedPapers[0].size;
    Outcome answer;
    std::vector<Printed> printed;
    /// What the user does in the platform's dialog; nobody is there at first, and it is cancelled.
    std::function<bool(QPrinter&)> userSetsUp;
    int asked = 0;
};

} // namespace tessaly
