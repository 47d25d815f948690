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

constexpr std::size_t CaptionsAndFooter = 8;

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

TEST_F(Printing, PrintsTheShownPuzzleAsItStandsItsSolutionOrBoth) {
    Board& board = game.session.game.board;
    const CellId open = *std::find_if(AllCells.begin(), AllCells.end(), [&](CellId cell) {
        return !board.isBlank(cell.hexagon) && !board.FixedCell[cell];
    });
    game.printers.userSetsUp = [&](QPrinter& printer) {
        printer.setOutputFileName(QString::fromStdString(pdf));
        printer.setPageSize(QPageSize(QPageSize::Letter));
        return true;
    };
    const auto print = [&](const QString& item) {
        choose(item);
        return PdfDocument(pdf);
    };
    const auto givens = print(u"mnuprintx_0"_s).words(1).size();
    board.CellNum[open] = board.SolNum[open];
    const PdfDocument puzzle = print(u"mnuprintx_0"_s);
    EXPECT_EQ(puzzle.words(1).size(), givens + 1);
    EXPECT_EQ(puzzle.pageCount(), 1);
    EXPECT_TRUE(puzzle.info(u"Page size"_s).startsWith(u"612 x 792"_s));
    EXPECT_EQ(puzzle.info(u"Title"_s), u"Puz# 3");
    EXPECT_EQ(print(u"mnuprintx_1"_s).words(1).size(),
              std::size_t{HexagonCount - 1} * CellCount + CaptionsAndFooter);
    EXPECT_EQ(print(u"mnuprintx_2"_s).pageCount(), 2);
    EXPECT_TRUE(game.prompts.shown.empty());
}

TEST_F(Printing, WhatCannotBePrintedIsSaid) {
    const auto shown = [&] {
        choose(u"mnuprintx_0"_s);
        return game.prompts.shown.empty() ? "" : game.prompts.shown.back().text;
    };
    EXPECT_EQ(shown(), "") << "cancelled";
    game.printers.userSetsUp = [](QPrinter& printer) {
        printer.setOutputFileName(u"/nowhere/out.pdf"_s);
        return true;
    };
    EXPECT_NE(shown().find("/nowhere/out.pdf"), std::string::npos);
    EXPECT_EQ(game.prompts.shown.back().style, "vbok+vbcritical");
    game.printers.userSetsUp = [](QPrinter&) { return true; };
    EXPECT_EQ(shown(), "There is no printer.");
    std::filesystem::create_directory(pdf);
    for (const std::string& path : {pdf, std::string("/nowhere/out.pdf")}) {
        pdf = path;
        printMultipleToPdf(u"1"_s, u"4"_s);
        EXPECT_NE(game.prompts.shown.back().text.find(path), std::string::npos);
    }
    EXPECT_FALSE(game.session.busy.isBusy());
    game.session.puzzle = {};
    EXPECT_EQ(shown(), "There is no puzzle to print");
}

TEST_F(Printing, ARangeGoesToAPdfFileOnceTheUserAgreesToReplaceIt) {
    test::put(pdf, "old");
    game.prompts.answers = {answer::No, answer::Yes};
    printMultipleToPdf(u"5"_s, u"10"_s);
    EXPECT_EQ(game.prompts.shown.back(),
              (ScriptedPrompts::Message{"OverWrite file: " + pdf + " ?",
                                        "vbyesno+vbquestion+vbdefaultbutton2"}));
    EXPECT_EQ(test::contentOf(pdf), "old");
    printMultipleToPdf(u"5"_s, u"10"_s);
    EXPECT_EQ(PdfDocument(pdf).pageCount(), 3);
    EXPECT_EQ(game.message().toStdString(), "3 pages printed to " + pdf);
}

TEST_F(Printing, APrinterGetsAWholeDocumentOnItsPaper) {
    game.printers.installed = {u"Laser"_s};
    game.printers.paper = NamedPapers[1].size;
    printMultiple(u"2"_s, u"14"_s, u"Laser"_s);
    ASSERT_EQ(game.printers.printed.size(), 1U);
    EXPECT_EQ(game.printers.printed[0].name, u"Laser");
    EXPECT_EQ(game.printers.printed[0].title, u"easy.txt, 2 to 14");
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
    const auto records = sampleRecords("easy.txt");
    const std::string two = records[0] + "\n" + records[1] + "\n";
    for (const auto& [content, problem] :
         {std::pair<std::string, std::string>{two, ": there is no puzzle 3 among its 2"},
          {two + "no record\n" + two, ": line 3: the record has"}}) {
        meanwhile = [&, now = content] { test::put(puzzles, now); };
        printMultiple(u"1"_s, u"3"_s, u"Laser"_s);
        EXPECT_NE(game.prompts.shown.back().text.find(puzzles + problem), std::string::npos)
            << game.prompts.shown.back().text;
    }
    EXPECT_TRUE(game.printers.printed.empty());
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
            if (progress.isVisible() && !seen) {
                seen = true;
                during();
            }
        });
        watch.start(10);
    }

    QWidget& progress = game.find(u"PrintProgress"_s);
    QTimer watch;
    bool seen = false;
    std::function<void()> during;
};

TEST_F(LongPrinting, CancelLeavesNoFileAndTheWindowLivesMeanwhile) {
    during = [&] {
        EXPECT_EQ(progress.findChild<QProgressBar*>()->maximum(), 1000 + 334);
        EXPECT_TRUE(game.session.busy.isBusy());
        QTest::mouseClick(&game.find(u"cmdarrow_1"_s), Qt::LeftButton);
        EXPECT_EQ(game.session.puzzle.PuzNum, 1) << "one command at a time";
        QTest::mouseClick(progress.findChild<QWidget*>(u"cancelPrint"_s), Qt::LeftButton);
    };
    printMultipleToPdf(u"1"_s, u"4000"_s);
    EXPECT_TRUE(seen);
    EXPECT_FALSE(std::filesystem::exists(pdf));
    EXPECT_EQ(game.message(), u"Nothing was printed");
    EXPECT_FALSE(progress.isVisible());
    EXPECT_FALSE(game.session.busy.isBusy());
}

TEST_F(LongPrinting, ClosingTheWindowEndsIt) {
    game.printers.installed = {u"Laser"_s};
    during = [&] { game.window->close(); };
    printMultiple(u"1"_s, u"4000"_s, u"Laser"_s);
    EXPECT_TRUE(seen);
    EXPECT_TRUE(game.printers.printed.empty());
    EXPECT_FALSE(progress.isVisible());
}

} // namespace
} // namespace tessaly
