#include "ui/options/options_dialog.h"

#include "core/options/appearance.h"
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

    void choose(const char16_t* list, const QString& entry) {
        auto& widget = find<QListWidget>(list);
        QListWidgetItem* item = widget.findItems(entry, Qt::MatchExactly).value(0);
        ASSERT_NE(item, nullptr) << entry.toStdString();
        widget.scrollToItem(item);
        QTest::mouseClick(widget.viewport(), Qt::LeftButton, {},
                          widget.visualItemRect(item).center());
    }

    void pickColour(int index) {
        auto& surface = find<ColourSurfaceView>(u"surface");
        const auto box = colour_surface::paletteBox(index);
        QTest::mouseClick(&surface, Qt::LeftButton, {},
                          surface.toWidget(box.left + 20, box.top + 100).toPoint());
    }

    void drag(const char16_t* slider, int value) { find<QSlider>(slider).setSliderPosition(value); }

    Colour textOf(const char16_t* label) {
        return toColour(find<QLabel>(label).palette().color(QPalette::WindowText));
    }
    Colour groundOf(QWidget& widget) { return toColour(widget.palette().color(QPalette::Window)); }
    QString caption() { return find<QGroupBox>(u"Frame1").title(); }
    Colour fillSample() { return toColour(find<FillSample>(u"Shape1").fill()); }
    LineSample& borderSample() { return find<LineSample>(u"Line2"); }
    Appearance& settings() { return game.session.appearance; }
    QImage boardPicture() { return game.board().grab().toImage(); }

    GameWindow game;
    Form2x& dialog = game.find<Form2x>(u"Form2x"_s);
};

TEST_F(OptionsDialog, ShowsTheSettingsUnderTheFixedNamesAndTexts) {
    EXPECT_TRUE(dialog.isModal());
    EXPECT_EQ(dialog.windowTitle(), u"Tessaly Options"_s);
    const std::vector<std::pair<const char16_t*, QString>> frames{
        {u"Frame1", u"Colour Scheme: xp"_s}, {u"Frame2", u"Num Border"_s},
        {u"Frame3", u"Split Hexas"_s},       {u"Frame6", u"Print Line"_s},
        {u"Frame7", u"Colour Selector"_s},   {u"Frame12", u"Fonts"_s}};
    for (const auto& [name, title] : frames)
        EXPECT_EQ(find<QGroupBox>(name).title(), title);
    const std::vector<std::pair<const char16_t*, QString>> toolTips{
        {u"Frame3", u"Display spaced hexagons"_s},
        {u"Frame2", u"Draw border around number in the centre of a hexagon"_s},
        {u"Frame6", u"Size of the border lines in printed puzzles"_s},
        {u"cmdcol_0", u"Left click to set number colour; click colour selector first"_s},
        {u"cmdcol_1", u"Left click to set hexagon fill colour; click colour selector first"_s},
        {u"cmdcol_2", u"Left click to set border colour; right click to set border width"_s},
        {u"cmdcol_3", u"Left click to set number colour; click colour selector first"_s},
        {u"ShowSch", u"View current color setting"_s},
        {u"RepSch", u"Replace the current color scheme"_s},
        {u"DelSch", u"Delete the color scheme"_s},
        {u"AddSch", u"Add this color scheme"_s}};
    for (const auto& [name, text] : toolTips)
        EXPECT_EQ(find(name).toolTip(), text);
    EXPECT_EQ(find<QLineEdit>(u"Text3").text(), u"2"_s);
    EXPECT_EQ(textOf(u"Label1"), settings().FixedNumberColour);
    EXPECT_EQ(textOf(u"Label2"), settings().UserNumberColour);
    EXPECT_EQ(fillSample(), settings().HexaFillColour);
    EXPECT_EQ(borderSample().lineWidth(), 2);
    EXPECT_EQ(find<QListWidget>(u"List1").count(), 15);
    EXPECT_TRUE(find<QListWidget>(u"List1").selectedItems().isEmpty());
    EXPECT_EQ(find<ColPik>(u"ColPik1").SelColor(), settings().SchemeColours[slot::Background]);
}

