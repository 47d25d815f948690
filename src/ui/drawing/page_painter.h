#pragma once

#include "core/output/page_layout.h"
#include "ui/drawing/board_renderer.h"

#include <QString>

namespace tessaly {

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
