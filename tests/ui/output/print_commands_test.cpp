#include "support/pdf_document.h"
#include "support/sample_puzzles.h"
#include "ui/controls/box_control.h"
#include "ui/game_window.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QProgressBar>
#include <QTimer>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

class Printing : public testing::Test {
protected:
    Printing() { game.window->files().load(puzzles, 3); }

    void choose(const QString& item) { game.find<QAction>(item).trigger(); }

    /// Opens the dialog for many puzzles and prints the range to the printer.
    void printMultiple(const QString& from, const QString& to, const QString& printer) {
        auto& form = game.find(u"Form5"_s);
        QTimer::singleShot(0, &form, [&] {
            form.findChild<QLineEdit*>(u"Text1"_s)->setText(from);
            form.findChild<QLineEdit*>(u"Text2"_s)->setText(to);
            form.findChild<QComboBox*>(u"Combo1"_s)->setCurrentText(printer);
            if (meanwhile)
                meanwhile();
            QTest::mouseClick(form.findChild<QWidget*>(u"Command1"_s), Qt::LeftButton);
        });
        choose(u"mnuprintx_4"_s);
    }
    void printMultipleToPdf(const QString& from, const QString& to) {
        game.fileDialogs.add(QString::fromStdString(pdf));
        printMultiple(from, to, u"Print to PDF"_s);
    }

    GameWindow game;
    std::string puzzles = game.folder.puzzles("easy.txt");
    std::string pdf = game.folder.path() + "out.pdf";
    std::function<void()> meanwhile;
};

TEST_F(Printing, PrintsTheShownPuzzleItsSolutionOrBoth) {
    Board& board = game.session.game.board;
    const CellId open = *std::find_if(AllCells.begin(), AllCells.end(), [&](CellId cell) {
        return !board.isBlank(cell.hexagon) && !board.FixedCell[cell];
    });
    const auto count = [&] { return PdfDocument(pdf).words(1).size(); };
    game.printers.userSetsUp = [&](QPrinter& printer) {
        printer.setOutputFileName(QString::fromStdString(pdf));
        printer.setPageSize(QPageSize(QPageSize::Letter));
        return true;
    };
    choose(u"mnuprintx_0"_s);
    EXPECT_EQ(PdfDocument(pdf).pageCount(), 1);
    EXPECT_TRUE(PdfDocument(pdf).info(u"Page size"_s).startsWith(u"612 x 792"_s));
    EXPECT_EQ(PdfDocument(pdf).info(u"Title"_s), u"Puz# 3"_s);
    const auto givens = count();
    board.CellNum[open] = board.SolNum[open];
    choose(u"mnuprintx_0"_s);
    EXPECT_EQ(count(), givens + 1) << "the puzzle is printed as it stands";
    choose(u"mnuprintx_1"_s);
    EXPECT_EQ(PdfDocument(pdf).pageCount(), 1);
    constexpr std::size_t CaptionsAndFooter = 8;
    EXPECT_EQ(count(), std::size_t{HexagonCount - 1} * CellCount + CaptionsAndFooter);
    choose(u"mnuprintx_2"_s);
    EXPECT_EQ(PdfDocument(pdf).pageCount(), 2);
    EXPECT_EQ(game.prompts.shown, std::vector<ScriptedPrompts::Message>{});
}

TEST_F(Printing, OneThatIsCancelledOrCannotBeWrittenPrintsNothing) {
    choose(u"mnuprintx_2"_s);
    EXPECT_EQ(game.printers.asked, 1);
    game.printers.userSetsUp = [&](QPrinter& printer) {
        printer.setOutputFileName(u"/nowhere/out.pdf"_s);
        return true;
    };
    choose(u"mnuprintx_0"_s);
    EXPECT_NE(game.prompts.shown.back().text.find("/nowhere/out.pdf"), std::string::npos);
    EXPECT_EQ(game.prompts.shown.back().style, "vbok+vbcritical");
    game.printers.userSetsUp = [](QPrinter&) { return true; };
    choose(u"mnuprintx_0"_s);
    EXPECT_EQ(game.prompts.shown.back().text, "There is no printer.");
    game.window->files().goTo(1);
    game.session.puzzle = {};
    choose(u"mnuprintx_0"_s);
    EXPECT_EQ(game.prompts.shown.back().text, "There is no puzzle to print");
    EXPECT_EQ(game.printers.asked, 3);
}

