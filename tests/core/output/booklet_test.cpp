#include "core/output/print_job.h"

#include "core/board/puzzle_record.h"
#include "support/sample_puzzles.h"
#include "support/temporary_folder.h"

#include <algorithm>
#include <tuple>
#include <vector>

namespace tessaly::booklet_test {

TEST(NumberList, IsReadAsPeopleWriteIt) {
    for (const auto& [given, text, missing] : {std::tuple{"3, 7, 20-24", "3, 7, 20-24", 21},
                                               {" 7 ,3", "3, 7", 0},
                                               {"5-9,1-4", "1-9", 0},
                                               {"4-6,5-12,2", "2, 4-12", 0},
                                               {"8-", "8-", 0},
                                               {"21-", "21-", 21},
                                               {"1,30", "1, 30", 30}}) {
        NumberList list;
        EXPECT_EQ(NumberList::read(given, list).problem, "");
        EXPECT_EQ(list.text(), text);
        EXPECT_EQ(list.firstMissing(20), missing) << given;
    }
    NumberList list({3, 3});
    for (const auto& [given, problem] : {std::pair{" ", "empty"},
                                         {"1,,2", "\"\" is neither"},
                                         {"two", "\"two\" is neither"},
                                         {"2-x", "\"2-x\" is neither"},
                                         {"0-4", "below 1"},
                                         {"9-8", "ends before"},
                                         {"99999999999", "is neither"}})
        EXPECT_NE(NumberList::read(given, list).problem.find(problem), std::string::npos) << given;
    EXPECT_TRUE(list.contains(3) && !list.contains(2) && !list.contains(4)) << "as it was";
}

struct PrintSelectionTest : testing::Test {
    /// The numbers of the puzzles that are printed, or what is wrong.
    std::string selected(const PrintSelection& selection) {
        const Outcome read = selectPuzzles(files, selection, puzzles);
        std::string text = read.problem;
        for (const PrintedPuzzle& each : puzzles)
            text += std::string(1, each.file[0]) + std::to_string(each.number) + " ";
        return text;
    }
    static NumberList list(const char* text) {
        NumberList list;
        EXPECT_TRUE(NumberList::read(text, list).ok());
        return list;
    }

