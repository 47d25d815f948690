#include "core/output/page_layout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

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
        for (int boards : {1, 2, 4, 6, 12}) {
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

} // namespace
} // namespace tessaly