TEST_F(Printing, ARangeGoesToAPdfFileWithoutWhatThePlayerEntered) {
    auto records = sampleRecords("easy.txt");
    records[4] += ":" + std::string(114, '1');
    std::string content;
    for (const std::string& record : records)
        content += record + "\n";
    test::put(puzzles, content);
    printMultipleToPdf(u"5"_s, u"10"_s);
    const PdfDocument document(pdf);
    EXPECT_EQ(document.pageCount(), 3);
    EXPECT_EQ(game.message().toStdString(), "3 pages printed to " + pdf);
    const Board board = boardOf(sampleRecords("easy.txt")[4]);
    const auto givens = std::count_if(AllCells.begin(), AllCells.end(), [&](CellId cell) {
        return board.FixedCell[cell] && !board.isBlank(cell.hexagon);
    });
    std::filesystem::remove(pdf);
    printMultipleToPdf(u"5"_s, u"5"_s);
    EXPECT_EQ(PdfDocument(pdf).words(1).size(), static_cast<std::size_t>(givens) + 8);
}

TEST_F(Printing, AskedBeforeAFileIsReplaced) {
    test::put(pdf, "old");
    game.prompts.answers = {answer::No, answer::Yes};
    printMultipleToPdf(u"1"_s, u"1"_s);
    EXPECT_EQ(game.prompts.shown.back(),
              (ScriptedPrompts::Message{"OverWrite file: " + pdf + " ?", "vbyesno+vbquestion"}));
    EXPECT_EQ(test::contentOf(pdf), "old");
    printMultipleToPdf(u"1"_s, u"1"_s);
    EXPECT_EQ(PdfDocument(pdf).pageCount(), 2);
}

TEST_F(Printing, APrinterGetsAWholeDocumentOnItsPaper) {
    game.printers.installed = {u"Laser"_s};
    game.printers.paper = NamedPapers[1].size;
    printMultiple(u"2"_s, u"14"_s, u"Laser"_s);
    ASSERT_EQ(game.printers.printed.size(), 1U);
    EXPECT_EQ(game.printers.printed[0].name, u"Laser"_s);
    EXPECT_EQ(game.printers.printed[0].title, u"easy.txt, 2 to 14"_s);
    test::put(pdf, game.printers.printed[0].pdf);
    EXPECT_EQ(PdfDocument(pdf).pageCount(), 4 + 2);
    EXPECT_TRUE(PdfDocument(pdf).info(u"Page size"_s).startsWith(u"612 x 792"_s));
    game.printers.answer = Outcome::failed("Laser: on fire");
    printMultiple(u"1"_s, u"1"_s, u"Laser"_s);
    EXPECT_EQ(game.prompts.shown.back(),
              (ScriptedPrompts::Message{"Laser: on fire", "vbok+vbcritical"}));
}

