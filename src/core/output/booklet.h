#pragma once

#include "core/base/outcome.h"
#include "core/output/page_design.h"
#include "core/output/page_layout.h"

#include <vector>

namespace tessaly {

/// One page of a booklet: the puzzles `first` .. `first + count - 1`, counting from 0, or their
/// solutions.
struct BookletPage {
    bool solutions = false;
    int first = 0;
    int count = 0;
    PageLayout layout = {};

    Rect boardArea(int place) const { return layout.boards().boardArea(place, count); }
    Rect footArea(int place) const { return layout.foot().boardArea(place, count); }
};

/// The pages on which so many puzzles are printed, with their solutions where the design wants
/// them. No page has more places than there are boards for it. Fails when the paper has no room
/// for a board that can be read, or written in.
Outcome layOutBooklet(const PageDesign& design, PaperSize paper, int puzzles,
                      std::vector<BookletPage>& pages);

/// A page with nothing on it.
inline constexpr int EmptyPage = -1;

/// How the copies of a document follow each other.
struct Copies {
    int count = 1;
    /// Whether each copy is complete before the next one begins.
    bool collated = true;
    /// Whether both sides of the sheets are printed on, and so every copy begins on a new sheet.
    bool twoSided = false;
};

/// The pages of all copies, in their order.
std::vector<int> pagesOfCopies(const std::vector<int>& pages, const Copies& copies);

} // namespace tessaly
