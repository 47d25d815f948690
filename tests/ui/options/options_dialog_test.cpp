#include "ui/options/options_dialog.h"

#include "core/session/configuration.h"
#include "ui/drawing/qt_values.h"
#include "ui/game_window.h"
#include "ui/options/colour_picker.h"
#include "ui/options/option_samples.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QSlider>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

class OptionsDialog : public testing::Test {
protected:
    OptionsDialog() { open(); }

    void open() {
        game.find<QAction>(u"mnuopts"_s).trigger();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
    }

    template <class Widget = QWidget>
    Widget& find(const char16_t* name) {
        auto* found = dialog.findChild<Widget*>(QString::fromUtf16(name));
        if (found == nullptr)
            throw std::runtime_error("no such control");
        return *found;
    }
    void click(const char16_t* name, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(&find(name), button);
    }
    void choose(const char16_t* list, int row) {
        auto& widget = find<QListWidget>(list);
        QListWidgetItem* item = widget.item(row);
        widget.scrollToItem(item);
        QTest::mouseClick(widget.viewport(), Qt::LeftButton, {},
                          widget.visualItemRect(item).center());
    }
    void chooseScheme(const QString& name) {
        auto& list = find<QListWidget>(u"List1");
        const auto found = list.findItems(name, Qt::MatchExactly);
        ASSERT_FALSE(found.isEmpty()) << name.toStdString();
        choose(u"List1", list.row(found.front()));
    }
    void pickColour(int index) {
        auto& surface = find<ColourSurfaceView>(u"surface");
        const auto box = colour_surface::paletteBox(index);
        QTest::mouseClick(&surface, Qt::LeftButton, {},
                          surface.toWidget(box.left + 20, box.top + 100).toPoint());
    }

    Colour groundOf(QWidget& widget) { return toColour(widget.palette().window().color()); }
    QString caption() { return find<QGroupBox>(u"Frame1").title(); }
    QImage sample() { return find(u"sampleBoard").grab().toImage(); }
    QImage boardPicture() { return game.board().grab().toImage(); }
    Appearance& settings() { return game.session.appearance; }

    GameWindow game;
    Form2x& dialog = game.find<Form2x>(u"Form2x"_s);
};

TEST_F(OptionsDialog, ASchemeIsSeenInTheDialogFirstAndAfterApplyEverywhere) {
    const Appearance before = settings();
    const QImage board = boardPicture();
    const QImage firstSample = sample();
    EXPECT_EQ(caption(), u"Colour Scheme: xp");
    EXPECT_EQ(find<QLineEdit>(u"Text3").text(), u"2");
    EXPECT_EQ(find<ColPik>(u"ColPik1").SelColor(), settings().SchemeColours[slot::Background]);
    for (const bool byEscape : {false, true}) {
        chooseScheme(u"rose"_s);
        EXPECT_EQ(caption(), u"Colour Scheme: rose");
        EXPECT_EQ(groundOf(dialog), RGB(236, 205, 211));
        EXPECT_EQ(groundOf(find(u"Frame7")), RGB(236, 205, 211));
        EXPECT_NE(sample(), firstSample);
        if (byEscape)
            QTest::keyClick(&dialog, Qt::Key_Escape);
        else
            click(u"Command2");
        EXPECT_FALSE(dialog.isVisible());
        EXPECT_EQ(settings(), before);
        EXPECT_EQ(boardPicture(), board);
        open();
        EXPECT_EQ(caption(), u"Colour Scheme: xp") << "what was not applied is dropped";
        EXPECT_EQ(sample(), firstSample);
    }
    chooseScheme(u"rose"_s);
    click(u"Command1");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(groundOf(*game.window), RGB(236, 205, 211));
    EXPECT_NE(boardPicture(), board);
    const QColor menu = toQColor(settings().SchemeColours[slot::Menu]);
    EXPECT_TRUE(game.window->menuBar()->styleSheet().contains(menu.name()));
}

