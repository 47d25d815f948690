#include "core/output/page_layout.h"

#include <algorithm>

namespace tessaly {
namespace {

/// No printer leaves more than this unprinted.
constexpr double Margin = 36;
constexpr double FooterHeight = 26;
constexpr double TitleHeight = 34;
constexpr double NameLineHeight = 30;
/// Between boards, beside and below each other, and between puzzles and the solutions at the foot.
constexpr double GapAcross = 20;
constexpr double GapDown = 12;
constexpr double FootGap = 16;

/// Where the first of `count` things begins that lie from `from` to `to`, and how far apart they
/// begin. The space about them is the same everywhere, as far as the margin before and behind and
/// the least gap between them allow.
struct Spread {
    double first;
    double pitch;
};
Spread spread(double from, double to, double margin, double gap, double size, int count) {
    const double free = to - from + 2 * margin - count * size;
    const double beside = std::min(free / (count + 1), (free - (count - 1) * gap) / 2);
    const double edge = std::max(margin, beside);
    const double between = count > 1 ? (free - 2 * edge) / (count - 1) : 0;
    return {from - margin + edge, size + between};
}

double scaleOf(const Rect& area, int columns, int rows) {
    const double width = (area.width() - (columns - 1) * GapAcross) / columns;
    const double height = (area.height() - (rows - 1) * GapDown) / rows;
    return std::min(width / BoardExtent.width(), height / BoardExtent.height());
}

int rowsFor(int places, int columns) {
    return (places + columns - 1) / columns;
}

/// How high the foot must be for so many solutions, in as few rows as they can be read in.
double footHeight(double width, int solutions) {
    const double each = BoardExtent.width() * LeastScaleToRead + GapAcross;
    const int inARow = std::max(1, static_cast<int>((width + GapAcross) / each));
    const int rows = rowsFor(solutions, inARow);
    return rows * (BoardExtent.height() * LeastScaleToRead + GapDown) - GapDown;
}

} // namespace

BoardGrid::BoardGrid(const Rect& area, double margin, int places)
    : m_area(area)
    , m_margin(margin) {
    for (int columns = 1; columns <= places; ++columns) {
        const int rows = rowsFor(places, columns);
        const double scale = scaleOf(area, columns, rows);
        if (scale <= m_scale)
            continue;
        m_columns = columns;
        m_rows = rows;
        m_scale = scale;
    }
}

Rect BoardGrid::boardArea(int place, int boards) const {
    const double width = BoardExtent.width() * m_scale;
    const double height = BoardExtent.height() * m_scale;
    const int columns = std::min(m_columns, boards);
    const Spread across = spread(m_area.left, m_area.right, m_margin, GapAcross, width, columns);
    const Spread down = spread(m_area.top, m_area.bottom, 0, GapDown, height, m_rows);
    const int row = place / columns;
    const double left = across.first + place % columns * across.pitch;
    const double top = down.first + row * down.pitch;
    return {left, top, left + width, top + height};
}

PageLayout::PageLayout(PaperSize paper, const PageContent& content) {
    // On a sheet smaller than a postcard nothing keeps its usual size.
    constexpr double Postcard = 280;
    const double shrink = std::min(1.0, std::min(paper.width, paper.height) / Postcard);
    const double margin = Margin * shrink;
    Rect area{margin, margin, paper.width - margin, paper.height - margin};
    const auto cutFromTop = [&area](double height) {
        const Rect cut{area.left, area.top, area.right, area.top + height};
        area.top += height;
        return cut;
    };
    m_footer = {area.left, area.bottom - FooterHeight * shrink, area.right, area.bottom};
    area.bottom = m_footer.top;
    if (content.hasTitle)
        m_title = cutFromTop(TitleHeight * shrink);
    if (content.hasNameLine && !content.solutions)
        m_nameLine = cutFromTop(NameLineHeight * shrink);
    for (int places = content.places; m_places == 0 && places > 0; --places)
        if (arrange(area, margin, content, places))
            m_places = places;
}

/// Whether so many boards keep the least scale.
bool PageLayout::arrange(const Rect& area, double margin, const PageContent& content, int places) {
    constexpr double Rounding = 1e-6;
    Rect boards = area;
    if (content.solutionsAtFoot) {
        const double height = footHeight(area.width(), places) + Rounding;
        m_foot =
            BoardGrid({area.left, area.bottom - height, area.right, area.bottom}, margin, places);
        boards.bottom -= height + FootGap;
        if (m_foot.scale() < LeastScaleToRead)
            return false;
    }
    m_boards = BoardGrid(boards, margin, places);
    return m_boards.scale() >= (content.solutions ? LeastScaleToRead : LeastScaleToWrite);
}

} // namespace tessaly
