// SPDX-FileCopyrightText: 2026 The Tessaly developers
// SPDX-License-Identifier: MIT

#include "output/page_layout.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

bool contains(const Rect& outer, const Rect& inner) {
    constexpr double Hair = 1e-6;
    return inner.left >= outer.left - Hair && inner.right <= outer.right + Hair &&
           inner.top >= outer.top - Hair && inner.bottom <= outer.bottom + Hair;
}

bool overlap(const Rect& a, const Rect& b) {
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

TEST(PageLayout, BoardsLieApartOnTheSheetAndKeepTheirShape) {
    constexpr std::array Sheets{PaperSize{595.276, 841.89}, PaperSize{612, 792},
                                PaperSize{841.89, 595.276}, PaperSize{100, 150}};
    for (const PaperSize& paper : Sheets)
        for (int boards : {1, 2, 4, 6, SolutionsPerPage}) {
            SCOPED_TRACE(testing::Message() << paper.width << " wide, " << boards << " boards");
            const PageLayout layout(paper, boards);
            const double margin = layout.footer().left;
            EXPECT_GT(margin, 0.06 * std::min(paper.width, paper.height));
            const Rect printed{margin, margin, paper.width - margin, layout.footer().top};
            std::vector<Rect> areas;
            double covered = 0;
            for (int place = 0; place < boards; ++place) {
                const Rect area = layout.boardArea(place);
                EXPECT_TRUE(contains(printed, area)) << place;
                EXPECT_NEAR(area.width() / area.height(),
                            BoardExtent.width() / BoardExtent.height(), 1e-9);
                for (const Rect& other : areas)
                    EXPECT_FALSE(overlap(area, other)) << place;
                areas.push_back(area);
                covered += area.width() * area.height();
            }
            EXPECT_GT(covered, 0.45 * printed.width() * printed.height()) << "room is wasted";
        }
}

TEST(PageLayout, EveryPuzzleHasItsPlaceAndTheSolutionsComeAfter) {
    const BookletPart puzzles{false, 4};
    const BookletPart solutions{true, SolutionsPerPage};
    const Booklet booklet(13, {puzzles, solutions});
    const std::vector<BookletPage> expected{{puzzles, 0, 4},    {puzzles, 4, 4},
                                            {puzzles, 8, 4},    {puzzles, 12, 1},
                                            {solutions, 0, 12}, {solutions, 12, 1}};
    ASSERT_EQ(booklet.pageCount(), static_cast<int>(expected.size()));
    for (int page = 0; page < booklet.pageCount(); ++page)
        EXPECT_EQ(booklet.page(page), expected[static_cast<std::size_t>(page)]) << page;
    EXPECT_EQ(Booklet(12, {solutions}).pageCount(), 1);
}

} // namespace
} // namespace tessaly
