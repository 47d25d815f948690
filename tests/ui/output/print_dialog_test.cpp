#include "ui/output/print_dialog.h"

#include "support/scripted_file_dialogs.h"
#include "support/scripted_printers.h"
#include "support/scripted_prompts.h"
#include "ui/controls/box_control.h"
#include "ui/controls/file_name_picker.h"
#include "ui/drawing/qt_values.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
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
    std::string puzzles() const { return folder / "three.txt"; }

    template <class Widget = QLineEdit>
    Widget& find(const QString& name) {
        return *form.findChild<Widget*>(name);
    }
    void click(const QString& name) { QTest::mouseClick(&find<BoxControl>(name), Qt::LeftButton); }
    void write(const QString& name, const QString& text) { find(name).setText(text); }

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
            write(u"Text1"_s, from);
            write(u"Text2"_s, to);
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

TEST_F(PrintDialog, ShowsThePrintersTheFileAndTheWholeRange) {
    appearance.SchemeColours[slot::Background] = RGB(20, 30, 40);
    appearance.SchemeColours[slot::Button] = RGB(220, 230, 200);
    const auto order = choose([&] {
        EXPECT_EQ(form.windowTitle(), u"Print Puzzles From File"_s);
        EXPECT_EQ(find<QGroupBox>(u"Frame5"_s).title(), u"Printer"_s);
        EXPECT_EQ(find<QGroupBox>(u"InFileFrame"_s).title(), u"Puzzles File"_s);
        EXPECT_EQ(find<QGroupBox>(u"Frame1"_s).title(), u"Number of Puzzles"_s);
        EXPECT_EQ(find<QLabel>(u"Label1"_s).text(), u"From"_s);
        EXPECT_EQ(find<BoxControl>(u"Command1"_s).text(), u"Print"_s);
        EXPECT_EQ(find<BoxControl>(u"Command2"_s).text(), u"Exit"_s);
        auto& list = find<QComboBox>(u"Combo1"_s);
        EXPECT_EQ(list.toolTip(), u"Select a printer for output"_s);
        ASSERT_EQ(list.count(), 3);
        EXPECT_EQ(list.itemText(0), u"Laser"_s);
        EXPECT_EQ(list.itemText(2), u"Print to PDF"_s);
        EXPECT_EQ(list.currentText(), u"Kitchen"_s) << "the default printer";
        EXPECT_EQ(find(u"FileNow"_s).text(), u"/puzzles/mine.txt"_s);
        EXPECT_EQ(find(u"FileNow"_s).toolTip(), u"Puzzles to be printed are stored in this file"_s);
        EXPECT_EQ(find(u"Text1"_s).text(), u"1"_s);
        EXPECT_EQ(find(u"Text2"_s).text(), u"40"_s);
        EXPECT_EQ(toColour(form.palette().window().color()), RGB(20, 30, 40));
        EXPECT_EQ(toColour(find(u"Text1"_s).palette().base().color()), RGB(220, 230, 200));
        EXPECT_EQ(form.property("tag"), u"X"_s);
        click(u"Command1"_s);
    });
    EXPECT_EQ(form.property("tag"), u"Y"_s);
    ASSERT_TRUE(order);
    EXPECT_EQ(order->printer, u"Kitchen"_s);
    EXPECT_EQ(order->range.path, "/puzzles/mine.txt");
    EXPECT_EQ(order->range.to, 40);
}

