#include "ui/options/options_dialog.h"

#include "ui/game_window.h"
#include "ui/options/colour_picker.h"
#include "ui/options/option_samples.h"

#include <QAccessible>
#include <QCheckBox>
#include <QGroupBox>
#include <QListWidget>
#include <QMenuBar>
#include <QSignalSpy>
#include <QSlider>

namespace tessaly::options_dialog_test {

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
    void clickAt(double x, double y, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(&surface, button, {}, surface.toWidget(x, y).toPoint());
    }
    void pickColour(int index) {
        const auto box = colour_surface::paletteBox(index);
        clickAt(box.left + 20, box.top + 100);
    }
    void expectPicked(Colour colour, Colour ramp) {
        EXPECT_EQ(picker.SelColor(), colour);
        EXPECT_EQ(surface.rampColour(), ramp);
        EXPECT_EQ(groundOf(tessaly::find(picker, u"Label1"_s)), colour);
        EXPECT_EQ(RGB(find<QSlider>(u"hsrRed"_s).value(), find<QSlider>(u"hsrGreen"_s).value(),
                      find<QLabel>(u"lblBlueDegree"_s).text().toInt()),
                  colour);
    }
    QString caption() { return find<QGroupBox>(u"Frame1"_s).title(); }
    QImage sample() { return find(u"sampleBoard"_s).grab().toImage(); }

    GameWindow game;
    Form2x& dialog = game.find<Form2x>(u"Form2x"_s);
    QListWidget& schemes = find<QListWidget>(u"List1"_s);
    ColPik& picker = find<ColPik>(u"ColPik1"_s);
    ColourSurfaceView& surface = find<ColourSurfaceView>(u"surface"_s);
    Appearance& settings = game.session.appearance;
};