    const TemporaryFolder folder;
    std::vector<std::filesystem::path> files{folder / "a.txt", folder / "b.txt"};
    std::vector<PrintedPuzzle> puzzles;
};

TEST_F(PrintSelectionTest, TakesNumbersDifficultiesAndStarsAndSaysWhatIsNotThere) {
    const auto easy = sampleRecords("easy.txt"), hard = sampleRecords("hard.txt");
    put(files[0], easy[0] + "\n" + hard[0] + "\n" + easy[1] + ":" + std::string(114, '1') + "\n");
    put(files[1], hard[1] + "\n" + easy[2] + "\n\n");
    EXPECT_EQ(selected({}), "a1 a2 a3 b1 b2 ");
    EXPECT_EQ(puzzles[2].stars, 0);
    EXPECT_EQ(selected({.numbers = list("2-")}), "a2 a3 b2 ");
    EXPECT_EQ(selected({.numbers = list("1"), .difficulty = Difficulty::Hard}), "b1 ");
    EXPECT_EQ(selected({.numbers = list("2,3")}),
              files[1].native() + ": there is no puzzle 3 among its 2a2 a3 b2 ");
    const std::string byStars = selected({.byStars = true});
    EXPECT_TRUE(byStars.ends_with("a2 b1 ") || byStars.ends_with("b1 a2 ")) << "the hard ones";
    EXPECT_TRUE(std::is_sorted(puzzles.begin(), puzzles.begin() + 3,
                               [](const auto& a, const auto& b) { return a.stars < b.stars; }));
    const int stars = puzzles.front().stars;
    ASSERT_GE(stars, 1);
    selected({.stars = {stars, stars}});
    for (const PrintedPuzzle& each : puzzles)
        EXPECT_EQ(each.stars, stars);

    std::vector<PrintJob> jobs;
    PrintRequest request{.files = {files[0]}, .selection = {.numbers = list("2-3")}};
    request.design.solutions = SolutionsAt::OwnFile;
    ASSERT_EQ(makeJobs(request, jobs).problem, "");
    ASSERT_EQ(jobs.size(), 2U);
    EXPECT_EQ(jobs[0].title + "|" + jobs[1].title, "a.txt, 2 to 3|a.txt, 2 to 3, solutions");
    EXPECT_EQ(jobs[0].board(1), boardOf(easy[1])) << "without what the player entered";
    request.design.title = "a\tb";
    EXPECT_EQ(makeJobs(request, jobs).problem, "the title holds a control character");

    put(files[1], easy[0] + "\nno record\n");
    EXPECT_EQ(selected({.difficulty = Difficulty::Hard}).find(files[1].native() + ": line 2: "), 0);
    put(files[1], easy[0]);
    files.erase(files.begin());
    EXPECT_EQ(selected({.difficulty = Difficulty::Hard}), "there is no such puzzle to print");
    EXPECT_EQ(selectPuzzles(files, {}, puzzles, [] { return false; }).problem, "stopped");
}

/// "3+2" for the puzzles 3 and 4, "S3+2" for their solutions.
std::string pagesOf(const PageDesign& design, int puzzles, PaperSize paper = NamedPapers[0].size) {
    std::vector<BookletPage> pages;
    std::string text = layOutBooklet(design, paper, puzzles, pages).problem;
    for (const BookletPage& page : pages)
        text.append(page.solutions ? "S" : "")
            .append(std::to_string(page.first) + "+" + std::to_string(page.count) + " ");
    return text;
}

TEST(Booklet, EveryPuzzleHasItsPlaceAndItsSolutionWhereItIsWanted) {
    constexpr PaperSize A5 = NamedPapers[2].size, Card{200, 200};
    PageDesign design;
    for (const auto& [at, pages] : {std::pair{SolutionsAt::None, "0+4 4+4 8+4 12+1 "},
                                    {SolutionsAt::End, "0+4 4+4 8+4 12+1 S0+12 S12+1 "},
                                    {SolutionsAt::After, "0+4 S0+4 4+4 S4+4 8+4 S8+4 12+1 S12+1 "},
                                    {SolutionsAt::Foot, "0+4 4+4 8+4 12+1 "},
                                    {SolutionsAt::Only, "S0+12 S12+1 "}}) {
        design.solutions = at;
        EXPECT_EQ(pagesOf(design, 13), pages);
    }
    design.solutions = SolutionsAt::End;
    EXPECT_EQ(pagesOf(design, 5, A5), "0+2 2+2 4+1 S0+5 ") << "fewer on small paper";
    EXPECT_EQ(pagesOf(design, 1, Card), "the paper is too small to write in a puzzle");
    design.large = true;
    EXPECT_EQ(pagesOf(design, 2), "0+1 1+1 S0+2 ");
    design.solutions = SolutionsAt::Only;
    EXPECT_EQ(pagesOf(design, 1, {150, 150}), "the paper is too small to read a solution");
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
    const Board played = sampleBoardInPlay();
    for (const auto& [puzzle, solution, title, pages] :
         {std::tuple{true, true, "Puz# 7", "0+1 S0+1 "},
          {false, true, "Sol# 7", "S0+1 "},
          {true, false, "Puz# 7", "0+1 "}}) {
        const PrintJob job = jobOf(played, "a.txt", 7, puzzle, solution);
        EXPECT_EQ(job.title, title);
        EXPECT_EQ(pagesOf(job.design, job.puzzleCount()), pages);
        EXPECT_EQ(job.board(0), played);
    }
}

bool overlap(const Rect& a, const Rect& b) {
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

TEST(PageLayout, BoardsLieApartOnTheSheetEvenlySpacedAndLargeEnough) {
    constexpr std::array Sheets{NamedPapers[0].size, NamedPapers[1].size, NamedPapers[2].size,
                                PaperSize{841.89, 595.276}, PaperSize{260, 360}};
    for (const PaperSize& paper : Sheets)
        for (const PageContent& content : {PageContent{},
                                           {.hasTitle = true, .hasNameLine = true, .places = 4},
                                           {.places = 6},
                                           {.places = 4, .solutionsAtFoot = true},
                                           {.solutions = true, .places = 12}}) {
            SCOPED_TRACE(testing::Message() << paper.width << " wide, " << content.places);
            const PageLayout layout(paper, content);
            if (content.solutionsAtFoot && paper.width < 300)
                continue;
            ASSERT_GT(layout.places(), 0);
            EXPECT_GE(layout.boards().scale(),
                      content.solutions ? LeastScaleToRead : LeastScaleToWrite);
            const double margin = layout.footer().left, hair = 1e-6;
            EXPECT_GT(margin, 0.058 * std::min(paper.width, paper.height));
            const Rect printed{margin - hair, std::max(layout.title().bottom, margin) - hair,
                               paper.width - margin + hair, layout.footer().top + hair};
            for (int boards = 1; boards <= layout.places(); ++boards) {
                std::vector<Rect> areas;
                for (int place = 0; place < boards; ++place) {
                    areas.push_back(layout.boards().boardArea(place, boards));
                    if (content.solutionsAtFoot)
                        areas.push_back(layout.foot().boardArea(place, boards));
                }
                for (auto area = areas.begin(); area != areas.end(); ++area) {
                    EXPECT_TRUE(printed.contains({area->left, area->top}) &&
                                printed.contains({area->right, area->bottom}));
                    EXPECT_NEAR(area->width() / area->height(),
                                BoardExtent.width() / BoardExtent.height(), 1e-9);
                    EXPECT_TRUE(std::none_of(areas.begin(), area, [area](const Rect& other) {
                        return overlap(*area, other);
                    }));
                }
                if (boards == 1) {
                    EXPECT_NEAR(areas[0].centre().x, paper.width / 2, 1e-6) << "in the middle";
                }
            }
        }
}

} // namespace tessaly::booklet_test
