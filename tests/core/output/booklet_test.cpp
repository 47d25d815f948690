#include "core/output/booklet.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

TEST(Booklet, EveryPuzzleHasItsPlaceAndTheSolutionsComeAfter) {
    const BookletPart puzzles{false, 4};
    const BookletPart solutions{true, SolutionsPerPage};
    const Booklet booklet(13, {puzzles, solutions});
    const std::vector<BookletPage> expected{{puzzles, 0, 4},    {puzzles, 4, 4},
                                            {puzzles, 8, 4},    {puzzles, 12, 1},
                                            {solutions, 0, 12}, {solutions, 12, 1}};
    ASSERT_EQ(booklet.pageCount(), static_cast<int>(expected.size()));
    for (int page = 0; page < booklet.pageCount(); ++page)
        EXPECT_EQ(booklet.page(page), expected[static_cast<std::size_t>(page)]) << page;
    EXPECT_EQ(booklet.page(booklet.pageCount()).count, 0) << "behind the last page";
    EXPECT_EQ(Booklet(12, {solutions}).pageCount(), 1);
}

} // namespace
} // namespace tessaly
