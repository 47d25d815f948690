#include "core/output/booklet.h"

#include "core/board/puzzle_store.h"
#include "core/output/page_layout.h"
#include "support/sample_puzzles.h"
#include "support/temporary_folder.h"

#include <algorithm>
#include <vector>

namespace tessaly::booklet_test {

using Pages = std::vector<BookletPage>;

Pages pagesOf(const Booklet& booklet) {
    Pages pages;
    for (int page = 0; page < booklet.pageCount(); ++page)
        pages.push_back(booklet.page(page));
    return pages;
}

TEST(Booklet, EveryPuzzleHasItsPlaceAndTheSolutionsComeAfter) {
    const BookletPart puzzles{false, 4};
    const BookletPart solutions{true, SolutionsPerPage};
    const Booklet booklet(13, {puzzles, solutions});
    EXPECT_EQ(pagesOf(booklet), (Pages{{puzzles, 0, 4},
                                       {puzzles, 4, 4},
                                       {puzzles, 8, 4},
                                       {puzzles, 12, 1},
                                       {solutions, 0, 12},
                                       {solutions, 12, 1}}));
    EXPECT_EQ(booklet.page(6).count, 0) << "behind the last page";
    EXPECT_EQ(Booklet(12, {solutions}).pageCount(), 1);
}

TEST(Booklet, ARangeIsPrintedAsItWasMadeWithItsSolutionsBehind) {
    const TemporaryFolder folder;
    const std::vector<std::string> records = sampleRecords("easy.txt");
    const std::string path = folder / "my puzzles.txt";
    put(path, records[0] + "\n" + records[1] + ":" + std::string(114, '1') + "\n");
    PuzzleStore files;
    Board board;
    ASSERT_TRUE(files.ReadPuzzle(path, 2, board).ok());
    const Board made = boardOf(records[1]);
    ASSERT_NE(board, made) << "somebody has played it";

    PrintRange range{.path = path, .from = 2, .to = 4};
    const PrintJob job = jobOf(range, files);
    EXPECT_EQ(job.title, "my puzzles.txt, 2 to 4");
    EXPECT_EQ(job.firstNumber, 2);
    EXPECT_EQ(pagesOf(job.booklet), (Pages{{{false, 4}, 0, 3}, {{true, SolutionsPerPage}, 0, 3}}));
    EXPECT_EQ(job.boardOf(2, board).problem, "");
    EXPECT_EQ(board, made) << "without what the player entered";
    EXPECT_EQ(job.boardOf(3, board).problem, path + ": there is no puzzle 3 among its 2");
    put(path, records[1] + "\n" + records[0] + "\n");
    EXPECT_EQ(job.boardOf(2, board).problem, path + ": changed while it was printed");
    range.solutions = false;
    EXPECT_EQ(pagesOf(jobOf(range, files).booklet), (Pages{{{false, 4}, 0, 3}}));
}

TEST(Booklet, CopiesComeInOrderAndTwoSidedOnesOnSheetsOfTheirOwn) {
    using Numbers = std::vector<int>;
    for (const auto& [copies, pages] :
         {std::pair{Copies{2, true, false}, Numbers{0, 1, 2, 0, 1, 2}},
          {Copies{2, false, false}, {0, 0, 1, 1, 2, 2}},
          {Copies{2, false, true}, {0, 1, 2, EmptyPage, 0, 1, 2}}})
        EXPECT_EQ(pagesOfCopies({0, 1, 2}, copies), pages);
}

TEST(Booklet, OneBoardIsPrintedAsItStandsEachPartOnItsPage) {
    const BookletPage puzzle{{false, 1}, 0, 1}, solution{{true, 1}, 0, 1};
    const Board played = sampleBoardInPlay();
    const PrintJob both = jobOf(played, 7, true, true), second = jobOf(played, 7, false, true);
    EXPECT_EQ(both.title + second.title, "Puz# 7Sol# 7");
    EXPECT_EQ(pagesOf(both.booklet), (Pages{puzzle, solution}));
    EXPECT_EQ(pagesOf(second.booklet), Pages{solution});
    EXPECT_EQ(pagesOf(jobOf(played, 7, true, false).booklet), Pages{puzzle});
    Board board;
    EXPECT_TRUE(both.boardOf(7, board).ok());
    EXPECT_EQ(board, played);
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
            const double margin = layout.footer().left, hair = 1e-6;
            EXPECT_GT(margin, 0.06 * std::min(paper.width, paper.height));
            const Rect printed{margin - hair, margin - hair, paper.width - margin + hair,
                               layout.footer().top + hair};
            std::vector<Rect> areas;
            double covered = 0;
            for (int place = 0; place < boards; ++place) {
                const Rect area = layout.boardArea(place);
                EXPECT_TRUE(printed.contains({area.left, area.top}) &&
                            printed.contains({area.right, area.bottom}));
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

} // namespace tessaly::booklet_test
