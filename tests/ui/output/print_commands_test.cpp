#include "core/play/selection_walk.h"
#include "support/pdf_document.h"
#include "support/sample_puzzles.h"
#include "ui/controls/file_name_picker.h"
#include "ui/game_window.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QPrinter>
#include <QProgressBar>
#include <QTabWidget>

namespace tessaly::print_commands_test {

using Message = ScriptedPrompts::Message;

struct Printing : testing::Test {
    Printing() {
        game.printers.installed = {u"Laser"_s, u"Kitchen"_s};
        game.printers.usual = u"Kitchen"_s;
    }
    static void setRange(const QDialog& form, const QString& from, const QString& to) {
        find<QLineEdit>(form, u"Text1"_s).setText(from);
        find<QLineEdit>(form, u"Text2"_s).setText(to);
    }
    static void press(const QDialog& form, const QString& button = u"Command1"_s) {
        QTest::mouseClick(&find(form, button), Qt::LeftButton);
    }
    /// Does `what` in the dialog for many puzzles, and prints if that is not done yet.
    void inDialog(const std::function<void(QDialog&)>& what) {
        inNextDialog([&](QDialog& form) {
            what(form);
            if (form.isVisible())
                press(form);
        });
        game.choose(u"mnuprintx_4"_s);
    }
    void printRange(int from, int to, const QString& printer = u"Laser"_s) {
        inDialog([&](QDialog& form) {
            setRange(form, QString::number(from), QString::number(to));
            find<QComboBox>(form, u"Combo1"_s).setCurrentText(printer);
        });
    }
    /// What a printer got last, as a file.
    PdfDocument lastPrinted() {
        put(pdf, game.printers.printed.back().pdf);
        return PdfDocument(pdf);
    }