TEST_F(OptionsDialog, ASchemeIsSeenInTheDialogFirstAndAfterApplyEverywhere) {
    const QImage before = boardPicture();
    const Colour old = groundOf(*game.window);
    const QImage sample = find(u"sampleBoard").grab().toImage();
    choose(u"List1", u"rose"_s);
    EXPECT_EQ(caption(), u"Colour Scheme: rose"_s);
    EXPECT_EQ(groundOf(dialog), RGB(236, 205, 211));
    EXPECT_EQ(groundOf(find(u"Frame7")), RGB(236, 205, 211));
    EXPECT_EQ(fillSample(), RGB(236, 205, 211));
    EXPECT_NE(find(u"sampleBoard").grab().toImage(), sample);
    EXPECT_EQ(groundOf(*game.window), old);
    EXPECT_EQ(boardPicture(), before);
    click(u"Command1");
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(settings().ActiveScheme, "rose.col");
    EXPECT_EQ(groundOf(*game.window), RGB(236, 205, 211));
    EXPECT_NE(boardPicture(), before);
    const Colour menu = settings().SchemeColours[slot::Menu];
    EXPECT_TRUE(game.window->menuBar()->styleSheet().contains(toQColor(menu).name()));
    EXPECT_EQ(caption(), u"Colour Scheme: rose"_s);
}

TEST_F(OptionsDialog, ExitDropsWhatWasNotApplied) {
    const Appearance before = settings();
    const QImage board = boardPicture();
    for (const bool byEscape : {false, true}) {
        choose(u"List1", u"night"_s);
        pickColour(12);
        click(u"cmdcol_0");
        click(u"Check1");
        find<QLineEdit>(u"Text3").setText(u"7"_s);
        if (byEscape)
            QTest::keyClick(&dialog, Qt::Key_Escape);
        else
            click(u"Command2");
        EXPECT_FALSE(dialog.isVisible());
        EXPECT_EQ(settings(), before);
        EXPECT_EQ(boardPicture(), board);
        open();
        EXPECT_EQ(caption(), u"Colour Scheme: xp"_s);
        EXPECT_EQ(textOf(u"Label1"), before.FixedNumberColour);
        EXPECT_EQ(find<QLineEdit>(u"Text3").text(), u"2"_s);
    }
}

TEST_F(OptionsDialog, SamplesTakeThePickedColourAndEveryOneShowsOnTheLiveBoard) {
    QImage last = find(u"sampleBoard").grab().toImage();
    const auto expectNewSample = [&](const char* what) {
        const QImage now = find(u"sampleBoard").grab().toImage();
        EXPECT_NE(now, last) << what;
        last = now;
    };
    pickColour(9);
    click(u"cmdcol_0");
    EXPECT_EQ(textOf(u"Label1"), ClassicPalette[9]);
    expectNewSample("givens");
    pickColour(2);
    click(u"cmdcol_3");
    EXPECT_EQ(textOf(u"Label2"), ClassicPalette[2]);
    expectNewSample("numbers");
    pickColour(14);
    click(u"cmdcol_1");
    EXPECT_EQ(fillSample(), ClassicPalette[14]);
    expectNewSample("fill");
    pickColour(12);
    click(u"cmdcol_2");
    EXPECT_EQ(toColour(borderSample().colour()), ClassicPalette[12]);
    expectNewSample("border");
    for (int width : {3, 4, 5, 1, 2}) {
        click(u"cmdcol_2", Qt::RightButton);
        EXPECT_EQ(borderSample().lineWidth(), width);
    }
    for (int clicks = 0; clicks < 3; ++clicks)
        click(u"cmdcol_2", Qt::RightButton);
    expectNewSample("width");
    click(u"Check1");
    expectNewSample("number borders");
    click(u"Check2");
    expectNewSample("spaced hexagons");
    auto& fonts = find<QListWidget>(u"List2");
    choose(u"List2", fonts.item(0)->text());
    EXPECT_EQ(find<QLabel>(u"Label1").font().family(), fonts.item(0)->text());
    EXPECT_EQ(find<QLabel>(u"Label2").font().pointSize(), 18);
}

