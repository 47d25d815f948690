#include "ui/drawing/pdf_file.h"

#include "core/base/product.h"
#include "core/files/file_access.h"
#include "ui/drawing/page_painter.h"

#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>

#include <numeric>

namespace tessaly {
namespace {

constexpr double PointsPerInch = 72;

Outcome paintPage(PagePainter& painter, const PrintJob& job, int pageNumber, PaperSize paper) {
    if (pageNumber == EmptyPage)
        return Outcome::done();
    const BookletPage page = job.booklet.page(pageNumber);
    const PageLayout layout(paper, page.part.boardsPerPage);
    Board board;
    for (int place = 0; place < page.count; ++place) {
        const int number = job.firstNumber + page.first + place;
        if (Outcome read = job.boardOf(number, board); !read.ok())
            return read;
        painter.drawBoard(board, number, page.part.solutions, layout.boardArea(place));
    }
    painter.drawFooter(layout.footer(), pageNumber + 1, job.booklet.pageCount());
    return Outcome::done();
}

std::vector<int> pagesOf(const PrintJob& job) {
    std::vector<int> pages = job.pages;
    if (pages.empty()) {
        pages.resize(static_cast<std::size_t>(job.booklet.pageCount()));
        std::iota(pages.begin(), pages.end(), 0);
    }
    return pages;
}

PrintResult paintPages(QPagedPaintDevice& device, QPainter& painter, const PrintJob& job,
                       const Appearance& appearance, const GoOn& goOn) {
    painter.scale(device.logicalDpiX() / PointsPerInch, device.logicalDpiY() / PointsPerInch);
    PagePainter pages(painter, appearance);
    int done = 0;
    for (const int page : pagesOf(job)) {
        if (!goOn(done))
            return {{}, true};
        if (done > 0 && !device.newPage())
            return {Outcome::failed("A new page cannot be begun."), false};
        if (Outcome painted = paintPage(pages, job, page, paperOf(device)); !painted.ok())
            return {painted, false};
        ++done;
    }
    return {};
}

/// Paints a booklet onto paper, on the whole sheet.
PrintResult paintBooklet(QPagedPaintDevice& device, const PrintJob& job,
                         const Appearance& appearance, const GoOn& goOn) {
    QPainter painter;
    if (!painter.begin(&device))
        return {Outcome::failed("The printer cannot be used."), false};
    PrintResult result = paintPages(device, painter, job, appearance, goOn);
    if (!painter.end() && result.isComplete())
        return {Outcome::failed("The pages cannot be finished."), false};
    return result;
}

void setUp(QPdfWriter& writer, PaperSize paper, const std::string& title) {
    const QPageSize size(QSizeF(paper.width, paper.height), QPageSize::Point, {},
                         QPageSize::FuzzyMatch);
    writer.setPageLayout(QPageLayout(size, QPageLayout::Portrait, {}));
    writer.setTitle(QString::fromStdString(title));
    writer.setCreator(QString::fromLatin1(Product::Name) + u' ' +
                      QString::fromLatin1(Product::Version));
}

} // namespace

SinkDevice::SinkDevice(const ContentSink& sink)
    : m_sink(sink) {
    setOpenMode(QIODevice::WriteOnly | QIODevice::Unbuffered);
}

qint64 SinkDevice::writeData(const char* bytes, qint64 count) {
    constexpr qsizetype LargePiece = qsizetype{256} * 1024;
    if (!m_outcome.ok())
        return -1;
    m_held.append(bytes, count);
    if (m_held.size() >= LargePiece)
        pass();
    return m_outcome.ok() ? count : -1;
}

void SinkDevice::pass() {
    m_outcome = m_sink.write({m_held.constData(), static_cast<std::size_t>(m_held.size())});
    m_held.clear();
}

Outcome SinkDevice::finish() {
    if (m_outcome.ok())
        pass();
    return m_outcome;
}

PaperSize paperOf(const QPagedPaintDevice& device) {
    const QRectF sheet = device.pageLayout().fullRectPoints();
    return {sheet.width(), sheet.height()};
}

PrintResult writePdf(const std::filesystem::path& path, PaperSize paper, const PrintJob& job,
                     const Appearance& appearance, const GoOn& goOn, const LockWait& wait) {
    PrintResult result;
    const auto write = [&](const ContentSink& sink) {
        SinkDevice device(sink);
        {
            QPdfWriter writer(&device);
            setUp(writer, paper, job.title);
            result = paintBooklet(writer, job, appearance, goOn);
        }
        if (result.stopped)
            return Outcome::failed("stopped");
        return result.outcome.ok() ? device.finish() : result.outcome;
    };
    const Outcome written = replaceFile(path, write, wait);
    if (!result.stopped)
        result.outcome = written;
    return result;
}

} // namespace tessaly
