// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "output/booklet_printing.h"

#include <QString>

#include <filesystem>

namespace tessaly {

/// The paper of a PDF file and what its reader shows as its title.
struct PdfOptions {
    PaperSize paper;
    QString title;
};

/// Writes a booklet into a PDF file, with its fonts in it. The file is there, whole, when the
/// result is complete; otherwise the path holds what it held before.
PrintResult writePdf(const std::filesystem::path& path, const PdfOptions& options,
                     const PrintJob& job, const Appearance& appearance, const GoOn& goOn);

} // namespace tessaly