TEST_F(OptionsDialog, AppliedSettingsShowOnTheBoardAndSurviveARestart) {
    const QImage before = boardPicture();
    choose(u"List1", u"sand"_s);
    pickColour(9);
    click(u"cmdcol_3");
    click(u"cmdcol_2", Qt::RightButton);
    click(u"Check1");
    click(u"Check2");
    auto& printLine = find<QLineEdit>(u"Text3");
    printLine.selectAll();
    QTest::keyClicks(&printLine, u"3.5"_s);
    click(u"Command1");
    EXPECT_NE(boardPicture(), before);
    game.prompts.answers = {answer::Yes};
    game.find<QAction>(u"cmdexit"_s).trigger();

    Session next;
    next.ProgramFolder = game.session.ProgramFolder;
    ASSERT_TRUE(loadSession(next).outcome.ok());
    EXPECT_EQ(next.appearance.ActiveScheme, "sand.col");
    EXPECT_EQ(next.appearance.UserNumberColour, ClassicPalette[9]);
    EXPECT_EQ(next.appearance.HexaFillColour, next.appearance.SchemeColours[slot::Background]);
    EXPECT_EQ(next.appearance.HexaBorderWidth, 3);
    EXPECT_EQ(next.appearance.PrintLineWidth, 4);
    EXPECT_TRUE(next.appearance.SplitHexas && next.appearance.NumBorder);
    EXPECT_EQ(next.appearance, settings());
}

TEST_F(OptionsDialog, DefaultIsInForceAtOnceButSeenAfterApply) {
    choose(u"List1", u"night"_s);
    click(u"Command1");
    const QImage night = boardPicture();
    open();
    click(u"cmddef");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(caption(), u"Colour Scheme: xp"_s);
    EXPECT_EQ(settings().ActiveScheme, "xp.col");
    EXPECT_EQ(fillSample(), settings().SchemeColours[slot::Button]);
    click(u"Command2");
    EXPECT_EQ(settings().ActiveScheme, "xp.col");
    game.window->resize(game.window->size() + QSize(2, 2));
    game.window->resize(game.window->size() - QSize(2, 2));
    EXPECT_EQ(boardPicture(), night);
    open();
    click(u"Command1");
    EXPECT_NE(boardPicture(), night);
    EXPECT_EQ(groundOf(*game.window), settings().SchemeColours[slot::Background]);
}

TEST_F(OptionsDialog, ContrastAndSelectorMakeASchemeThatIsOnlySeen) {
    pickColour(14);
    drag(u"ContrastV", 50);
    SchemeColours expected{};
    BuildScheme(ClassicPalette[14], 50, expected);
    EXPECT_EQ(groundOf(dialog), ClassicPalette[14]);
    EXPECT_EQ(toColour(find(u"Command1").palette().color(QPalette::Button)),
              expected[slot::Button]);
    pickColour(10);
    click(u"ShowSch");
    EXPECT_EQ(groundOf(dialog), ClassicPalette[10]);
    choose(u"List1", u"sky"_s);
    EXPECT_EQ(find<QSlider>(u"ContrastV").value(), 100);
    open();
    click(u"ShowSch");
    const Colour xp = settings().SchemeColours[slot::Background];
    click(u"Command1");
    EXPECT_EQ(settings().ActiveScheme, "xp.col");
    EXPECT_EQ(groundOf(*game.window), xp);
}

TEST_F(OptionsDialog, ASchemeIsStoredAppliedAndDeleted) {
    auto& schemes = find<QListWidget>(u"List1");
    click(u"DelSch");
    EXPECT_EQ(game.prompts.shown.back().text, "Select a colour scheme to delete");
    pickColour(11);
    click(u"ShowSch");
    game.prompts.lines = {"My & <b>Sea</b>; " + std::string(300, 'n')};
    const int width = dialog.width();
    click(u"AddSch");
    EXPECT_EQ(schemes.count(), 16);
    EXPECT_TRUE(schemes.selectedItems().isEmpty());
    choose(u"List1", schemes.item(15)->text());
    QApplication::processEvents();
    EXPECT_EQ(dialog.width(), width) << "a long name must not widen the dialog";
    click(u"Command1");
    EXPECT_EQ(groundOf(*game.window), ClassicPalette[11]);
    open();
    choose(u"List1", schemes.item(15)->text());
    game.prompts.answers = {answer::Yes};
    click(u"DelSch");
    EXPECT_EQ(schemes.count(), 15);
    game.prompts.shown.clear();
    click(u"Command1");
    ASSERT_EQ(game.prompts.shown.size(), 1U) << "the scheme in force is gone";
    EXPECT_TRUE(game.prompts.shown.front().text.ends_with(" not found"));
    EXPECT_EQ(settings().ActiveScheme, "default.col");
}

TEST_F(OptionsDialog, WorksByKeysAlone) {
    EXPECT_TRUE(find(u"List1").hasFocus());
    QTest::keyClick(&find(u"List1"), Qt::Key_Down);
    EXPECT_EQ(caption(), u"Colour Scheme: daylight"_s);
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
