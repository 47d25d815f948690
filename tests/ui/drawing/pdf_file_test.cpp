#include "ui/drawing/pdf_file.h"

#include "support/full_disk.h"
#include "support/pdf_document.h"
#include "support/sample_puzzles.h"
#include "support/temporary_folder.h"

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

constexpr PaperSize A4 = NamedPapers[0].size;

Outcome sample(int number, Board& board) {
    static const auto Hard = sampleRecords("hard.txt");
    static const auto Easy = sampleRecords("easy.txt");
    board = boardOf((number % 2 == 0 ? Hard : Easy).at(static_cast<std::size_t>(number)));
    return Outcome::done();
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

/// What stands in the corners of a board's area that the board leaves empty.
QString captionsIn(const std::vector<PdfDocument::Word>& words, const Rect& area) {
    const double width = 0.33 * area.width();
    const double bottom = area.top + 0.09 * area.height();
    return textIn(words, {area.left, area.top, area.left + width, bottom}) + u'|' +
           textIn(words, {area.right - width, area.top, area.right, bottom});
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

class PdfFile : public testing::Test {
protected:
    PrintResult print(
        const PrintJob& job, PaperSize paper = A4, const GoOn& goOn = [](int) { return true; }) {
        return writePdf(path, paper, job, appearance, goOn);
    }

    test::TemporaryFolder folder;
    std::filesystem::path path = folder / "out.pdf";
    Appearance appearance;
};

TEST_F(PdfFile, HoldsEveryNumberCaptionAndFooterOnEitherPaper) {
    constexpr int First = 3;
    constexpr int Count = 7;
    for (const auto& [paper, perPage] : {std::pair{NamedPapers[0], 1},
                                         {NamedPapers[1], 2},
                                         {NamedPapers[0], 4},
                                         {NamedPapers[1], 6}}) {
        SCOPED_TRACE(testing::Message() << paper.name << ", " << perPage << " a page");
        const Booklet booklet(Count, {{false, perPage}, {true, SolutionsPerPage}});
        ASSERT_TRUE(print({booklet, First, sample, "Sample"}, paper.size).isComplete());
        const PdfDocument pdf(path);
        ASSERT_EQ(pdf.pageCount(), (Count + perPage - 1) / perPage + 1);
        EXPECT_TRUE(pdf.info(u"Page size"_s)
                        .startsWith(paper.name == "a4" ? u"595 x 842"_s : u"612 x 792"_s));
        EXPECT_EQ(pdf.info(u"Title"_s), u"Sample");
        for (int number = 1; number <= pdf.pageCount(); ++number) {
            const BookletPage page = booklet.page(number - 1);
            const PageLayout layout(paper.size, page.part.boardsPerPage);
            const auto words = pdf.words(number);
            EXPECT_EQ(textIn(words, layout.footer()),
                      u"Tessaly %1 / %2 tessaly.example"_s.arg(number).arg(pdf.pageCount()));
            for (int place = 0; place < page.count; ++place) {
                Board board;
                const Rect area = layout.boardArea(place);
                const int puzzle = First + page.first + place;
                ASSERT_TRUE(sample(puzzle, board).ok());
                for (CellId cell : AllCells) {
                    const bool shown = !board.isBlank(cell.hexagon) &&
                                       (page.part.solutions || !board.CellNum[cell].empty());
                    EXPECT_EQ(textAt(words, area, cell).toStdString(),
                              shown ? board.SolNum[cell] : std::string());
                }
                EXPECT_EQ(captionsIn(words, area),
                          u"%1# %2|%3"_s.arg(page.part.solutions ? u"Sol"_s : u"Puz"_s)
                              .arg(puzzle)
                              .arg(QString::fromUtf8(board.DifName())));
            }
        }
    }
}

TEST_F(PdfFile, DrawsEntriesAndMarksAsTheyStandInFontsThatItHolds) {
    const auto played = [](int number, Board& board) {
        Outcome read = sample(number, board);
        board.CellNum[10][1] = "4";
        board.CellNum[10][4] = "246";
        return read;
    };
    for (const char* font : {"Liberation Sans", "no such font"}) {
        appearance.NumberFont = font;
        ASSERT_TRUE(print({Booklet(1, {{false, 1}}), 1, played, {}}).isComplete());
        const PdfDocument pdf(path);
        const auto words = pdf.words(1);
        EXPECT_EQ(textAt(words, PageLayout(A4, 1).boardArea(0), {10, 1}), u"4");
        EXPECT_EQ(std::count_if(words.begin(), words.end(),
                                [](const auto& word) { return word.text == u"246"; }),
                  1);
        EXPECT_GE(pdf.fonts().size(), 2) << "a regular and a bold one";
        for (const QString& line : pdf.fonts())
            EXPECT_TRUE(line.contains(u" yes "_s)) << line.toStdString();
    }
}

TEST_F(PdfFile, LeavesWhatWasThereWhenItFailsOrIsStopped) {
    const Booklet booklet(20, {{false, 1}});
    test::put(path, "old");
    EXPECT_TRUE(print({booklet, 1, sample, {}}, A4, [](int page) { return page < 5; }).stopped);
    const auto broken = [](int number, Board& board) {
        return number == 7 ? Outcome::failed("puzzle 7 is gone") : sample(number, board);
    };
    EXPECT_EQ(print({booklet, 1, broken, {}}).outcome.problem, "puzzle 7 is gone");
    {
        const test::FullDisk disk(20'000);
        const Outcome full = print({booklet, 1, sample, {}}).outcome;
        EXPECT_NE(full.problem.find("File too large"), std::string::npos) << full.problem;
    }
    EXPECT_EQ(test::contentOf(path), "old");
    EXPECT_EQ(folder.names(), std::set<std::string>{"out.pdf"});
}

} // namespace
} // namespace tessaly