TEST_F(OptionsDialog, EachControlShowsOnTheSampleAndAppliedSurvivesARestart) {
    chooseScheme(u"sand"_s);
    QList<QImage> samples{sample()};
    const auto expectNewSample = [&](const char* what) {
        EXPECT_FALSE(samples.contains(sample())) << what;
        samples << sample();
    };
    for (const auto& [colour, button] :
         {std::pair{9, u"cmdcol_0"}, {2, u"cmdcol_3"}, {14, u"cmdcol_1"}, {12, u"cmdcol_2"}}) {
        pickColour(colour);
        click(button);
        expectNewSample("a colour");
    }
    EXPECT_EQ(toColour(find(u"Label1").palette().windowText().color()), ClassicPalette[9]);
    EXPECT_EQ(toColour(find(u"Label2").palette().windowText().color()), ClassicPalette[2]);
    EXPECT_EQ(toColour(find<FillSample>(u"Shape1").fill()), ClassicPalette[14]);
    EXPECT_EQ(toColour(find<LineSample>(u"Line2").colour()), ClassicPalette[12]);
    for (int width : {3, 4, 5}) {
        click(u"cmdcol_2", Qt::RightButton);
        EXPECT_EQ(find<LineSample>(u"Line2").lineWidth(), width);
    }
    expectNewSample("width");
    click(u"Check1");
    expectNewSample("number borders");
    click(u"Check2");
    expectNewSample("spaced hexagons");
    choose(u"List2", 0);
    EXPECT_EQ(find(u"Label1").font().family(), find<QListWidget>(u"List2").item(0)->text());
    auto& printLine = find<QLineEdit>(u"Text3");
    printLine.selectAll();
    QTest::keyClicks(&printLine, u"3.5"_s);
    click(u"Command1");
    game.prompts.answers = {answer::Yes};
    game.find<QAction>(u"cmdexit"_s).trigger();

    Session next;
    next.ProgramFolder = game.session.ProgramFolder;
    ASSERT_TRUE(loadSession(next).outcome.ok());
    EXPECT_EQ(next.appearance, settings());
    EXPECT_EQ(next.appearance.ActiveScheme, "sand.col");
    EXPECT_EQ(next.appearance.HexaFillColour, ClassicPalette[14]);
    EXPECT_EQ(next.appearance.PrintLineWidth, 4);
    EXPECT_TRUE(next.appearance.SplitHexas && next.appearance.NumBorder);
}

TEST_F(OptionsDialog, ContrastAndSelectorMakeASchemeThatIsStoredAppliedAndDeleted) {
    auto& schemes = find<QListWidget>(u"List1");
    pickColour(14);
    find<QSlider>(u"ContrastV").setSliderPosition(50);
    EXPECT_EQ(groundOf(dialog), ClassicPalette[14]);
    pickColour(11);
    click(u"ShowSch");
    EXPECT_EQ(groundOf(dialog), ClassicPalette[11]);
    game.prompts.lines = {"My & <b>Sea</b>; " + std::string(300, 'n')};
    const int width = dialog.width();
    click(u"AddSch");
    EXPECT_EQ(schemes.count(), 16);
    EXPECT_TRUE(schemes.selectedItems().isEmpty());
    choose(u"List1", 15);
    EXPECT_EQ(find<QSlider>(u"ContrastV").value(), 100);
    QApplication::processEvents();
    EXPECT_EQ(dialog.width(), width) << "a long name must not widen the dialog";
    click(u"Command1");
    EXPECT_EQ(groundOf(*game.window), ClassicPalette[11]);
    open();
    choose(u"List1", 15);
    game.prompts.answers = {answer::Yes};
    click(u"DelSch");
    EXPECT_EQ(schemes.count(), 15);
    click(u"Command1");
    EXPECT_TRUE(game.prompts.shown.back().text.ends_with(" not found")) << "the one in force";
    EXPECT_EQ(settings().ActiveScheme, "default.col");
}

TEST_F(OptionsDialog, DefaultIsInForceAtOnceButSeenAfterApply) {
    chooseScheme(u"night"_s);
    click(u"Command1");
    const QImage night = boardPicture();
    open();
    click(u"cmddef");
    EXPECT_EQ(caption(), u"Colour Scheme: xp");
    EXPECT_EQ(settings().ActiveScheme, "xp.col");
    click(u"Command2");
    game.window->resize(game.window->size() + QSize(2, 2));
    game.window->resize(game.window->size() - QSize(2, 2));
    EXPECT_EQ(boardPicture(), night);
    open();
    click(u"Command1");
    EXPECT_NE(boardPicture(), night);
    EXPECT_EQ(groundOf(*game.window), settings().SchemeColours[slot::Background]);
}

TEST_F(OptionsDialog, WorksByKeysAlone) {
    EXPECT_TRUE(find(u"List1").hasFocus());
    QTest::keyClick(&find(u"List1"), Qt::Key_Down);
    EXPECT_EQ(caption(), u"Colour Scheme: daylight");
    QSet<QWidget*> reached;
    for (int tabs = 0; tabs < 60; ++tabs) {
        reached << QApplication::focusWidget();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    for (const char16_t* name :
         {u"List1",    u"List2",  u"ContrastV", u"ShowSch", u"AddSch",   u"RepSch",   u"DelSch",
          u"surface",  u"hsrRed", u"hsrGreen",  u"hsrBlue", u"cmdcol_0", u"cmdcol_1", u"cmdcol_2",
          u"cmdcol_3", u"Check1", u"Check2",    u"Text3",   u"cmddef",   u"Command1", u"Command2"})
        EXPECT_TRUE(reached.contains(&find(name))) << QString::fromUtf16(name).toStdString();
    find(u"Command1").setFocus();
    QTest::keyClick(&find(u"Command1"), Qt::Key_Return);
    EXPECT_EQ(settings().ActiveScheme, "daylight.col");
}

} // namespace
} // namespace tessaly
