#pragma once

#include "core/output/page_layout.h"
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

/// Draws a text with its baseline at `point`, in the painter's pen, condensed as far as need be to
/// be no wider than `widest`.
void drawText(QPainter& painter, QPointF point, const QString& text, const PageText& style,
              TextAnchor anchor, double widest);

/// Draws what stands on the pages of a booklet. The painter's unit is the point and its origin the
/// sheet's upper left corner.
class PagePainter {
public:
    /// The painter must outlive this object.
    PagePainter(QPainter& painter, const Appearance& appearance);

    /// Draws a board, or its solution, into `area`, which has the proportions of `BoardExtent`. Its
    /// caption stands in the corners that the board leaves empty.
    void drawBoard(const Board& board, int number, bool solution, const Rect& area);

    /// The product, where it is found, and the page's number, from 1.
    void drawFooter(const Rect& area, int page, int pageCount);

private:
    QPainter& m_painter;
    QString m_family;
    Board m_board;
    BoardRenderer m_renderer;
};

} // namespace tessaly