TEST_F(PrintDialog, RefusesRangesOutsideTheFileAndBackwardOnes) {
    using Box = ScriptedPrompts::Message;
    const std::string text = "Invalid from or to puzzle number";
    const Box outside{text, "vbok+vbcritical"};
    const Box backward{text, "vbcritical+vbok"};
    struct Case {
        QString from;
        QString to;
        std::optional<Box> box;
    };
    for (const auto& [from, to, box] :
         {Case{u"0"_s, u"5"_s, outside}, Case{u"1"_s, u"41"_s, outside},
          Case{u"0"_s, u"-3"_s, outside}, Case{u""_s, u"5"_s, outside},
          Case{u"five"_s, u"5"_s, outside}, Case{u"99999999999"_s, u"99999999999"_s, outside},
          Case{u"0.9"_s, u"5"_s, outside}, Case{u"5"_s, u"3"_s, backward},
          Case{u"1"_s, u""_s, backward}, Case{u"1"_s, u"0"_s, backward}, Case{u"7"_s, u"7"_s, {}},
          Case{u" 2.9 "_s, u"40x"_s, {}}}) {
        prompts.shown.clear();
        const auto order = chooseRange(from, to);
        SCOPED_TRACE(from.toStdString() + " to " + to.toStdString());
        EXPECT_EQ(order.has_value(), !box);
        EXPECT_EQ(stayedOpen, box.has_value());
        EXPECT_EQ(prompts.shown, box ? std::vector{*box} : std::vector<Box>{});
    }
    const auto order = chooseRange(u" 2.9 "_s, u"40x"_s);
    EXPECT_EQ(order->range.from, 2);
    EXPECT_EQ(order->range.to, 40);
}

TEST_F(PrintDialog, ExitAndTheCloseBoxPrintNothing) {
    EXPECT_FALSE(choose([&] { click(u"Command2"_s); }));
    EXPECT_FALSE(choose([&] { form.close(); }));
    EXPECT_FALSE(choose([&] { QTest::keyClick(&form, Qt::Key_Escape); }));
    EXPECT_EQ(form.property("tag"), u"X"_s);
}

TEST_F(PrintDialog, AChosenFileIsCounted) {
    fileDialogs.add(QString::fromStdString(puzzles()));
    const auto order = choose([&] {
        find<FNDialog>(u"gf1"_s).findChild<BoxControl*>()->click();
        EXPECT_EQ(find(u"FileNow"_s).text().toStdString(), puzzles());
        EXPECT_EQ(find(u"FileNow"_s).toolTip().toStdString(), puzzles());
        EXPECT_EQ(find(u"Text2"_s).text(), u"3"_s);
        click(u"Command1"_s);
    });
    const FileQuestion& asked = fileDialogs.asked.front();
    EXPECT_EQ(asked.title, u"Select a Puzzle file to print"_s);
    EXPECT_EQ(asked.kind, u"Tessaly Files (*.txt;*.dat)"_s);
    EXPECT_EQ(asked.folder.toStdString(), folder.path().string() + "/");
    ASSERT_TRUE(order);
    EXPECT_EQ(order->range.path, puzzles());
    EXPECT_EQ(order->range.to, 3);
}

TEST_F(PrintDialog, NoFileOrABadOneChangesNothing) {
    fileDialogs.add({});
    fileDialogs.add(QString::fromStdString(folder / "none.txt"));
    choose([&] {
        for (int turn = 0; turn < 2; ++turn) {
            find<FNDialog>(u"gf1"_s).findChild<BoxControl*>()->click();
            EXPECT_EQ(find(u"FileNow"_s).text(), u"/puzzles/mine.txt"_s);
            EXPECT_EQ(find(u"Text2"_s).text(), u"40"_s);
            EXPECT_EQ(prompts.shown.size(), static_cast<std::size_t>(turn));
        }
    });
    EXPECT_NE(prompts.shown.back().text.find("none.txt"), std::string::npos);
}

TEST_F(PrintDialog, RemembersThePrinterAndOffersPdfWhenThereIsNone) {
    printer = u"Laser"_s;
    EXPECT_EQ(choose([&] { click(u"Command1"_s); })->printer, u"Laser"_s);
    printer = QString();
    EXPECT_EQ(choose([&] { click(u"Command1"_s); })->printer, QString());
    printer.reset();
    printers.installed.clear();
    printers.usual.clear();
    const auto order = choose([&] {
        EXPECT_EQ(find<QComboBox>(u"Combo1"_s).count(), 1);
        QTest::mouseClick(form.findChild<QWidget*>(u"perPage_6"_s), Qt::LeftButton, {}, {8, 8});
        QTest::mouseClick(form.findChild<QWidget*>(u"withSolutions"_s), Qt::LeftButton, {}, {8, 8});
        click(u"Command1"_s);
    });
    EXPECT_EQ(order->printer, QString());
    EXPECT_EQ(order->range.puzzlesPerPage, 6);
    EXPECT_FALSE(order->range.solutions);
}

} // namespace
} // namespace tessaly
