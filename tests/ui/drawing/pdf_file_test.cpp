#include "ui/drawing/pdf_file.h"

#include "support/full_disk.h"
#include "support/pdf_document.h"
#include "support/sample_puzzles.h"
#include "support/temporary_folder.h"

namespace tessaly {
namespace {

constexpr PaperSize A4 = NamedPapers[0].size;

Outcome sample(int number, Board& board) {
    static const auto Hard = sampleRecords("hard.txt");
    static const auto Easy = sampleRecords("easy.txt");
    board = boardOf((number % 2 == 0 ? Hard : Easy).at(static_cast<std::size_t>(number)));
    return Outcome::done();
}

bool always(int) {
    return true;
}

/// What a page says in an area, on one line.
QString textIn(std::vector<PdfDocument::Word> words, const Rect& area) {
    std::erase_if(words, [&](const auto& word) {
        return !area.contains({word.box.center().x(), word.box.center().y()});
    });
    std::sort(words.begin(), words.end(),
              [](const auto& a, const auto& b) { return a.box.left() < b.box.left(); });
    QStringList text;
    for (const auto& word : words)
        text << word.text;
    return text.join(u' ');
}

/// The corners of a board's area that the board leaves empty.
Rect leftCorner(const Rect& area) {
    return {area.left, area.top, area.left + 0.33 * area.width(), area.top + 0.09 * area.height()};
}
Rect rightCorner(const Rect& area) {
    return {area.right - 0.33 * area.width(), area.top, area.right,
            area.top + 0.09 * area.height()};
}

/// What a page says at the middle of a cell of the board in a place.
QString textAt(const std::vector<PdfDocument::Word>& words, const Rect& area, CellId cell) {
    const double scale = area.width() / BoardExtent.width();
    const Point onBoard = numberCentre(cell);
    const QPointF centre(area.left + (onBoard.x - BoardExtent.left) * scale,
                         area.top + (onBoard.y - BoardExtent.top) * scale);
    for (const auto& word : words)
        if (word.box.contains(centre))
            return word.text;
    return {};
}

/// Expects every number of the board, and no other, in its cell on a page.
void expectNumbers(const std::vector<PdfDocument::Word>& words, const Rect& area,
                   const Board& board, bool solution) {
    for (CellId cell : AllCells) {
        const bool shown =
            !board.isBlank(cell.hexagon) && (solution || !board.CellNum[cell].empty());
        const std::string expected = shown ? board.SolNum[cell] : std::string();
        EXPECT_EQ(textAt(words, area, cell).toStdString(), expected)
            << "cell " << cell.hexagon << '/' << cell.position;
    }
}

class PdfFile : public testing::Test {
protected:
    PrintResult print(const PrintJob& job, PaperSize paper = A4, const GoOn& goOn = always) {
        return writePdf(path, paper, job, appearance, goOn);
    }

