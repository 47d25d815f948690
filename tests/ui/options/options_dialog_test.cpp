#include "ui/options/options_dialog.h"

#include "ui/game_window.h"
#include "ui/options/colour_picker.h"
#include "ui/options/option_samples.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QListWidget>
#include <QMenuBar>
#include <QSlider>

namespace tessaly {
namespace {

struct OptionsDialog : testing::Test {
    OptionsDialog() { open(); }

    void open() {
        game.choose(u"mnuopts"_s);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
    }
    template <class Widget = QWidget>
    Widget& find(const QString& name) {
        return tessaly::find<Widget>(dialog, name);
    }
    void click(const QString& name, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(&find(name), button);
    }
    void choose(QListWidget& list, int row) {
        list.scrollToItem(list.item(row));
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                          list.visualItemRect(list.item(row)).center());
    }
    void chooseScheme(const QString& name) {
        choose(schemes, schemes.row(schemes.findItems(name, Qt::MatchExactly).value(0)));
        EXPECT_EQ(caption(), u"Colour Scheme: "_s + name);
    }
    void pickColour(int index) {
        auto& surface = find<ColourSurfaceView>(u"surface"_s);
        const auto box = colour_surface::paletteBox(index);
        QTest::mouseClick(&surface, Qt::LeftButton, {},
                          surface.toWidget(box.left + 20, box.top + 100).toPoint());
    }
    QString caption() { return find<QGroupBox>(u"Frame1"_s).title(); }
    QImage sample() { return find(u"sampleBoard"_s).grab().toImage(); }

