#include "ui/output/print_dialog.h"

#include "support/scripted_file_dialogs.h"
#include "support/scripted_printers.h"
#include "support/scripted_prompts.h"
#include "ui/controls/box_control.h"
#include "ui/controls/file_name_picker.h"
#include "ui/drawing/qt_values.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

class PrintDialog : public testing::Test {
protected:
    PrintDialog() {
        printers.installed = {u"Laser"_s, u"Kitchen"_s};
        printers.usual = u"Kitchen"_s;
        test::put(puzzles(), "a\r\nb\r\nc\r\n");
    }
    std::string puzzles() const { return folder / "<b>three.txt"; }

    template <class Widget = QLineEdit>
    Widget& find(const QString& name) {
        return *form.findChild<Widget*>(name);
    }
    void click(const QString& name) { QTest::mouseClick(&find<BoxControl>(name), Qt::LeftButton); }

    /// Opens the dialog, does what the user does in it, and takes it away when it stays open.
    std::optional<PrintOrder> choose(const std::function<void()>& user) {
        QTimer::singleShot(0, &form, [&] {
            user();
            stayedOpen = form.isVisible();
            form.close();
        });
        return form.choose({"/puzzles/mine.txt", 40, printer});
    }
    std::optional<PrintOrder> chooseRange(const QString& from, const QString& to) {
        return choose([&] {
            find(u"Text1"_s).setText(from);
            find(u"Text2"_s).setText(to);
            click(u"Command1"_s);
        });
    }

    test::TemporaryFolder folder;
    Appearance appearance;
    ScriptedPrinters printers;
    ScriptedFileDialogs fileDialogs;
    ScriptedPrompts prompts;
    std::optional<QString> printer;
    bool stayedOpen = false;
    Form5 form{appearance, printers, fileDialogs.dialog(), prompts, folder.path().string() + "/"};
};

TEST_F(PrintDialog, OffersThePrintersTheFileAndTheWholeRange) {
    appearance.SchemeColours[slot::Background] = RGB(20, 30, 40);
    appearance.SchemeColours[slot::Button] = RGB(220, 230, 200);
    const auto order = choose([&] {
        QStringList offered;
        for (int i = 0; i < find<QComboBox>(u"Combo1"_s).count(); ++i)
            offered << find<QComboBox>(u"Combo1"_s).itemText(i);
        EXPECT_EQ(offered, (QStringList{u"Laser"_s, u"Kitchen"_s, u"Print to PDF"_s}));
        EXPECT_EQ(find(u"FileNow"_s).text(), u"/puzzles/mine.txt");
        EXPECT_EQ(toColour(form.palette().window().color()), RGB(20, 30, 40));
        EXPECT_EQ(toColour(find(u"Text1"_s).palette().base().color()), RGB(220, 230, 200));
        EXPECT_EQ(form.property("tag"), u"X"_s);
        click(u"Command1"_s);
    });
    EXPECT_EQ(form.property("tag"), u"Y"_s);
    ASSERT_TRUE(order);
    EXPECT_EQ(order->printer, u"Kitchen") << "the default printer";
    EXPECT_EQ(order->range.path, "/puzzles/mine.txt");
    EXPECT_EQ(order->range.from, 1);
    EXPECT_EQ(order->range.to, 40);
    EXPECT_EQ(order->range.puzzlesPerPage, 4);

    EXPECT_FALSE(choose([&] { click(u"Command2"_s); }));
    EXPECT_FALSE(choose([&] { QTest::keyClick(&form, Qt::Key_Escape); }));
    EXPECT_EQ(form.property("tag"), u"X"_s);
}

TEST_F(PrintDialog, RefusesRangesOutsideTheFileAndBackwardOnes) {
    const char* const outside = "vbok+vbcritical";
    const char* const backward = "vbcritical+vbok";
    for (const auto& [from, to, refused] : {std::tuple{u"0"_s, u"5"_s, outside},
                                            {u"1"_s, u"41"_s, outside},
                                            {u"0"_s, u"-3"_s, outside},
                                            {u""_s, u"5"_s, outside},
                                            {u"five"_s, u"5"_s, outside},
                                            {u"99999999999"_s, u"99999999999"_s, outside},
                                            {u"0.9"_s, u"5"_s, outside},
                                            {u"5"_s, u"3"_s, backward},
                                            {u"1"_s, u""_s, backward}}) {
        SCOPED_TRACE(from.toStdString() + " to " + to.toStdString());
        EXPECT_FALSE(chooseRange(from, to));
        EXPECT_TRUE(stayedOpen);
        EXPECT_EQ(prompts.shown.back(),
                  (ScriptedPrompts::Message{"Invalid from or to puzzle number", refused}));
    }
    EXPECT_TRUE(chooseRange(u"7"_s, u"7"_s));
    const auto order = chooseRange(u" 2.9 "_s, u"40x"_s);
    ASSERT_TRUE(order);
    EXPECT_EQ(order->range.from, 2);
    EXPECT_EQ(order->range.to, 40);
}

TEST_F(PrintDialog, AChosenFileIsCountedAndABadOneChangesNothing) {
    fileDialogs.add({});
    fileDialogs.add(QString::fromStdString(folder / "none.txt"));
    fileDialogs.add(QString::fromStdString(puzzles()));
    const auto order = choose([&] {
        for (std::size_t failures : {0U, 1U}) {
            find<FNDialog>(u"gf1"_s).findChild<BoxControl*>()->click();
            EXPECT_EQ(find(u"FileNow"_s).text(), u"/puzzles/mine.txt");
            EXPECT_EQ(prompts.shown.size(), failures);
        }
        find<FNDialog>(u"gf1"_s).findChild<BoxControl*>()->click();
        EXPECT_EQ(find(u"FileNow"_s).text().toStdString(), puzzles());
        EXPECT_TRUE(find(u"FileNow"_s).toolTip().contains(u"&lt;b&gt;three.txt")) << "as it is";
        click(u"Command1"_s);
    });
    EXPECT_NE(prompts.shown.back().text.find("none.txt"), std::string::npos);
    EXPECT_EQ(fileDialogs.asked.front().title, u"Select a Puzzle file to print");
    ASSERT_TRUE(order);
    EXPECT_EQ(order->range.path, puzzles());
    EXPECT_EQ(order->range.to, 3);
}

TEST_F(PrintDialog, RemembersThePrinterAndOffersPdfWhenThereIsNone) {
    for (const QString& last : {u"Laser"_s, QString()}) {
        printer = last;
        EXPECT_EQ(choose([&] { click(u"Command1"_s); })->printer, last);
    }
    printer.reset();
    printers.installed.clear();
    printers.usual.clear();
    const auto order = choose([&] {
        find<QAbstractButton>(u"perPage_6"_s).click();
        find<QAbstractButton>(u"withSolutions"_s).click();
        click(u"Command1"_s);
    });
    EXPECT_EQ(order->printer, QString());
    EXPECT_EQ(order->range.puzzlesPerPage, 6);
    EXPECT_FALSE(order->range.solutions);
}

} // namespace
} // namespace tessaly
