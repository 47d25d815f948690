#include "ui/output/printers.h"

#include "support/pdf_document.h"
#include "ui/game_window.h"

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QPrinter>
#include <QProcess>
#include <QTimer>

#include <algorithm>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

/// The system's printers; in the platform's dialog the user presses "Print" at once.
class PrintersWithoutDialog : public SystemPrinters {
public:
    bool setUp(QPrinter& printer, QWidget*) override {
        printer.setPrinterName(u"Paper"_s);
        return true;
    }
};

class PrintQueue : public testing::Test {
protected:
    PrintQueue() { game.window->files().load(game.folder.puzzles("easy.txt"), 3); }

    /// Prints the puzzles 2 to 8 and their solutions.
    void printRange(const QString& printer) {
        auto& form = game.find(u"Form5"_s);
        QTimer::singleShot(0, &form, [&] {
            form.findChild<QLineEdit*>(u"Text1"_s)->setText(u"2"_s);
            form.findChild<QLineEdit*>(u"Text2"_s)->setText(u"8"_s);
            form.findChild<QComboBox*>(u"Combo1"_s)->setCurrentText(printer);
            QTest::mouseClick(form.findChild<QWidget*>(u"Command1"_s), Qt::LeftButton);
        });
        game.find<QAction>(u"mnuprintx_4"_s).trigger();
    }

    static QDir printed() { return QDir(qEnvironmentVariable("TESSALY_PRINTED")); }
    static QStringList arrived() { return printed().entryList({u"*.pdf"_s}, QDir::Files); }
    static bool allIsPrinted() {
        QProcess lpstat;
        lpstat.start(u"lpstat"_s, {u"-o"_s});
        return lpstat.waitForFinished() && lpstat.exitCode() == 0 &&
               lpstat.readAllStandardOutput().isEmpty();
    }
    /// The paper that comes out of the printer, taken away.
    std::string take() {
        EXPECT_TRUE(QTest::qWaitFor(allIsPrinted, 60'000));
        EXPECT_EQ(arrived().size(), 1);
        std::string sheets = game.folder.path() + "sheets.pdf";
        EXPECT_TRUE(printed().rename(arrived().value(0), QString::fromStdString(sheets)));
        return sheets;
    }

    PrintersWithoutDialog printers;
    GameWindow game{nullptr, &printers};
};

/// The letters and digits of a page in the order of the alphabet: on their way to the printer they
/// are put together to other words, in another order.
std::string textOf(const PdfDocument& document, int page) {
    std::string text;
    for (const auto& word : document.words(page))
        text += word.text.toStdString();
    std::sort(text.begin(), text.end());
    return text;
}

bool says(const PdfDocument& document, int page, const QString& text) {
    const auto words = document.words(page);
    return std::any_of(words.begin(), words.end(),
                       [&](const auto& word) { return word.text == text; });
}

TEST_F(PrintQueue, ThePrintersOfTheSystemAreKnown) {
    EXPECT_EQ(printers.names(), (QStringList{u"Closed"_s, u"Paper"_s}));
    EXPECT_EQ(printers.defaultName(), u"Paper"_s);
    const PaperSize paper = printers.paperOf(u"Paper"_s);
    EXPECT_NEAR(paper.width, 420, 2);
    EXPECT_NEAR(paper.height, 595, 2);
}

TEST_F(PrintQueue, ABookletArrivesWithEveryNumberOnItsPage) {
    printRange(u"Paper"_s);
    EXPECT_EQ(game.message(), u"3 pages printed to Paper"_s);
    const PdfDocument sheets(take());
    const std::string file = game.folder.path() + "file.pdf";
    game.fileDialogs.add(QString::fromStdString(file));
    printRange(u"Print to PDF"_s);
    ASSERT_EQ(sheets.pageCount(), 3);
    EXPECT_TRUE(sheets.info(u"Page size"_s).endsWith(u"(A5)"_s));
    for (int page = 1; page <= 3; ++page)
        EXPECT_EQ(textOf(sheets, page), textOf(PdfDocument(file), page)) << "page " << page;
    EXPECT_TRUE(says(sheets, 1, u"Puz#"_s));
    EXPECT_TRUE(game.prompts.shown.empty());
}

TEST_F(PrintQueue, OnePuzzleArrivesFromThePlatformsDialog) {
    game.find<QAction>(u"mnuprintx_2"_s).trigger();
    EXPECT_EQ(game.message(), u"Printed"_s);
    const PdfDocument sheets(take());
    ASSERT_EQ(sheets.pageCount(), 2);
    EXPECT_TRUE(says(sheets, 1, u"Puz#"_s));
    EXPECT_TRUE(says(sheets, 2, u"Sol#"_s));
}

TEST_F(PrintQueue, WhatAPrinterDoesNotTakeIsSaid) {
    printRange(u"Closed"_s);
    ASSERT_EQ(game.prompts.shown.size(), 1U);
    EXPECT_EQ(game.prompts.shown[0].style, "vbok+vbcritical");
    EXPECT_NE(game.prompts.shown[0].text.find("not accepting jobs"), std::string::npos)
        << game.prompts.shown[0].text;
    EXPECT_EQ(arrived(), QStringList());
}

} // namespace
} // namespace tessaly
