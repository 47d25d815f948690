#include "support/pdf_document.h"
#include "ui/game_window.h"

#include <QComboBox>
#include <QProcess>

namespace tessaly::print_queue_test {

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
    SystemPrinters printers;
    GameWindow game{"easy.txt", 3, &printers};
    QDir printed{qEnvironmentVariable("TESSALY_PRINTED")};
};

TEST_F(PrintQueue, ABookletArrivesAtAPrinterOfTheSystemWithEveryPageOnItsPaper) {
    EXPECT_EQ(printers.names(), (QStringList{u"Closed"_s, u"Paper"_s}));
    EXPECT_EQ(printers.defaultName(), u"Paper"_s);
    const PrinterOffer offer = printers.offerOf(u"Paper"_s);
    EXPECT_TRUE(offer.papers.at(offer.usual).size.isLike(NamedPapers[2].size)) << "A5";
    printRange(u"Paper"_s);
    EXPECT_EQ(game.message(), u"6 pages printed to Paper"_s);
    EXPECT_TRUE(QTest::qWaitFor(allIsPrinted, 60'000));
    ASSERT_EQ(arrived().size(), 1);
    const PdfDocument sheets(printed.filePath(arrived().front()).toStdString());
    EXPECT_EQ(sheets.pageCount(), 6) << "two puzzles a page, for it is small";
    EXPECT_TRUE(sheets.info(u"Page size"_s).endsWith(u"(A5)"_s));
    EXPECT_GT(sheets.words(5).size(), 6U * 30) << "six solutions";
    EXPECT_TRUE(printed.remove(arrived().front()));
}

TEST_F(PrintQueue, WhatAPrinterDoesNotTakeIsSaid) {
    printRange(u"Closed"_s);
    const auto [text, style] = game.lastPrompt();
    EXPECT_EQ(style, "vbok+vbcritical");
    EXPECT_NE(text.find("not accepting jobs"), std::string::npos) << text;
    EXPECT_EQ(arrived(), QStringList());
}

} // namespace tessaly::print_queue_test
