#pragma once

#include "core/output/page_layout.h"
#include "ui/drawing/booklet_printing.h"

#include <filesystem>

namespace tessaly {

/// Writes a booklet into a PDF file, with its fonts in it. The file is there, whole, when the
/// result is complete; otherwise the path holds what it held before.
PrintResult writePdf(const std::filesystem::path& path, PaperSize paper, const PrintJob& job,
                     const Appearance& appearance, const GoOn& goOn);

} // namespace tessaly
