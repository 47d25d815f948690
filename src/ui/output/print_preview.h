#pragma once

#include "core/options/appearance.h"
#include "core/output/print_job.h"

#include <QPrinter>
#include <QWidget>

class QLabel;
class QPrintPreviewWidget;
class QSpinBox;

namespace tessaly {

/// Shows one page of a print, as it would come out, and lets the user turn the pages.
class PrintPreview : public QWidget {
    Q_OBJECT

public:
    /// `appearance` must outlive the preview.
    explicit PrintPreview(const Appearance& appearance, QWidget* parent = nullptr);

    /// Shows the page that is chosen, as far as there are so many.
    void showJob(PrintJob job, PaperSize paper, std::vector<BookletPage> pages);
    /// Shows that nothing can be printed.
    void clear();

private:
    void turnTo(int page);
    void paint(QPrinter& printer);

    const Appearance& m_appearance;
    PrintJob m_job;
    std::vector<BookletPage> m_pages;
    QPrinter m_printer;
    QPrintPreviewWidget* m_view;
    QSpinBox* m_page;
};

} // namespace tessaly