TEST_F(OptionsDialog, ASchemeIsSeenInTheDialogFirstAndAfterApplyEverywhere) {
    const Appearance before = settings;
    const QImage board = game.picture();
    const QImage firstSample = sample();
    choose(schemes, 5);
    EXPECT_EQ(groundOf(dialog), RGB(236, 205, 211));
    EXPECT_NE(sample(), firstSample);
    find(u"Text3"_s).setFocus(); // the list has it again when the dialog opens anew
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_EQ(settings, before);
    EXPECT_EQ(game.picture(), board);
    open();
    EXPECT_EQ(sample(), firstSample) << "what was not applied is dropped";
    EXPECT_TRUE(schemes.hasFocus());
    game.press(Qt::Key_Down);
    EXPECT_EQ(caption(), u"Colour Scheme: daylight"_s);
    QTest::keyClick(&find(u"Command1"_s), Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(settings.ActiveScheme, "daylight.col");
    EXPECT_EQ(groundOf(*game.window), settings.SchemeColours[slot::Background]);
    const auto solution = [this] {
        QTest::mousePress(&game.find(u"cmdshowsol"_s), Qt::LeftButton);
        QImage shown = game.picture();
        QTest::mouseRelease(&game.find(u"cmdshowsol"_s), Qt::LeftButton);
        return shown;
    };
    game.load("easy.txt");
    const QImage daylight = game.picture();
    const QImage solutionInDaylight = solution();
    EXPECT_NE(daylight, board);
    EXPECT_TRUE(game.window->menuBar()->styleSheet().contains(
        toQColor(settings.SchemeColours[slot::Menu]).name()));
    open();
    click(u"cmddef"_s);
    EXPECT_EQ(settings.ActiveScheme, "xp.col") << "in force at once";
    click(u"Command2"_s);
    game.resize(game.window->size() + QSize(2, 2));
    game.resize(game.window->size() - QSize(2, 2));
    EXPECT_EQ(game.picture(), daylight) << "but seen only when it is applied";
    EXPECT_EQ(solution(), solutionInDaylight);
}

TEST_F(OptionsDialog, EachControlShowsOnTheSampleAndAppliedSurvivesARestart) {
    choose(schemes, 3);
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
    click(u"cmdcol_2"_s, Qt::RightButton);
    EXPECT_EQ(find<LineSample>(u"Line2"_s).lineWidth(), 3);
    for (const QString& box : {u"Check1"_s, u"Check2"_s}) {
        click(box);
        expectNewSample(box);
    }
    auto& fonts = find<QListWidget>(u"List2"_s);
    choose(fonts, 0);
    EXPECT_EQ(find(u"Label1"_s).font().family(), fonts.item(0)->text());
    find<QLineEdit>(u"Text3"_s).setText(u"3.5"_s);
    click(u"Command1"_s);
    game.prompts.answers = {answer::Yes};
    game.choose(u"cmdexit"_s);

    const Appearance applied = settings;
    game.restart();
    EXPECT_EQ(settings, applied);
    EXPECT_EQ(settings.ActiveScheme, "sand.col");
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
    EXPECT_TRUE(schemes.selectedItems().isEmpty());
    choose(schemes, 15);
    EXPECT_EQ(find<QSlider>(u"ContrastV"_s).value(), 100);
    QApplication::processEvents();
    EXPECT_EQ(dialog.width(), width) << "a long name must not widen the dialog";
    game.prompts.answers = {answer::Yes};
    click(u"DelSch"_s);
    EXPECT_EQ(schemes.count(), 15);
}

TEST_F(OptionsDialog, ColoursArePickedByMouseByBarsAndByKeys) {
    const QSignalSpy picked(&picker, &ColPik::picked);
    const Colour first = RGB(200, 100, 0);
    picker.setSelColor(first);
    clickAt(10 + 128, 1050);
    expectPicked(clrBlackness(first, 128), first); // a shade does not turn the ramps
    clickAt(105, 330);
    clickAt(40, 100, Qt::RightButton);
    expectPicked(ClassicPalette[5], ClassicPalette[5]);
    picker.setSchemeColor(RGB(7, 8, 9));
    clickAt(3, 500);
    expectPicked(RGB(7, 8, 9), RGB(7, 8, 9)); // the ground is no shade
    EXPECT_EQ(picked.back().front().value<Colour>(), RGB(7, 8, 9));
    QTest::keyClick(&find(u"hsrGreen"_s), Qt::Key_PageUp);
    expectPicked(RGB(7, 28, 9), RGB(7, 28, 9));
    EXPECT_EQ(picked.count(), 3);
    surface.setFocus();
    const QAccessibleInterface& spoken = *QAccessible::queryAccessibleInterface(&surface);
    QString heard;
    for (Qt::Key key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Space, Qt::Key_Down, Qt::Key_Down}) {
        QTest::keyClick(&surface, key);
        heard += spoken.focusChild()->text(QAccessible::Name) + u"; "_s;
        EXPECT_EQ(surface.place(),
                  colour_surface::placeAt(spoken.indexOfChild(spoken.focusChild())));
    }
    EXPECT_EQ(heard, u"maroon; purple; purple; blue; fuchsia; "_s);
    expectPicked(ClassicPalette[5], ClassicPalette[5]);
}

TEST(ColourSurfaceView, ShowsWhatItPicksAtEverySize) {
    const Colour ramp = RGB(250, 120, 60);
    ColourSurfaceView surface;
    surface.setRampColour(ramp);
    for (const QSize size : {surface.sizeHint(), surface.sizeHint() * 3}) {
        surface.setFixedSize(size);
        const QImage image = surface.grab().toImage();
        for (double y = 40; y < 1370; y += 45)
            for (double x = 14.4; x < 266; x += 5) {
                const Colour shown = toColour(image.pixelColor(surface.toWidget(x, y).toPoint()));
                const Colour picked = colour_surface::colourAt(x, y, ramp, White);
                EXPECT_TRUE(shown == picked || picked == White) << x << " " << y;
            }
    }
}

} // namespace tessaly::options_dialog_test