    GameWindow game{"easy.txt", 3};
    std::string puzzles = game.session.puzzle.PuzPath;
    std::string pdf = game.folder.path() + "out.pdf";
};

TEST_F(Printing, PrintsTheShownPuzzleAsItStandsItsSolutionOrBoth) {
    game.printers.chosen = PrintTarget{{}, pdf, NamedPapers[1].size};
    const PdfDocument printed(pdf);
    game.choose(u"mnuprintx_0"_s);
    const auto givens = printed.words(1).size();
    game.session.game.board.CellNum[firstSelectable(game.session.game)] = "4";
    game.session.game.board.CellNum[lastSelectable(game.session.game)] = "246";
    game.choose(u"mnuprintx_0"_s);
    EXPECT_EQ(printed.words(1).size(), givens + 2);
    EXPECT_EQ(printed.pageCount(), 1);
    EXPECT_TRUE(printed.info(u"Page size"_s).startsWith(u"612 x 792"_s));
    EXPECT_EQ(printed.info(u"Title"_s), u"Puz# 3");
    game.choose(u"mnuprintx_1"_s);
    EXPECT_GT(printed.words(1).size(), std::size_t{HexagonCount - 1} * CellCount);
    game.printers.chosen->pages = {1};
    game.printers.chosen->sheets.copies = {2, true, true};
    game.choose(u"mnuprintx_2"_s);
    EXPECT_EQ(printed.pageCount(), 3) << "the second copy begins on a sheet of its own";
    EXPECT_EQ(printed.words(3).size(), printed.words(1).size());
}

TEST_F(Printing, WhatCannotBePrintedIsSaid) {
    const auto shown = [&] { return game.choose(u"mnuprintx_0"_s), game.lastPrompt().text; };
    EXPECT_EQ(shown(), "") << "cancelled";
    game.printers.chosen = PrintTarget{{}, "/nowhere/out.pdf", NamedPapers[0].size};
    EXPECT_NE(shown().find("/nowhere/out.pdf"), std::string::npos);
    EXPECT_EQ(game.lastPrompt().style, "vbok+vbcritical");
    game.printers.chosen->file.clear();
    EXPECT_EQ(shown(), "There is no printer.");
    std::filesystem::create_directory(pdf);
    game.fileDialogs.add(QString::fromStdString(pdf));
    printRange(1, 4, u"Print to PDF"_s);
    EXPECT_NE(game.lastPrompt().text.find(pdf), std::string::npos);
    EXPECT_TRUE(game.printers.printed.empty());
    game.printers.answer = Outcome::failed("Laser: on fire");
    printRange(1, 1);
    EXPECT_EQ(game.lastPrompt(), (Message{"Laser: on fire", "vbok+vbcritical"}));
    game.prompts.shown.clear();
    game.printers.chosen->printer = u"Laser"_s;
    EXPECT_EQ(shown(), "Laser: on fire");
    EXPECT_EQ(game.printers.printed.back().options, (QStringList{u"-n"_s, u"1"_s}));
    game.printers.answer = Outcome::done();
    game.choose(u"mnuprintx_0"_s);
    EXPECT_EQ(game.message(), u"Printed"_s);
    game.session.puzzle = {};
    EXPECT_EQ(shown(), "There is no puzzle to print");
}

TEST_F(Printing, TheDialogOffersPrintersFileAndTheWholeRangeAndRefusesAnother) {
    game.session.appearance.SchemeColours[slot::Background] = RGB(20, 30, 40);
    game.session.appearance.SchemeColours[slot::Button] = RGB(220, 230, 200);
    game.printers.paper = NamedPapers[1].size;
    inDialog([&](QDialog& form) {
        EXPECT_EQ(find<QComboBox>(form, u"Combo1"_s).count(), 3);
        EXPECT_EQ(find<QLineEdit>(form, u"FileNow"_s).text().toStdString(), puzzles);
        EXPECT_EQ(groundOf(form), RGB(20, 30, 40));
        EXPECT_EQ(toColour(find(form, u"Text1"_s).palette().base().color()), RGB(220, 230, 200));
    });
    ASSERT_EQ(game.printers.printed.size(), 1U);
    EXPECT_EQ(game.printers.printed[0].name, u"Kitchen");
    EXPECT_EQ(lastPrinted().pageCount(), 10 + 4);
    EXPECT_TRUE(lastPrinted().info(u"Page size"_s).startsWith(u"612 x 792"_s));

    inDialog([&](QDialog& form) {
        for (const auto& [from, to, style] : {std::tuple{u"0.9"_s, u"5"_s, "vbok+vbcritical"},
                                              {u"1"_s, u"41"_s, "vbok+vbcritical"},
                                              {u"5"_s, u"3"_s, "vbcritical+vbok"},
                                              {u"1"_s, QString(), "vbcritical+vbok"}}) {
            setRange(form, from, to);
            press(form);
            EXPECT_EQ(form.property("tag"), u"X"_s) << from.toStdString() << to.toStdString();
            EXPECT_EQ(game.lastPrompt(), (Message{"Invalid from or to puzzle number", style}));
        }
        setRange(form, u" 38.9 "_s, u"39x"_s);
    });
    EXPECT_EQ(game.printers.printed.back().title, u"easy.txt, 38 to 39");
    inDialog([&](QDialog& form) { press(form, u"Command2"_s); });
    EXPECT_EQ(game.printers.printed.size(), 2U);
}

TEST_F(Printing, TheDialogTakesAnotherFileAndRemembersThePrinter) {
    const std::string other = game.folder.puzzles("hard.txt", "<b>other.txt");
    put(other, sampleRecords("hard.txt")[0] + "\r\n" + sampleRecords("hard.txt")[1]);
    game.fileDialogs.add({});
    game.fileDialogs.add(u"/nowhere/none.txt"_s);
    game.fileDialogs.add(QString::fromStdString(other));
    inDialog([&](QDialog& form) {
        auto& file = find<QLineEdit>(form, u"FileNow"_s);
        auto* choose = find<FNDialog>(form, u"gf1"_s).findChild<BoxControl*>();
        for (std::size_t failures : {0U, 1U}) {
            choose->click();
            EXPECT_EQ(file.text().toStdString(), puzzles);
            EXPECT_EQ(game.prompts.shown.size(), failures);
        }
        choose->click();
        EXPECT_EQ(file.text().toStdString(), other);
        EXPECT_TRUE(file.toolTip().contains(u"&lt;b&gt;other.txt")) << "as it is";
        find<QComboBox>(form, u"Combo1"_s).setCurrentText(u"Laser"_s);
        find<QAbstractButton>(form, u"perPage_1"_s).click();
        find<QComboBox>(form, u"solutions"_s).setCurrentIndex(0);
    });
    EXPECT_EQ(game.printers.printed.back().title, u"<b>other.txt, 1 to 2");
    EXPECT_EQ(lastPrinted().pageCount(), 2);
    inDialog([](QDialog&) {});
    EXPECT_EQ(game.printers.printed.back().name, u"Laser");
    game.printers.installed.clear();
    std::filesystem::remove(pdf);
    game.fileDialogs.add(QString::fromStdString(pdf));
    inDialog([](QDialog&) {});
    EXPECT_EQ(game.message().toStdString(), "40 pages printed to " + pdf);
    EXPECT_EQ(PdfDocument(pdf).pageCount(), 40);
    EXPECT_EQ(game.fileDialogs.asked.back().name, u"easy.pdf"_s);
}

/// What is wrong is told, and the dialog stays.
TEST_F(Printing, TheDialogStaysUntilAllIsRightAndTellsWhatItWouldPrint) {
    const auto set = [](const QDialog& form, const QString& box, const QString& text) {
        find<QLineEdit>(form, box).setText(text);
    };
    put(pdf, "old");
    for (int i = 0; i < 2; ++i)
        game.fileDialogs.add(QString::fromStdString(pdf));
    inDialog([&](QDialog& form) {
        auto& printer = find<QComboBox>(form, u"Combo1"_s);
        auto& pages = find<QLabel>(form, u"pageCount"_s);
        const auto refused = [&] {
            game.prompts.shown.clear();
            press(form);
            EXPECT_TRUE(form.isVisible() && game.printers.printed.empty());
            return game.lastPrompt().text;
        };
        EXPECT_EQ(pages.text(), u"14 pages"_s);
        printer.setCurrentText(u"Laser"_s);
        for (const auto& [list, problem] :
             {std::pair{u"3,x"_s, "\"x\" is neither a number nor two like 20-24"},
              {u"3,41"_s, "there is no puzzle 41 among its 40"}}) {
            set(form, u"puzzleList"_s, list);
            EXPECT_TRUE(refused().ends_with(problem));
            EXPECT_TRUE(QTest::qWaitFor(
                [&, end = QString::fromLatin1(problem)] { return pages.text().endsWith(end); }));
        }
        set(form, u"puzzleList"_s, u"7, 3"_s);
        set(form, u"title"_s, u"a\u0001b"_s);
        EXPECT_EQ(refused(), "the title holds a control character");
        set(form, u"title"_s, u"Monday"_s);
        game.printers.installed.removeFirst();
        EXPECT_EQ(refused(), "Laser: this printer is not there any more");
        EXPECT_EQ(printer.currentText(), u"Print to PDF"_s);
        auto& paper = find<QComboBox>(form, u"paper"_s);
        paper.setCurrentIndex(paper.count() - 1);
        find<QDoubleSpinBox>(form, u"paperWidth"_s).setValue(40);
        EXPECT_EQ(refused(), "the paper is too small to write in a puzzle");
        paper.setCurrentText(u"A5"_s);
        game.prompts.answers = {answer::No};
        EXPECT_EQ(refused(), "OverWrite file: " + pdf + " ?");
        find<QAbstractButton>(form, u"orientation_Landscape"_s).click();
        find<QComboBox>(form, u"solutions"_s).setCurrentIndex(int(SolutionsAt::OwnFile));
        put(game.folder.path() + "out-solutions.pdf", "old");
        game.prompts.answers = {answer::Yes, answer::Yes};
    });
    EXPECT_EQ(game.message().toStdString(), "2 pages printed to " + pdf);
    const PdfDocument solutions(game.folder.path() + "out-solutions.pdf");
    EXPECT_TRUE(solutions.info(u"Page size"_s).startsWith(u"595 x 420"_s));
    EXPECT_EQ(PdfDocument(pdf).info(u"Title"_s), u"Monday"_s);
    EXPECT_EQ(solutions.info(u"Title"_s), u"Monday, solutions"_s);
}

TEST_F(Printing, ALongFileIsPrintedFromThePuzzleShownOnAndAPrinterHearsHowToPrint) {
    const std::string forty = contentOf(puzzles);
    std::ofstream(puzzles, std::ios::app) << forty;
    game.window->files().load(puzzles, 60);
    inDialog([&](QDialog& form) {
        EXPECT_EQ(find<QLineEdit>(form, u"Text1"_s).text(), u"60"_s);
        find<QSpinBox>(form, u"copies"_s).setValue(3);
        find<QComboBox>(form, u"sides"_s).setCurrentIndex(2);
        find<QTabWidget>(form, u"tabs"_s).setCurrentIndex(1);
        find(form, u"tabs"_s).setFocus();
        QTest::keyClick(&find(form, u"tabs"_s), Qt::Key_Tab);
        EXPECT_EQ(form.focusWidget()->objectName(), u"perPage_4"_s) << "the chosen one";
    });
    EXPECT_EQ(game.printers.printed.back().title, u"easy.txt, 60 to 60");
    EXPECT_EQ(game.printers.printed.back().options.join(u' '),
              u"-n 3 -o collate=true -o sides=two-sided-long-edge"_s);
}

TEST_F(Printing, NewPuzzlesAreKeptInTheFileAndPrinted) {
    inDialog([&](QDialog& form) {
        const auto create = [&](const QString& count) {
            find<QLineEdit>(form, u"newCount"_s).setText(count);
            QTest::mouseClick(&find(form, u"createAndPrint"_s), Qt::LeftButton);
        };
        find<QTabWidget>(form, u"tabs"_s).setCurrentIndex(4);
        create(u"0"_s);
        EXPECT_EQ(game.lastPrompt().text, "Incorrect number of puzzles");
        find<QAbstractButton>(form, u"newDifficulty_Hard"_s).click();
        create(u"3"_s);
    });
    EXPECT_EQ(game.printers.printed.back().title, u"easy.txt, 41 to 43");
    EXPECT_EQ(recordsOf(puzzles).size(), 43U);
    EXPECT_EQ(recordsOf(puzzles).back().front(), 'H');
    EXPECT_EQ(game.message(), u"2 pages printed to Kitchen"_s);
}

TEST(SystemPrinters, TellTheProgramThatPrintsWhatTheDialogSetAndHearItsAnswer) {
    const TemporaryFolder folder;
    QPrinter printer;
    printer.setOutputFileName(QString::fromStdString(folder / "out.pdf"));
    printer.setPageSize(QPageSize(QPageSize::A5));
    printer.setCopyCount(3);
    printer.setPrintRange(QPrinter::PageRange);
    printer.setFromTo(2, 3);
    PrintTarget target = targetOf(printer, 4);
    EXPECT_EQ(target.file, folder / "out.pdf");
    EXPECT_EQ(target.pages, (std::vector{1, 2}));
    target.sheets.sides = u"two-sided-short-edge"_s; // only a real printer has them

    const QByteArray before = qgetenv("PATH");
    const auto printed = [&] {
        return SystemPrinters().print(u"Laser"_s, "a.pdf", u"a title"_s, target.sheets).problem;
    };
    qputenv("PATH", QByteArray::fromStdString(folder.path()));
    EXPECT_EQ(printed(), "Laser: cannot print: the program \"lp\" is missing; install the package "
                         "\"cups-client\"");
    put(folder / "lp", "#!/bin/sh\necho \"$@\" >&2\nexit 1\n");
    std::filesystem::permissions(folder / "lp", std::filesystem::perms(0755));
    EXPECT_EQ(printed(), "Laser: cannot print: -d Laser -t a title -n 3 -o collate=true "
                         "-o sides=two-sided-short-edge -o media=A5 -- a.pdf");
    qputenv("PATH", before);
}

TEST_F(Printing, ALongOneLetsTheWindowLiveAndLeavesNothingWhenItIsCancelledOrClosed) {
    const std::string forty = contentOf(puzzles);
    for (int copy = 1; copy < 100; ++copy)
        std::ofstream(puzzles, std::ios::app) << forty;
    game.window->files().load(puzzles);
    QWidget& progress = game.find(u"PrintProgress"_s);
    std::function<void()> meanwhile;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        if (progress.isVisible() && meanwhile)
            std::exchange(meanwhile, nullptr)();
    });
    watch.start(10);
    meanwhile = [&] {
        EXPECT_EQ(progress.findChild<QProgressBar*>()->maximum(), 1000 + 334);
        game.click(u"cmdarrow_1"_s);
        EXPECT_EQ(game.session.puzzle.PuzNum, 1) << "one command at a time";
        QTest::mouseClick(&find(progress, u"cancelPrint"_s), Qt::LeftButton);
    };
    game.fileDialogs.add(QString::fromStdString(pdf));
    printRange(1, 4000, u"Print to PDF"_s);
    EXPECT_FALSE(meanwhile) << "the progress was never seen";
    EXPECT_FALSE(std::filesystem::exists(pdf));
    EXPECT_EQ(game.message(), u"Nothing was printed");
    EXPECT_FALSE(progress.isVisible() || game.session.busy.isBusy());
    meanwhile = [&] { game.window->close(); };
    printRange(1, 4000);
    EXPECT_FALSE(meanwhile || progress.isVisible());
    EXPECT_TRUE(game.printers.printed.empty());
}

} // namespace tessaly::print_commands_test
