#include "ui/drawing/pdf_file.h"

#include "support/pdf_document.h"
#include "support/sample_puzzles.h"
#include "support/temporary_folder.h"
#include "ui/drawing/qt_values.h"

namespace tessaly::pdf_file_test {

using namespace Qt::StringLiterals;

Outcome sample(int number, Board& board) {
    static const auto Hard = sampleRecords("hard.txt");
    static const auto Easy = sampleRecords("easy.txt");
    board = boardOf((number % 2 == 0 ? Hard : Easy).at(static_cast<std::size_t>(number)));
    return Outcome::done();
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
        const Booklet booklet(Count, {{false, perPage}, {true, SolutionsPerPage}});
        appearance.NumberFont = perPage == 4 ? "no such font" : "Liberation Sans";
        const PrintJob job{booklet, First, sample, "Sample"};
        ASSERT_TRUE(writePdf(path, size, job, appearance, [](int) { return true; }).isComplete());
        const PdfDocument pdf(path);
        ASSERT_EQ(pdf.pageCount(), (Count + perPage - 1) / perPage + 1);
        EXPECT_TRUE(
            pdf.info(u"Page size"_s).startsWith(paper == 0 ? u"595 x 842"_s : u"612 x 792"_s));
        EXPECT_EQ(pdf.info(u"Title"_s), u"Sample");
        EXPECT_GE(pdf.fonts().size(), 2) << "a regular and a bold one";
        for (const QString& line : pdf.fonts())
            EXPECT_TRUE(line.contains(u" yes "_s)) << "it holds " << line.toStdString();
        for (int number = 1; number <= pdf.pageCount(); ++number) {
            const BookletPage page = booklet.page(number - 1);
            const PageLayout layout(size, page.part.boardsPerPage);
            turnTo(number);
            EXPECT_EQ(textIn(toQt(layout.footer())),
                      u"Tessaly %1 / %2 tessaly.example"_s.arg(number).arg(pdf.pageCount()));
            for (int place = 0; place < page.count; ++place) {
                Board board;
                const Rect area = layout.boardArea(place);
                const int puzzle = First + page.first + place;
                ASSERT_TRUE(sample(puzzle, board).ok());
                for (CellId cell : AllCells) {
                    const bool shown = !board.isBlank(cell.hexagon) &&
                                       (page.part.solutions || !board.CellNum[cell].empty());
                    EXPECT_EQ(textAt(area, cell), shown ? board.SolNum[cell] : std::string());
                }
                // In the corners that the board leaves empty.
                QRectF corner(area.left, area.top, 0.33 * area.width(), 0.09 * area.height());
                EXPECT_EQ(textIn(corner),
                          (page.part.solutions ? u"Sol# %1"_s : u"Puz# %1"_s).arg(puzzle));
                corner.moveRight(area.right);
                EXPECT_EQ(textIn(corner), QString::fromUtf8(board.DifName()));
            }
        }
    }
}

} // namespace tessaly::pdf_file_test
