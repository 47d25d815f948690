#include "ui/output/print_preview.h"

#include "ui/controls/dialog_parts.h"
#include "ui/drawing/page_painter.h"
#include "ui/drawing/pdf_file.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPrintPreviewWidget>
#include <QSpinBox>
#include <QVBoxLayout>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

} // namespace

PrintPreview::PrintPreview(const Appearance& appearance, QWidget* parent)
    : QWidget(parent)
    , m_appearance(appearance)
    , m_printer(QPrinter::ScreenResolution)
    , m_page(named(u"previewPage"_s, new QSpinBox(this))) {
    m_printer.setOutputFormat(QPrinter::PdfFormat);
    m_printer.setFullPage(true);
    m_view = named(u"preview"_s, new QPrintPreviewWidget(&m_printer, this));
    m_view->setAccessibleName(tr("Preview of the page"));
    // There is nothing to type in a picture.
    for (auto* part : m_view->findChildren<QWidget*>())
        part->setFocusPolicy(Qt::NoFocus);
    m_page->setAccessibleName(tr("Page shown"));
    m_page->setPrefix(tr("Page "));
    m_page->setMinimumHeight(dialog::ButtonSize.height());
    auto* turning = new QHBoxLayout;
    turning->addStretch();
    turning->addWidget(m_page);
    turning->addStretch();
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(dialog::Spacing);
    rows->addWidget(m_view, 1);
    rows->addLayout(turning);
    connect(m_view, &QPrintPreviewWidget::paintRequested, this,
            [this](QPrinter* printer) { paint(*printer); });
    connect(m_page, &QSpinBox::valueChanged, this, [this] { m_view->updatePreview(); });
    clear();
}

void PrintPreview::showJob(PrintJob job, PaperSize paper, std::vector<BookletPage> pages) {
    m_job = std::move(job);
    m_pages = std::move(pages);
    const QPageSize size(QSizeF(paper.width, paper.height), QPageSize::Point, {},
                         QPageSize::ExactMatch);
    m_printer.setPageLayout(QPageLayout(size, QPageLayout::Portrait, {}));
    m_page->setEnabled(true);
    turnTo(m_page->value());
}

void PrintPreview::clear() {
    m_pages.clear();
    m_page->setEnabled(false);
    turnTo(1);
}

void PrintPreview::turnTo(int page) {
    const QSignalBlocker quiet(m_page);
    const int count = std::max(1, static_cast<int>(m_pages.size()));
    m_page->setRange(1, count);
    m_page->setSuffix(tr(" of %1").arg(count));
    m_page->setValue(page);
    m_view->updatePreview();
}

void PrintPreview::paint(QPrinter& printer) {
    QPainter painter(&printer);
    if (m_pages.empty())
        return;
    scaleToPoints(painter);
    const int number = m_page->value();
    PagePainter(painter, m_appearance, m_job)
        .draw(m_pages.at(static_cast<std::size_t>(number - 1)), number,
              static_cast<int>(m_pages.size()));
}

} // namespace tessaly
