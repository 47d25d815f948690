#pragma once

#include "core/options/appearance.h"
#include "core/output/page_layout.h"
#include "core/output/print_job.h"

#include <functional>

class QPagedPaintDevice;

namespace tessaly {

/// Called before each page is painted with its number, from 0; when it answers false the printing
/// ends.
using GoOn = std::function<bool(int page)>;

/// How painting ended. When it was stopped nothing is wrong, but not all pages are there.
struct PrintResult {
    Outcome outcome;
    bool stopped = false;

    bool isComplete() const { return outcome.ok() && !stopped; }
};

/// The whole sheet that a device prints on.
PaperSize paperOf(const QPagedPaintDevice& device);

/// Paints a booklet onto paper, on the whole sheet.
PrintResult paintBooklet(QPagedPaintDevice& device, const PrintJob& job,
                         const Appearance& appearance, const GoOn& goOn);

} // namespace tessaly