    GameWindow game;
    Form2x& dialog = game.find<Form2x>(u"Form2x"_s);
    QListWidget& schemes = find<QListWidget>(u"List1"_s);
    Appearance& settings = game.session.appearance;
};

TEST_F(OptionsDialog, ASchemeIsSeenInTheDialogFirstAndAfterApplyEverywhere) {
    const Appearance before = settings;
    const QImage board = game.picture();
    const QImage firstSample = sample();
    EXPECT_EQ(find<QLineEdit>(u"Text3"_s).text(), u"2"_s);
    EXPECT_EQ(find<ColPik>(u"ColPik1"_s).SelColor(), settings.SchemeColours[slot::Background]);
    const std::function<void()> ways[] = {[&] { click(u"Command2"_s); },
                                          [&] { QTest::keyClick(&dialog, Qt::Key_Escape); }};
    for (const auto& leave : ways) {
        chooseScheme(u"rose"_s);
        EXPECT_EQ(groundOf(dialog), RGB(236, 205, 211));
        EXPECT_EQ(groundOf(find(u"Frame7"_s)), RGB(236, 205, 211));
        EXPECT_NE(sample(), firstSample);
        leave();
        EXPECT_FALSE(dialog.isVisible());
        EXPECT_EQ(settings, before);
        EXPECT_EQ(game.picture(), board);
        open();
        EXPECT_EQ(caption(), u"Colour Scheme: xp"_s) << "what was not applied is dropped";
        EXPECT_EQ(sample(), firstSample);
    }
    EXPECT_TRUE(schemes.hasFocus());
    game.press(Qt::Key_Down);
    EXPECT_EQ(caption(), u"Colour Scheme: daylight"_s);
    QTest::keyClick(&find(u"Command1"_s), Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(settings.ActiveScheme, "daylight.col");
    EXPECT_EQ(groundOf(*game.window), settings.SchemeColours[slot::Background]);
    EXPECT_NE(game.picture(), board);
    EXPECT_TRUE(game.window->menuBar()->styleSheet().contains(
        toQColor(settings.SchemeColours[slot::Menu]).name()));
}

TEST_F(OptionsDialog, EachControlShowsOnTheSampleAndAppliedSurvivesARestart) {
    chooseScheme(u"sand"_s);
    QList<QImage> samples{sample()};
    const auto expectNewSample = [&](const QString& what) {
        EXPECT_FALSE(samples.contains(sample())) << what.toStdString();
        samples << sample();
    };
    for (const auto& [colour, button] : {std::pair{9, u"cmdcol_0"_s},
                                         {2, u"cmdcol_3"_s},
                                         {14, u"cmdcol_1"_s},
                                         {12, u"cmdcol_2"_s}}) {
        pickColour(colour);
        click(button);
        expectNewSample(button);
    }
    EXPECT_EQ(toColour(find(u"Label1"_s).palette().windowText().color()), ClassicPalette[9]);
    EXPECT_EQ(toColour(find(u"Label2"_s).palette().windowText().color()), ClassicPalette[2]);
    EXPECT_EQ(toColour(find<FillSample>(u"Shape1"_s).fill()), ClassicPalette[14]);
    EXPECT_EQ(toColour(find<LineSample>(u"Line2"_s).colour()), ClassicPalette[12]);
    for (int width : {3, 4, 5}) {
        click(u"cmdcol_2"_s, Qt::RightButton);
        EXPECT_EQ(find<LineSample>(u"Line2"_s).lineWidth(), width);
    }
    expectNewSample(u"width"_s);
    for (const QString& box : {u"Check1"_s, u"Check2"_s}) {
        click(box);
        expectNewSample(box);
    }
    auto& fonts = find<QListWidget>(u"List2"_s);
    choose(fonts, 0);
    EXPECT_EQ(find(u"Label1"_s).font().family(), fonts.item(0)->text());
    find<QLineEdit>(u"Text3"_s).selectAll();
    QTest::keyClicks(&find(u"Text3"_s), u"3.5"_s);
    click(u"Command1"_s);
    game.prompts.answers = {answer::Yes};
    game.choose(u"cmdexit"_s);

    const Appearance applied = settings;
    game.restart();
    EXPECT_EQ(settings, applied);
    EXPECT_EQ(settings.ActiveScheme, "sand.col");
    EXPECT_EQ(settings.HexaFillColour, ClassicPalette[14]);
    EXPECT_EQ(settings.PrintLineWidth, 4);
    EXPECT_TRUE(settings.SplitHexas && settings.NumBorder);
}

TEST_F(OptionsDialog, ContrastAndSelectorMakeASchemeThatIsStoredAppliedAndDeleted) {
    pickColour(14);
    find<QSlider>(u"ContrastV"_s).setSliderPosition(50);
    EXPECT_EQ(groundOf(dialog), ClassicPalette[14]);
    pickColour(11);
    click(u"ShowSch"_s);
    EXPECT_EQ(groundOf(dialog), ClassicPalette[11]);
    game.prompts.lines = {"My & <b>Sea</b>; " + std::string(300, 'n')};
    const int width = dialog.width();
    click(u"AddSch"_s);
    EXPECT_EQ(schemes.count(), 16);
    EXPECT_TRUE(schemes.selectedItems().isEmpty());
    choose(schemes, 15);
    EXPECT_EQ(find<QSlider>(u"ContrastV"_s).value(), 100);
    QApplication::processEvents();
    EXPECT_EQ(dialog.width(), width) << "a long name must not widen the dialog";
    click(u"Command1"_s);
    EXPECT_EQ(groundOf(*game.window), ClassicPalette[11]);
    open();
    choose(schemes, 15);
    game.prompts.answers = {answer::Yes};
    click(u"DelSch"_s);
    EXPECT_EQ(schemes.count(), 15);
    click(u"Command1"_s);
    EXPECT_TRUE(game.lastPrompt().text.ends_with(" not found")) << "the one in force";
}

TEST_F(OptionsDialog, DefaultIsInForceAtOnceButSeenAfterApply) {
    chooseScheme(u"night"_s);
    click(u"Command1"_s);
    const QImage night = game.picture();
    open();
    click(u"cmddef"_s);
    EXPECT_EQ(caption(), u"Colour Scheme: xp"_s);
    EXPECT_EQ(settings.ActiveScheme, "xp.col");
    click(u"Command2"_s);
    game.resize(game.window->size() + QSize(2, 2));
    game.resize(game.window->size() - QSize(2, 2));
    EXPECT_EQ(game.picture(), night);
    open();
    click(u"Command1"_s);
    EXPECT_NE(game.picture(), night);
}

} // namespace
} // namespace tessaly
