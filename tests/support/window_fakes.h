#pragma once

#include "support/temporary_folder.h"
#include "ui/controls/file_name_picker.h"
#include "ui/output/printers.h"

#include <QList>

#include <functional>
#include <optional>
#include <vector>

namespace tessaly {

/// Answers with the names that the test wrote beforehand; "" is a dialog that the user cancels.
class ScriptedFileDialogs {
public:
    ScriptedFileDialogs(std::initializer_list<QString> names = {})
        : m_names(names) {}
    ScriptedFileDialogs(const ScriptedFileDialogs&) = delete;
    ScriptedFileDialogs& operator=(const ScriptedFileDialogs&) = delete;
    ~ScriptedFileDialogs() { EXPECT_TRUE(m_names.isEmpty()) << "not every name was used"; }

    void add(const QString& name) { m_names << name; }

    FileDialog dialog() {
        return [this](const FileQuestion& question, QWidget*) { return answer(question); };
    }

    /// Every question, in order.
    QList<FileQuestion> asked;
    /// What the user does in the dialog before it closes.
    std::function<void()> meanwhile;

private:
    QString answer(const FileQuestion& question) {
        asked << question;
        if (meanwhile)
            meanwhile();
        if (!m_names.isEmpty())
            return m_names.takeFirst();
        ADD_FAILURE() << "unexpected file dialog: " << question.title.toStdString();
        return {};
    }

    QList<QString> m_names;
};

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
    PrinterOffer offerOf(const QString&) const override {
        return {{{QStringLiteral("Own"), paper}}, 0, true};
    }
    Outcome print(const QString& name, const std::filesystem::path& pdf, const QString& title,
                  const SheetSettings& sheets) override {
        printed.push_back({name, title, contentOf(pdf), sheets.options()});
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
