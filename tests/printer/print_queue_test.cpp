#include "support/pdf_document.h"
#include "ui/game_window.h"

#include <QComboBox>
#include <QProcess>

namespace tessaly {
namespace {

struct PrintQueue : testing::Test {
    /// Prints the puzzles 2 to 8 and their solutions.
    void printRange(const QString& printer) {
        inNextDialog([&](QDialog& form) {
            find<QLineEdit>(form, u"Text1"_s).setText(u"2"_s);
            find<QLineEdit>(form, u"Text2"_s).setText(u"8"_s);
            find<QComboBox>(form, u"Combo1"_s).setCurrentText(printer);
            QTest::mouseClick(&find(form, u"Command1"_s), Qt::LeftButton);
        });
        game.choose(u"mnuprintx_4"_s);
    }
    QStringList arrived() const { return printed.entryList({u"*.pdf"_s}, QDir::Files); }
    static bool allIsPrinted() {
        QProcess lpstat;
        lpstat.start(u"lpstat"_s, {u"-o"_s});
        return lpstat.waitForFinished() && lpstat.exitCode() == 0 &&
               lpstat.readAllStandardOutput().isEmpty();
    }
    /// The paper that comes out of the printer, taken away.
    PdfDocument take() {
        EXPECT_TRUE(QTest::qWaitFor(allIsPrinted, 60'000));
        EXPECT_EQ(arrived().size(), 1);
        const std::string sheets = game.folder.path() + "sheets.pdf";
        EXPECT_TRUE(printed.rename(arrived().value(0), QString::fromStdString(sheets)));
        return PdfDocument(sheets);
    }

    SystemPrinters printers;
    GameWindow game{"easy.txt", 3, &printers};
    QDir printed{qEnvironmentVariable("TESSALY_PRINTED")};
};

/// The letters and digits of all pages in the order of the alphabet: on their way to the printer
/// they are put together to other words, in another order.
std::vector<std::string> textOf(const PdfDocument& document) {
    std::vector<std::string> pages;
    for (int page = 1; page <= document.pageCount(); ++page) {
        std::string& text = pages.emplace_back();
        for (const auto& word : document.words(page))
            text += word.text.toStdString();
        std::sort(text.begin(), text.end());
    }
    return pages;
}

TEST_F(PrintQueue, ABookletArrivesAtAPrinterOfTheSystemWithEveryNumberOnItsPage) {
    EXPECT_EQ(printers.names(), (QStringList{u"Closed"_s, u"Paper"_s}));
    EXPECT_EQ(printers.defaultName(), u"Paper"_s);
    EXPECT_NEAR(printers.paperOf(u"Paper"_s).width, 420, 2);
    EXPECT_NEAR(printers.paperOf(u"Paper"_s).height, 595, 2);
    printRange(u"Paper"_s);
    EXPECT_EQ(game.message(), u"3 pages printed to Paper"_s);
    const PdfDocument sheets = take();
    const std::string file = game.folder.path() + "file.pdf";
    game.fileDialogs.add(QString::fromStdString(file));
    printRange(u"Print to PDF"_s);
    EXPECT_EQ(sheets.pageCount(), 3);
    EXPECT_TRUE(sheets.info(u"Page size"_s).endsWith(u"(A5)"_s));
    EXPECT_EQ(textOf(sheets), textOf(PdfDocument(file)));
    EXPECT_TRUE(game.prompts.shown.empty());
}

TEST_F(PrintQueue, WhatAPrinterDoesNotTakeIsSaid) {
    printRange(u"Closed"_s);
    const auto [text, style] = game.lastPrompt();
    EXPECT_EQ(style, "vbok+vbcritical");
    EXPECT_NE(text.find("not accepting jobs"), std::string::npos) << text;
    EXPECT_EQ(arrived(), QStringList());
}

} // namespace
} // namespace tessaly
