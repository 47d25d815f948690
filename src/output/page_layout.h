// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#pragma once

#include "play/board_geometry.h"

#include <string_view>
#include <vector>

/// Where everything lies on a printed page, and what is on which page. Lengths are points, a
/// seventy-second of an inch; x runs to the right and y down from the sheet's upper left corner.
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

/// How many puzzles a page may hold, and how many solutions a page of a booklet does.
inline constexpr std::array<int, 4> PuzzlesPerPage{1, 2, 4, 6};
inline constexpr int SolutionsPerPage = 12;

/// The board without the empty margin that its picture has about it.
inline constexpr Rect BoardExtent{hexagonBounds(4).left, hexagonBounds(1).top,
                                  hexagonBounds(6).right, hexagonBounds(19).bottom};

/// A page of `boards` places: one to `SolutionsPerPage`.
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

/// Puzzles, or their solutions, so many a page.
struct BookletPart {
    bool solutions = false;
    int boardsPerPage = 1;

    friend bool operator==(const BookletPart&, const BookletPart&) = default;
};

/// One page of a booklet: the boards `first` .. `first + count - 1`, counting from 0.
struct BookletPage {
    BookletPart part;
    int first = 0;
    int count = 0;

    friend bool operator==(const BookletPage&, const BookletPage&) = default;
};

/// The pages on which a number of puzzles is printed: part after part, each with all of them.
class Booklet {
public:
    Booklet(int puzzles, std::vector<BookletPart> parts)
        : m_puzzles(puzzles)
        , m_parts(std::move(parts)) {}

    int puzzles() const { return m_puzzles; }
    int pageCount() const;
    /// A page, from 0.
    BookletPage page(int number) const;

private:
    int pagesOf(BookletPart part) const;

    int m_puzzles;
    std::vector<BookletPart> m_parts;
};

} // namespace tessaly
