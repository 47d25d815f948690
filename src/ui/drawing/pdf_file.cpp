#include "ui/drawing/pdf_file.h"

#include "core/base/product.h"
#include "core/files/file_access.h"
#include "ui/drawing/sink_device.h"

#include <QPageLayout>
#include <QPdfWriter>

namespace tessaly {
namespace {

void setUp(QPdfWriter& writer, PaperSize paper, const std::string& title) {
    const QPageSize size(QSizeF(paper.width, paper.height), QPageSize::Point, {},
                         QPageSize::FuzzyMatch);
    writer.setPageLayout(QPageLayout(size, QPageLayout::Portrait, {}));
    writer.setTitle(QString::fromStdString(title));
    writer.setCreator(QString::fromLatin1(Product::Name) + u' ' +
                      QString::fromLatin1(Product::Version));
}

} // namespace

PrintResult writePdf(const std::filesystem::path& path, PaperSize paper, const PrintJob& job,
                     const Appearance& appearance, const GoOn& goOn) {
    PrintResult result;
    const Outcome written = replaceFile(path, [&](const ContentSink& sink) {
        SinkDevice device(sink);
        {
            QPdfWriter writer(&device);
            setUp(writer, paper, job.title);
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
