#pragma once

#include "core/files/file_descriptor.h"
#include "core/options/appearance.h"
#include "core/output/print_job.h"

#include <filesystem>
#include <functional>

class QPainter;

namespace tessaly {

/// Called before each page is painted with the number of those before it and of all; when it
/// answers false the printing ends.
using GoOn = std::function<bool(int page, int pageCount)>;

/// How painting ended. When it was stopped nothing is wrong, but not all pages are there.
struct PrintResult {
    Outcome outcome;
    bool stopped = false;

    bool isComplete() const { return outcome.ok() && !stopped; }
};

/// Lets the painter of a page count in points.
void scaleToPoints(QPainter& painter);

/// Writes a job's pages into a PDF file, with its fonts in it. The file is there, whole, when the
/// result is complete; otherwise the path holds what it held before.
PrintResult writePdf(const std::filesystem::path& path, PaperSize paper, const PrintJob& job,
                     const Appearance& appearance, const GoOn& goOn, const LockWait& wait = {});

} // namespace tessaly
