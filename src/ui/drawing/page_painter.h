#pragma once

#include "core/output/print_job.h"
#include "ui/drawing/board_renderer.h"

#include <QFont>
#include <QPointF>
#include <QString>

class QPainter;

namespace tessaly {

/// A line of text on a page: sizes and widths are those of the painter's own units, whatever the
/// resolution of its device.
struct PageText {
    QString family;
    double size = 9;
    QFont::Weight weight = QFont::Normal;
};

/// Where along a line of text its given point lies.
enum class TextAnchor { Left, Middle, Right };

/// Draws a text with its baseline at `point`, in the painter's pen, so that it is no wider than
/// `widest`: somewhat condensed if need be, and cut in the middle where that is not enough.
void drawText(QPainter& painter, QPointF point, const QString& text, const PageText& style,
              TextAnchor anchor, double widest);

/// Draws the pages of a job. The painter's unit is the point and its origin the sheet's upper left
/// corner.
class PagePainter {
public:
    /// The painter and the job must outlive this object.
    PagePainter(QPainter& painter, const Appearance& appearance, const PrintJob& job);

    /// Draws one of `pageCount` pages; `number` is from 1.
    void draw(const BookletPage& page, int number, int pageCount);

private:
    void drawTitle(const Rect& area);
    void drawNameLine(const Rect& area);
    void drawFoot(const BookletPage& page);
    void drawFooter(const Rect& area, const QString& files, int number, int pageCount);
    /// Draws a puzzle, from 0, or its solution, into `area`, which has the proportions of
    /// `BoardExtent`.
    void drawBoard(int index, bool solution, const Rect& area);
    void drawHexagonNumbers();
    void drawMarkGrid();
    /// The captions stand in the corners that the board leaves empty.
    void drawCaptions(const PrintedPuzzle& puzzle, bool solution, const Rect& area);

    QPainter& m_painter;
    const PrintJob& m_job;
    bool m_namesFiles;
    QString m_family;
    Board m_board;
    BoardRenderer m_renderer;
};

} // namespace tessaly
