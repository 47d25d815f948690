#include "ui/drawing/pdf_file.h"

#include "core/base/run_progress.h"
#include "core/files/file_access.h"
#include "ui/drawing/page_painter.h"
#include "ui/drawing/pdf_document.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>

#include <future>
#include <map>
#include <numeric>

namespace tessaly {
namespace {

constexpr double PointsPerInch = 72;

using Pages = std::vector<BookletPage>;

std::vector<int> orderOf(const PrintJob& job, const Pages& pages) {
    std::vector<int> order = job.pages;
    if (order.empty()) {
        order.resize(pages.size());
        std::iota(order.begin(), order.end(), 0);
    }
    return order;
}

PrintResult paintPages(QPagedPaintDevice& device, QPainter& painter, const PrintJob& job,
                       const Pages& pages, const Appearance& appearance, const GoOn& goOn) {
    scaleToPoints(painter);
    PagePainter pagePainter(painter, appearance, job);
    const std::vector<int> order = orderOf(job, pages);
    int done = 0;
    for (const int page : order) {
        if (!goOn(done, static_cast<int>(order.size())))
            return {{}, true};
        if (done > 0 && !device.newPage())
            return {Outcome::failed("A new page cannot be begun."), false};
        if (page != EmptyPage)
            pagePainter.draw(pages.at(static_cast<std::size_t>(page)), page + 1,
                             static_cast<int>(pages.size()));
        ++done;
    }
    return {};
}

/// Paints a booklet onto paper, on the whole sheet.
PrintResult paintBooklet(QPagedPaintDevice& device, const PrintJob& job, const Pages& pages,
                         const Appearance& appearance, const GoOn& goOn) {
    QPainter painter;
    if (!painter.begin(&device))
        return {Outcome::failed("The printer cannot be used."), false};
    PrintResult result = paintPages(device, painter, job, pages, appearance, goOn);
    if (!painter.end() && result.isComplete())
        return {Outcome::failed("The pages cannot be finished."), false};
    return result;
}

void setUp(QPdfWriter& writer, PaperSize paper) {
    const QPageSize size(QSizeF(paper.width, paper.height), QPageSize::Point, {},
                         QPageSize::FuzzyMatch);
    writer.setPageLayout(QPageLayout(size, QPageLayout::Portrait, {}));
}

PdfPlace placeOf(int page, const Rect& area) {
    return {page, area.left, area.top, area.right, area.bottom};
}

PdfPlace captionOf(const PdfPlace& board) {
    return placeOf(board.page, captionArea({board.left, board.top, board.right, board.bottom}));
}

/// Where puzzles, or their solutions, stand on the pages of a document, by their place in the job.
/// Of copies it is the first one.
std::map<int, PdfPlace> placesOf(const PrintJob& job, const Pages& pages, bool solutions) {
    std::map<int, PdfPlace> places;
    int painted = 0;
    for (const int number : orderOf(job, pages)) {
        if (number != EmptyPage) {
            const BookletPage& page = pages.at(static_cast<std::size_t>(number));
            for (int place = 0; place < page.count && page.solutions == solutions; ++place)
                places.insert({page.first + place, placeOf(painted, page.boardArea(place))});
        }
        ++painted;
    }
    return places;
}

void addBookmarks(const PrintJob& job, const std::map<int, PdfPlace>& places, const char* heading,
                  const std::string& caption, PdfExtras& extras) {
    if (places.empty())
        return;
    PdfBookmark part{heading, places.begin()->second, {}};
    const bool namesFiles = job.hasManyFiles();
    for (const auto& [index, place] : places) {
        const PrintedPuzzle& puzzle = job.puzzle(index);
        part.children.push_back({caption + std::to_string(puzzle.number) +
                                     (namesFiles ? ", " + puzzle.file : std::string()),
                                 place,
                                 {}});
    }
    extras.bookmarks.push_back(std::move(part));
}

/// From each puzzle's caption to its solution, and back.
PdfExtras extrasOf(const PrintJob& job, const Pages& pages) {
    PdfExtras extras;
    extras.title = job.title;
    const auto puzzles = placesOf(job, pages, false);
    const auto solutions = placesOf(job, pages, true);
    addBookmarks(job, puzzles, "Puzzles", "Puz# ", extras);
    addBookmarks(job, solutions, "Solutions", "Sol# ", extras);
    for (const auto& [index, puzzle] : puzzles) {
        const auto solution = solutions.find(index);
        if (solution == solutions.end())
            continue;
        extras.links.push_back({captionOf(puzzle), solution->second});
        extras.links.push_back({captionOf(solution->second), puzzle});
    }
    return extras;
}

/// Completes a document on a thread of its own: thousands of pages take a while.
Outcome finish(const QByteArray& painted, const PdfExtras& extras, std::string& finished,
               const std::function<void()>& meanwhile) {
    const std::string_view bytes(painted.constData(), static_cast<std::size_t>(painted.size()));
    auto finishing =
        std::async(std::launch::async, [&] { return finishPdf(bytes, extras, finished); });
    while (finishing.wait_for(Turn) == std::future_status::timeout)
        meanwhile();
    return finishing.get();
}

} // namespace

void scaleToPoints(QPainter& painter) {
    const QPaintDevice& device = *painter.device();
    painter.scale(device.logicalDpiX() / PointsPerInch, device.logicalDpiY() / PointsPerInch);
}

PrintResult writePdf(const std::filesystem::path& path, PaperSize paper, const PrintJob& job,
                     const Appearance& appearance, const GoOn& goOn, const LockWait& wait) {
    Pages pages;
    if (Outcome fits = layOutBooklet(job.design, paper, job.puzzleCount(), pages); !fits.ok())
        return {fits, false};
    PrintResult result;
    const auto write = [&](const ContentSink& sink) {
        QByteArray painted;
        {
            QBuffer buffer(&painted);
            buffer.open(QIODevice::WriteOnly);
            QPdfWriter writer(&buffer);
            setUp(writer, paper);
            result = paintBooklet(writer, job, pages, appearance, goOn);
        }
        std::string finished;
        Outcome outcome = result.outcome;
        if (result.isComplete())
            outcome = finish(painted, extrasOf(job, pages), finished, [&] {
                const auto all = static_cast<int>(pages.size());
                result.stopped = result.stopped || !goOn(all, all);
            });
        if (result.stopped)
            return Outcome::failed("stopped");
        return outcome.ok() ? sink.write(finished) : outcome;
    };
    const Outcome written = replaceFile(path, write, wait);
    if (!result.stopped)
        result.outcome = written;
    return result;
}

} // namespace tessaly
