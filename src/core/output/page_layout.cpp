#include "core/output/page_layout.h"

#include <algorithm>
#include <utility>

namespace tessaly {
namespace {

/// No printer leaves more than this unprinted.
constexpr double Margin = 42;
constexpr double FooterHeight = 28;
constexpr double Gap = 22;

/// Columns and rows of an upright page.
std::pair<int, int> gridOf(int boards) {
    const int columns = boards <= 2 ? 1 : boards <= 6 ? 2 : 3;
    return {columns, (boards + columns - 1) / columns};
}

} // namespace

PageLayout::PageLayout(PaperSize paper, int boards) {
    // On a sheet smaller than a postcard nothing keeps its usual size.
    constexpr double Postcard = 280;
    const double shrink = std::min(1.0, std::min(paper.width, paper.height) / Postcard);
    const double margin = Margin * shrink;
    const double gap = Gap * shrink;
    auto [columns, rows] = gridOf(boards);
    if (paper.width > paper.height)
        std::swap(columns, rows);
    m_columns = columns;
    m_footer = {margin, paper.height - margin - FooterHeight * shrink, paper.width - margin,
                paper.height - margin};
    m_pitch = {(paper.width - 2 * margin + gap) / columns, (m_footer.top - margin + gap) / rows};
    m_first = {margin, margin, margin + m_pitch.x - gap, margin + m_pitch.y - gap};
    m_scale =
        std::min(m_first.width() / BoardExtent.width(), m_first.height() / BoardExtent.height());
}

Rect PageLayout::boardArea(int place) const {
    const int column = place % m_columns;
    const int row = place / m_columns;
    const Point centre = m_first.centre() + Point{column * m_pitch.x, row * m_pitch.y};
    return rectAbout(centre, BoardExtent.width() * m_scale, BoardExtent.height() * m_scale);
}

} // namespace tessaly
