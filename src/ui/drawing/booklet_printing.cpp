#include "ui/drawing/booklet_printing.h"

#include "ui/drawing/page_painter.h"

#include <QPagedPaintDevice>
#include <QPainter>

namespace tessaly {
namespace {

constexpr double PointsPerInch = 72;

Outcome paintPage(PagePainter& painter, const PrintJob& job, const BookletPage& page,
                  const PageLayout& layout) {
    Board board;
    for (int place = 0; place < page.count; ++place) {
        const int number = job.firstNumber + page.first + place;
        if (Outcome read = job.boardOf(number, board); !read.ok())
            return read;
        painter.drawBoard(board, number, page.part.solutions, layout.boardArea(place));
    }
    return Outcome::done();
}

PrintResult paintPages(QPagedPaintDevice& device, QPainter& painter, const PrintJob& job,
                       const Appearance& appearance, const GoOn& goOn) {
    painter.scale(device.logicalDpiX() / PointsPerInch, device.logicalDpiY() / PointsPerInch);
    PagePainter pages(painter, appearance);
    const int pageCount = job.booklet.pageCount();
    for (int number = 0; number < pageCount; ++number) {
        if (!goOn(number))
            return {{}, true};
        if (number > 0 && !device.newPage())
            return {Outcome::failed("A new page cannot be begun."), false};
        const BookletPage page = job.booklet.page(number);
        const PageLayout layout(paperOf(device), page.part.boardsPerPage);
        if (Outcome painted = paintPage(pages, job, page, layout); !painted.ok())
            return {painted, false};
        pages.drawFooter(layout.footer(), number + 1, pageCount);
    }
    return {};
}

} // namespace

PaperSize paperOf(const QPagedPaintDevice& device) {
    const QRectF sheet = device.pageLayout().fullRectPoints();
    return {sheet.width(), sheet.height()};
}

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

} // namespace tessaly
