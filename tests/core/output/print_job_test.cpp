#include "core/output/booklet.h"

#include "core/board/puzzle_store.h"
#include "support/sample_board.h"
#include "support/sample_puzzles.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tessaly {
namespace {

using Pages = std::vector<BookletPage>;

Pages pagesOf(const PrintJob& job) {
    Pages pages;
    for (int page = 0; page < job.booklet.pageCount(); ++page)
        pages.push_back(job.booklet.page(page));
    return pages;
}

TEST(PrintJob, ARangeIsPrintedAsItWasMadeWithItsSolutionsBehind) {
    const test::TemporaryFolder folder;
    const std::vector<std::string> records = sampleRecords("easy.txt");
    const std::string path = folder / "my puzzles.txt";
    test::put(path, records[0] + "\n" + records[1] + ":" + std::string(114, '1') + "\n");
    PuzzleStore files;
    Board board;
    ASSERT_TRUE(files.ReadPuzzle(path, 2, board).ok());
    const Board made = boardOf(records[1]);
    ASSERT_NE(board, made) << "somebody has played it";

    PrintRange range{.path = path, .from = 2, .to = 4};
    const PrintJob job = jobOf(range, files);
    EXPECT_EQ(job.title, "my puzzles.txt, 2 to 4");
    EXPECT_EQ(job.firstNumber, 2);
    EXPECT_EQ(pagesOf(job), (Pages{{{false, 4}, 0, 3}, {{true, SolutionsPerPage}, 0, 3}}));
    EXPECT_EQ(job.boardOf(2, board).problem, "");
    EXPECT_EQ(board, made) << "without what the player entered";
    EXPECT_EQ(job.boardOf(3, board).problem, path + ": there is no puzzle 3 among its 2");
    range.solutions = false;
    EXPECT_EQ(pagesOf(jobOf(range, files)), (Pages{{{false, 4}, 0, 3}}));
}

TEST(PrintJob, OneBoardIsPrintedAsItStandsEachPartOnItsPage) {
    const Board played = sampleBoardInPlay();
    Board board;
    const PrintJob both = jobOf(played, 7, true, true);
    EXPECT_EQ(both.title, "Puz# 7");
    EXPECT_EQ(pagesOf(both), (Pages{{{false, 1}, 0, 1}, {{true, 1}, 0, 1}}));
    EXPECT_TRUE(both.boardOf(7, board).ok());
    EXPECT_EQ(board, played);
    EXPECT_EQ(pagesOf(jobOf(played, 7, true, false)), (Pages{{{false, 1}, 0, 1}}));
    const PrintJob solution = jobOf(played, 7, false, true);
    EXPECT_EQ(solution.title, "Sol# 7");
    EXPECT_EQ(pagesOf(solution), (Pages{{{true, 1}, 0, 1}}));
}

} // namespace
} // namespace tessaly
