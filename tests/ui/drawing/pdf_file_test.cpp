#include "ui/drawing/pdf_file.h"

#include "support/pdf_document.h"
#include "support/sample_puzzles.h"
#include "support/temporary_folder.h"
#include "ui/drawing/qt_values.h"

namespace tessaly::pdf_file_test {

using namespace Qt::StringLiterals;

std::vector<PrintedPuzzle> samples(int first, int count) {
    const auto hard = sampleRecords("hard.txt"), easy = sampleRecords("easy.txt");
    std::vector<PrintedPuzzle> puzzles;
    for (int number = first; number < first + count; ++number)
        puzzles.push_back({"some.txt", number, 0,
                           (number % 2 == 0 ? hard : easy).at(static_cast<std::size_t>(number))});
    return puzzles;
}

struct PdfFile : testing::Test {
    /// Reads the words of a page from then on.
    void turnTo(int page) {
        words = PdfDocument(path).words(page);
        std::ranges::sort(words, {}, [](const auto& word) { return word.box.left(); });
    }
    /// What the page says in an area, on one line.
    QString textIn(const QRectF& area) const {
        QStringList text;
        for (const auto& word : words)
            if (area.contains(word.box.center()))
                text << word.text;
        return text.join(u' ');
    }
    /// What the page says at the middle of a cell of the board in that area.
    std::string textAt(const Rect& area, CellId cell) const {
        const double scale = area.width() / BoardExtent.width();
        const Point onBoard = numberCentre(cell);
        const QPointF centre(area.left + (onBoard.x - BoardExtent.left) * scale,
                             area.top + (onBoard.y - BoardExtent.top) * scale);
        const auto word = std::ranges::find_if(
            words, [&](const auto& each) { return each.box.contains(centre); });
        return word == words.end() ? std::string() : word->text.toStdString();
    }

    TemporaryFolder folder;
    std::filesystem::path path = folder / "out.pdf";
    Appearance appearance;
    std::vector<PdfDocument::Word> words;
};

TEST_F(PdfFile, HoldsEveryNumberCaptionAndFooterOnEitherPaper) {
    constexpr int First = 3;
    constexpr int Count = 7;
    for (const auto& [paper, perPage] : {std::pair{0, 1}, {1, 2}, {0, 4}, {1, 6}}) {
        SCOPED_TRACE(testing::Message() << paper << ", " << perPage << " a page");
        const PaperSize size = NamedPapers.at(static_cast<std::size_t>(paper)).size;
        PrintJob job{samples(First, Count), {.puzzlesPerPage = perPage}, "Sample"};
        std::vector<BookletPage> pages;
        ASSERT_TRUE(layOutBooklet(job.design, size, Count, pages).ok());
        appearance.NumberFont = perPage == 4 ? "no such font" : "Liberation Sans";
        const auto goOn = [](int, int) { return true; };
        ASSERT_EQ(writePdf(path, size, job, appearance, goOn).outcome.problem, "");
        const PdfDocument pdf(path);
        ASSERT_EQ(pdf.pageCount(), (Count + perPage - 1) / perPage + 1);
        EXPECT_TRUE(
            pdf.info(u"Page size"_s).startsWith(paper == 0 ? u"595 x 842"_s : u"612 x 792"_s));
        EXPECT_EQ(pdf.info(u"Title"_s), u"Sample");
        EXPECT_GE(pdf.fonts().size(), 2) << "a regular and a bold one";
        for (const QString& line : pdf.fonts())
            EXPECT_TRUE(line.contains(u" yes "_s)) << "it holds " << line.toStdString();
        for (int number = 1; number <= pdf.pageCount(); ++number) {
            const BookletPage& page = pages.at(static_cast<std::size_t>(number - 1));
            turnTo(number);
            EXPECT_EQ(textIn(toQt(page.layout.footer())),
                      u"some.txt %1 / %2 Tessaly \u00B7 tessaly.example"_s.arg(number).arg(
                          pdf.pageCount()));
            for (int place = 0; place < page.count; ++place) {
                const Rect area = page.boardArea(place);
                const Board board = job.board(page.first + place);
                for (CellId cell : AllCells) {
                    const bool shown = !board.isBlank(cell.hexagon) &&
                                       (page.solutions || !board.CellNum[cell].empty());
                    EXPECT_EQ(textAt(area, cell), shown ? board.SolNum[cell] : std::string());
                }
                // In the corners that the board leaves empty.
                QRectF corner(area.left, area.top, 0.33 * area.width(), 0.09 * area.height());
                EXPECT_EQ(
                    textIn(corner),
                    (page.solutions ? u"Sol# %1"_s : u"Puz# %1"_s).arg(First + page.first + place));
                corner.moveRight(area.right);
                EXPECT_EQ(textIn(corner), QString::fromUtf8(board.DifName()));
            }
        }
    }
}

TEST_F(PdfFile, LeadsFromPuzzlesToSolutionsAndBackAndTellsWhatItIs) {
    qputenv("SOURCE_DATE_EPOCH", "1700000000");
    PrintJob job{samples(3, 2), {.puzzlesPerPage = 1}, "Sample \u2605"};
    const auto goOn = [](int, int) { return true; };
    const auto made = [&] {
        EXPECT_EQ(writePdf(path, NamedPapers[0].size, job, appearance, goOn).outcome.problem, "");
        return contentOf(path);
    };
    const std::string first = made();
    EXPECT_EQ(made(), first) << "byte for byte";
    qunsetenv("SOURCE_DATE_EPOCH");
    const PdfDocument pdf(path);
    const QString content = pdf.content();
    EXPECT_EQ(content.count(u"/Subtype /Link"_s), 4);
    for (const QString& bookmark : {u"Puzzles"_s, u"Solutions"_s, u"Puz# 3"_s, u"Sol# 4"_s})
        EXPECT_TRUE(content.contains(u"/Title ("_s + bookmark + u')')) << bookmark.toStdString();
    EXPECT_EQ(pdf.info(u"Title"_s), u"Sample \u2605"_s);
    EXPECT_EQ(pdf.info(u"Author"_s), u"Tessaly"_s);
    EXPECT_TRUE(pdf.info(u"CreationDate"_s).contains(u"Nov 14"_s));
    job.pages = pagesOfCopies({1, 2}, {2, true, true});
    made();
    EXPECT_EQ(pdf.content().count(u"/Subtype /Link"_s), 2) << "of the pages that are there";
}

} // namespace tessaly::pdf_file_test