TEST_F(Printing, BadFilesAreNamedAndNothingIsPrinted) {
    game.printers.installed = {u"Laser"_s};
    auto records = sampleRecords("easy.txt");
    meanwhile = [&] { test::put(puzzles, records[0] + "\n" + records[1] + "\n"); };
    printMultiple(u"1"_s, u"40"_s, u"Laser"_s);
    EXPECT_EQ(game.prompts.shown.back().text, puzzles + ": there is no puzzle 3 among its 2");
    meanwhile = [&] {
        test::put(puzzles, records[0] + "\nno record\n" + records[1] + "\n" + records[2] + "\n");
    };
    printMultipleToPdf(u"1"_s, u"4"_s);
    EXPECT_NE(game.prompts.shown.back().text.find(puzzles + ": line 2: the record has"),
              std::string::npos);
    printMultiple(u"1"_s, u"3"_s, u"Laser"_s);
    EXPECT_NE(game.prompts.shown.back().text.find("line 2"), std::string::npos);
    EXPECT_EQ(game.prompts.shown.back().style, "vbok+vbcritical");
    meanwhile = [&] { std::filesystem::remove(puzzles); };
    printMultiple(u"1"_s, u"4"_s, u"Laser"_s);
    EXPECT_NE(game.prompts.shown.back().text.find(puzzles), std::string::npos);
    EXPECT_TRUE(game.printers.printed.empty());
    EXPECT_FALSE(std::filesystem::exists(pdf));
    EXPECT_FALSE(game.session.busy.isBusy());
}

TEST_F(Printing, AFileThatCannotBeWrittenIsNamed) {
    std::filesystem::create_directory(pdf);
    for (const std::string& path : {pdf, std::string("/nowhere/out.pdf")}) {
        pdf = path;
        printMultipleToPdf(u"1"_s, u"4"_s);
        EXPECT_NE(game.prompts.shown.back().text.find(path), std::string::npos);
        EXPECT_EQ(game.prompts.shown.back().style, "vbok+vbcritical");
    }
    EXPECT_FALSE(game.session.busy.isBusy());
}

/// Enough puzzles for the progress to come up.
class LongPrinting : public Printing {
protected:
    LongPrinting() {
        std::string content;
        for (int copy = 0; copy < 100; ++copy)
            for (const std::string& record : sampleRecords("easy.txt"))
                content += record + "\n";
        test::put(puzzles, content);
        game.window->files().load(puzzles);
        QObject::connect(&watch, &QTimer::timeout, [this] {
            auto& progress = game.find(u"PrintProgress"_s);
            if (progress.isVisible() && !seen) {
                seen = true;
                during();
            }
        });
        watch.start(10);
    }

    QTimer watch;
    bool seen = false;
    std::function<void()> during;
};

TEST_F(LongPrinting, CancelLeavesNoFileAndTheWindowLivesMeanwhile) {
    during = [&] {
        auto& progress = game.find(u"PrintProgress"_s);
        EXPECT_EQ(progress.findChild<QProgressBar*>()->maximum(), 1000 + 334);
        EXPECT_TRUE(game.session.busy.isBusy());
        const int before = game.session.puzzle.PuzNum;
        QTest::mouseClick(&game.find(u"cmdarrow_1"_s), Qt::LeftButton);
        EXPECT_EQ(game.session.puzzle.PuzNum, before) << "one command at a time";
        QTest::mouseClick(progress.findChild<QWidget*>(u"cancelPrint"_s), Qt::LeftButton);
    };
    printMultipleToPdf(u"1"_s, u"4000"_s);
    EXPECT_TRUE(seen);
    EXPECT_FALSE(std::filesystem::exists(pdf));
    EXPECT_EQ(game.message(), u"Nothing was printed"_s);
    EXPECT_FALSE(game.find(u"PrintProgress"_s).isVisible());
    EXPECT_FALSE(game.session.busy.isBusy());
    QTest::mouseClick(&game.find(u"cmdarrow_1"_s), Qt::LeftButton);
    EXPECT_EQ(game.session.puzzle.PuzNum, 2);
}

TEST_F(LongPrinting, ClosingTheWindowEndsIt) {
    game.printers.installed = {u"Laser"_s};
    during = [&] { game.window->close(); };
    printMultiple(u"1"_s, u"4000"_s, u"Laser"_s);
    EXPECT_TRUE(seen);
    EXPECT_TRUE(game.printers.printed.empty());
    EXPECT_FALSE(game.find(u"PrintProgress"_s).isVisible());
}

} // namespace
} // namespace tessaly
