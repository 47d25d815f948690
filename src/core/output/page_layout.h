#pragma once

#include "core/play/board_geometry.h"

#include <array>
#include <string_view>

/// Where everything lies on a printed page. Lengths are points, a seventy-second of an inch; x runs
/// to the right and y down from the sheet's upper left corner.
namespace tessaly {

struct PaperSize {
    double width = 0;
    double height = 0;
};

/// A paper by its name on the command line.
struct NamedPaper {
    std::string_view name;
    PaperSize size;
};
inline constexpr std::array<NamedPaper, 2> NamedPapers{{
    {"a4", {595.276, 841.89}}, // 210 mm by 297 mm
    {"letter", {612, 792}},    // 8.5 in by 11 in
}};

/// The board without the empty margin that its picture has about it.
inline constexpr Rect BoardExtent{hexagonBounds(4).left, hexagonBounds(1).top,
                                  hexagonBounds(6).right, hexagonBounds(19).bottom};

/// A page of `boards` places, one to twelve.
class PageLayout {
public:
    PageLayout(PaperSize paper, int boards);

    /// Where the board in a place, from 0, row by row, is drawn: as large as its place allows, in
    /// the proportions of `BoardExtent`.
    Rect boardArea(int place) const;
    Rect footer() const { return m_footer; }

private:
    int m_columns;
    Rect m_footer;
    /// The first place, and how far apart places are.
    Rect m_first;
    Point m_pitch;
    /// Points for a board unit.
    double m_scale;
};

} // namespace tessaly
