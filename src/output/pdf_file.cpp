// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "output/pdf_file.h"

#include "app/product.h"
#include "board/file_access.h"
#include "output/sink_device.h"

#include <QPageLayout>
#include <QPdfWriter>

namespace tessaly {
namespace {

void setUp(QPdfWriter& writer, const PdfOptions& options) {
    const QPageSize size(QSizeF(options.paper.width, options.paper.height), QPageSize::Point, {},
                         QPageSize::FuzzyMatch);
    writer.setPageLayout(QPageLayout(size, QPageLayout::Portrait, {}));
    writer.setTitle(options.title);
    writer.setCreator(QString::fromLatin1(Product::Name) + u' ' +
                      QString::fromLatin1(Product::Version));
}

} // namespace

PrintResult writePdf(const std::filesystem::path& path, const PdfOptions& options,
                     const PrintJob& job, const Appearance& appearance, const GoOn& goOn) {
    PrintResult result;
    const Outcome written = replaceFile(path, [&](const ContentSink& sink) {
        SinkDevice device(sink);
        {
            QPdfWriter writer(&device);
            setUp(writer, options);
            result = paintBooklet(writer, job, appearance, goOn);
        }
        if (result.stopped)
            return Outcome::failed("stopped");
        return result.outcome.ok() ? device.finish() : result.outcome;
    });
    if (!result.stopped)
        result.outcome = written;
    return result;
}

} // namespace tessaly