    test::TemporaryFolder folder;
    std::filesystem::path path = folder / "out.pdf";
    Appearance appearance;
};

TEST_F(PdfFile, HoldsEveryNumberCaptionAndFooterOnEitherPaper) {
    for (const NamedPaper& paper : NamedPapers)
        for (int perPage : PuzzlesPerPage) {
            SCOPED_TRACE(testing::Message() << paper.name << ", " << perPage << " a page");
            constexpr int First = 3;
            constexpr int Count = 7;
            const Booklet booklet(Count, {{false, perPage}, {true, SolutionsPerPage}});
            ASSERT_TRUE(print({booklet, First, sample, "Sample"}, paper.size).isComplete());
            const PdfDocument pdf(path);
            ASSERT_EQ(pdf.pageCount(), (Count + perPage - 1) / perPage + 1);
            EXPECT_TRUE(pdf.info(QStringLiteral("Page size"))
                            .startsWith(paper.name == "a4" ? QStringLiteral("595 x 842")
                                                           : QStringLiteral("612 x 792")));
            EXPECT_EQ(pdf.info(QStringLiteral("Title")), QStringLiteral("Sample"));
            for (int number = 1; number <= pdf.pageCount(); ++number) {
                const BookletPage page = booklet.page(number - 1);
                const PageLayout layout(paper.size, page.part.boardsPerPage);
                const auto words = pdf.words(number);
                EXPECT_EQ(textIn(words, layout.footer()),
                          QStringLiteral("Tessaly %1 / %2 tessaly.example")
                              .arg(number)
                              .arg(pdf.pageCount()));
                for (int place = 0; place < page.count; ++place) {
                    Board board;
                    const Rect area = layout.boardArea(place);
                    const int puzzle = First + page.first + place;
                    ASSERT_TRUE(sample(puzzle, board).ok());
                    expectNumbers(words, area, board, page.part.solutions);
                    EXPECT_EQ(textIn(words, leftCorner(area)),
                              (page.part.solutions ? QStringLiteral("Sol# %1")
                                                   : QStringLiteral("Puz# %1"))
                                  .arg(puzzle));
                    EXPECT_EQ(textIn(words, rightCorner(area)).toStdString(), board.DifName());
                }
            }
        }
}

TEST_F(PdfFile, EmbedsItsFonts) {
    for (const char* font : {"Liberation Sans", "DejaVu Serif", "no such font"}) {
        appearance.NumberFont = font;
        ASSERT_TRUE(print({Booklet(1, {{false, 1}, {true, 12}}), 1, sample, {}}).isComplete());
        const QStringList fonts = PdfDocument(path).fonts();
        EXPECT_EQ(fonts.size(), 2) << "a regular and a bold one";
        for (const QString& line : fonts)
            EXPECT_TRUE(line.contains(QStringLiteral(" yes "))) << line.toStdString();
    }
}

TEST_F(PdfFile, DrawsEntriesAndMarksAsTheyStandOnTheBoard) {
    const PrintJob job{Booklet(1, {{false, 1}}),
                       1,
                       [](int number, Board& board) {
                           Outcome read = sample(number, board);
                           board.CellNum[10][1] = "4";
                           board.CellNum[10][4] = "246";
                           return read;
                       },
                       {}};
    ASSERT_TRUE(print(job).isComplete());
    const auto words = PdfDocument(path).words(1);
    EXPECT_EQ(textAt(words, PageLayout(A4, 1).boardArea(0), {10, 1}), QStringLiteral("4"));
    EXPECT_EQ(std::count_if(words.begin(), words.end(),
                            [](const auto& word) { return word.text == QStringLiteral("246"); }),
              1);
}

TEST_F(PdfFile, LeavesWhatWasThereWhenItFailsOrIsStopped) {
    const Booklet booklet(20, {{false, 1}});
    test::put(path, "old");
    const auto stop = [](int page) { return page < 5; };
    EXPECT_TRUE(print({booklet, 1, sample, {}}, A4, stop).stopped);
    const auto broken = [](int number, Board& board) {
        return number == 7 ? Outcome::failed("puzzle 7 is gone") : sample(number, board);
    };
    EXPECT_EQ(print({booklet, 1, broken, {}}).outcome.problem, "puzzle 7 is gone");
    EXPECT_EQ(test::contentOf(path), "old");
    EXPECT_EQ(folder.names(), std::set<std::string>{"out.pdf"});

    path = folder / "none" / "out.pdf";
    EXPECT_NE(print({booklet, 1, sample, {}}).outcome.problem.find("No such file"),
              std::string::npos);
}

TEST_F(PdfFile, AFullDiskIsNoSuccess) {
    const PrintJob job{Booklet(30, {{false, 1}}), 1, sample, {}};
    ASSERT_TRUE(print(job).isComplete());
    const auto size = std::filesystem::file_size(path);
    std::filesystem::remove(path);
    for (const auto room : {size / 2, size - 1}) {
        const test::FullDisk disk(room);
        const PrintResult result = print(job);
        EXPECT_NE(result.outcome.problem.find("File too large"), std::string::npos)
            << result.outcome.problem;
        EXPECT_EQ(folder.names(), std::set<std::string>{});
    }
}

} // namespace
} // namespace tessaly
