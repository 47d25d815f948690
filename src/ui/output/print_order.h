#pragma once

#include "core/output/print_job.h"

#include <QString>

#include <optional>
#include <string>

namespace tessaly {

/// What is to be printed, and where.
struct PrintOrder {
    PrintRange range;
    /// The device name; empty for a PDF file.
    QString printer;
};

/// What the dialog starts with.
struct PrintSuggestion {
    std::string path;
    int count = 0;
    /// The printer that the program uses: a device name, empty for a PDF file, or none yet.
    std::optional<QString> printer;
};

/// Asks what to print: the dialog, as the command sees it. Nothing when the user cancels.
class PrintOrderChoice {
public:
    virtual ~PrintOrderChoice() = default;
    virtual std::optional<PrintOrder> choose(const PrintSuggestion& suggestion) = 0;
};

} // namespace tessaly
