#pragma once

#include "core/output/paper.h"
#include "core/play/board_geometry.h"

/// Where everything lies on a printed page. Lengths are points; x runs to the right and y down from
/// the sheet's upper left corner.
namespace tessaly {

/// The board without the empty margin that its picture has about it.
inline constexpr Rect BoardExtent{hexagonBounds(4).left, hexagonBounds(1).top,
                                  hexagonBounds(6).right, hexagonBounds(19).bottom};

/// The least points for a board unit: where numbers are to be read they are 6.5 points high, and
/// where they are to be written a cell is 8 millimetres wide besides.
inline constexpr double LeastScaleToRead = 6.5 / NumberSize;
inline constexpr double LeastScaleToWrite = 8 * PointsPerMillimetre / HexagonSide;
static_assert(LeastScaleToWrite > LeastScaleToRead);

/// The corner that a board leaves empty, where its caption stands: a line across a third of it.
constexpr Rect captionArea(const Rect& board) {
    constexpr double Across = 0.33;
    constexpr double Down = 0.075;
    return {board.left, board.top, board.left + Across * board.width(),
            board.top + Down * board.height()};
}

/// Places for boards in rows and columns, evenly spaced and all as large as the area allows.
class BoardGrid {
public:
    /// An empty area.
    BoardGrid() = default;
    /// A grid of `places` in `area`; what lies within `margin` about it is free, and is counted in
    /// when space is shared out.
    BoardGrid(const Rect& area, double margin, int places);

    /// Points for a board unit.
    double scale() const { return m_scale; }
    const Rect& area() const { return m_area; }
    /// Where the board in a place, from 0, row by row, stands when there are `boards` of them, in
    /// the proportions of `BoardExtent`. A single row stands in the middle.
    Rect boardArea(int place, int boards) const;

private:
    Rect m_area;
    double m_margin = 0;
    int m_columns = 1;
    int m_rows = 1;
    double m_scale = 0;
};

/// What stands on a page besides its footer.
struct PageContent {
    bool hasTitle = false;
    bool hasNameLine = false;
    /// Whether the boards are there to be read or to be written in.
    bool solutions = false;
    /// At most so many boards.
    int places = 1;
    /// Whether the solutions stand at the foot of the page.
    bool solutionsAtFoot = false;
};

/// One kind of page.
class PageLayout {
public:
    /// An empty page.
    PageLayout() = default;
    /// Has as many places as the content asks for, or as many as keep the least scale.
    PageLayout(PaperSize paper, const PageContent& content);

    /// How many boards fit; 0 when the sheet has no room for a single one.
    int places() const { return m_places; }
    const BoardGrid& boards() const { return m_boards; }
    /// The solutions at the foot: as many places; everything there is turned upside down.
    const BoardGrid& foot() const { return m_foot; }
    const Rect& title() const { return m_title; }
    const Rect& nameLine() const { return m_nameLine; }
    const Rect& footer() const { return m_footer; }

private:
    bool arrange(const Rect& area, double margin, const PageContent& content, int places);

    int m_places = 0;
    Rect m_title;
    Rect m_nameLine;
    Rect m_footer;
    BoardGrid m_boards;
    BoardGrid m_foot;
};

} // namespace tessaly
