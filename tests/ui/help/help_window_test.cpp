#include "ui/help/help_window.h"

#include "ui/controls/box_control.h"
#include "ui/drawing/qt_values.h"
#include "ui/game_window.h"
#include "ui/help/about_box.h"

#include <gtest/gtest.h>

#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBlock>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

class HelpWindow : public testing::Test {
protected:
    void open() {
        game.find<QAction>(u"mnuhelp"_s).trigger();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&help));
    }
    void putPage(const char* body) {
        test::put(page, std::string("<html><body>") + body + "</body></html>");
    }
    BoxControl& button(const QString& name) { return *help.findChild<BoxControl*>(name); }
    void press(const QString& name) { QTest::mouseClick(&button(name), Qt::LeftButton); }
    /// Clicks the first link whose text is `text`.
    void follow(const QString& text) {
        QTextCursor cursor = browser.document()->find(text);
        ASSERT_FALSE(cursor.isNull());
        cursor.setPosition(cursor.selectionStart() + 1);
        const QPoint place = browser.cursorRect(cursor).center();
        QTest::mouseClick(browser.viewport(), Qt::LeftButton, {}, place);
    }
    QString at() const { return browser.source().fragment(); }

    GameWindow game;
    std::string page = game.folder.path() + "tessaly.htm";
    Form4& help = game.find<Form4>(u"Form4"_s);
    HelpBrowser& browser = *help.findChild<HelpBrowser*>(u"WebBrowser1"_s);
};

constexpr auto TwoPlaces = "<p><a href='#one'>First</a> and <a href='#two'>second</a></p>"
                           "<h2 id='one'>One</h2><p>text</p><h2 id='two'>Two</h2>";

TEST_F(HelpWindow, BackAndForwardActAtAnchorsOnly) {
    putPage(TwoPlaces);
    open();
    EXPECT_EQ(help.windowTitle(), u"Tessaly Help"_s);
    EXPECT_TRUE(help.isModal());
    const QUrl whole = QUrl::fromLocalFile(QString::fromStdString(page));
    EXPECT_EQ(browser.source(), whole);
    press(u"Command1"_s);
    press(u"Command2"_s);
    EXPECT_EQ(browser.source(), whole);

    follow(u"First"_s);
    ASSERT_EQ(at(), u"one"_s);
    EXPECT_EQ(browser.source().adjusted(QUrl::RemoveFragment), whole) << "a full address";
    press(u"Command2"_s);
    EXPECT_EQ(at(), u"one"_s) << "there is nothing ahead";
    follow(u"second"_s);
    ASSERT_EQ(at(), u"two"_s);
    press(u"Command1"_s);
    EXPECT_EQ(at(), u"one"_s);
    press(u"Command2"_s);
    EXPECT_EQ(at(), u"two"_s);
    press(u"Command1"_s);
    press(u"Command1"_s);
    EXPECT_EQ(browser.source(), whole);

    // On the page without an anchor both do nothing, although there is a way ahead.
    EXPECT_TRUE(browser.isForwardAvailable());
    press(u"Command2"_s);
    EXPECT_EQ(browser.source(), whole);
    EXPECT_FALSE(browser.document()->isEmpty());
}

TEST_F(HelpWindow, ExitHidesItAndOpeningItAgainStartsThePageAnew) {
    putPage(TwoPlaces);
    open();
    follow(u"second"_s);
    press(u"Command3"_s);
    EXPECT_FALSE(help.isVisible());
    EXPECT_EQ(at(), u"two"_s) << "the last page is kept while it is hidden";
    open();
    EXPECT_EQ(at(), QString());
    QTest::keyClick(&help, Qt::Key_Escape);
    EXPECT_FALSE(help.isVisible());
}

TEST_F(HelpWindow, TheBrowserGrowsWithTheWindow) {
    putPage(TwoPlaces);
    open();
    for (const QSize size : {QSize(500, 400), QSize(900, 700)}) {
        help.resize(size);
        const QPoint corner = browser.pos();
        EXPECT_EQ(browser.width(), size.width() - 8);
        EXPECT_EQ(browser.height(), size.height() - 32 - corner.y());
        EXPECT_FALSE(browser.geometry().intersects(button(u"Command1"_s).geometry()));
        EXPECT_TRUE(help.rect().contains(button(u"Command3"_s).geometry()));
    }
}

TEST_F(HelpWindow, WearsTheSchemeInForceEachTime) {
    putPage(TwoPlaces);
    const auto linkColour = [this] {
        return browser.document()->begin().begin().fragment().charFormat().foreground().color();
    };
    for (const Colour ground : {RGB(240, 240, 240), RGB(20, 24, 30)}) {
        game.session.appearance.SchemeColours[slot::Background] = ground;
        game.session.appearance.SchemeColours[slot::Button] = RGB(10, 200, 30);
        open();
        EXPECT_EQ(button(u"Command2"_s).faceColour(), QColor(10, 200, 30));
        EXPECT_EQ(browser.palette().color(QPalette::Base), toQColor(ground));
        EXPECT_GE(contrastRatio(toColour(browser.palette().color(QPalette::Text)), ground), 7);
        EXPECT_GE(contrastRatio(toColour(linkColour()), ground), 4.5);
        help.hide();
    }
}

TEST_F(HelpWindow, AMissingPageIsSaidByTheBrowser) {
    open();
    EXPECT_TRUE(browser.toPlainText().contains(u"not found"_s));
    EXPECT_TRUE(browser.toPlainText().contains(QString::fromStdString(page)));
}

TEST_F(HelpWindow, TheRealPageShowsItsDrawingsInTheirSize) {
    std::filesystem::copy(TESSALY_DATA "/tessaly.htm", page);
    std::filesystem::copy(TESSALY_DATA "/manual", game.folder.path() + "manual");
    open();
    const auto picture = browser.document()
                             ->resource(QTextDocument::ImageResource, QUrl(u"manual/rule-3.png"_s))
                             .value<QImage>();
    EXPECT_EQ(picture.deviceIndependentSize(), QSizeF(136, 116));
    EXPECT_EQ(picture.devicePixelRatio(), browser.devicePixelRatioF());
    EXPECT_TRUE(browser.toPlainText().contains(u"The rules in one minute"_s));
    EXPECT_EQ(browser.horizontalScrollBar()->maximum(), 0) << "nothing is cut off";
}

class AboutBox : public testing::Test {
protected:
    void open() {
        game.find<QAction>(u"mnuabout"_s).trigger();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&about));
    }

    GameWindow game;
    AboutForm& about = game.find<AboutForm>(u"AboutForm"_s);
    QPlainTextEdit& text = *about.findChild<QPlainTextEdit*>(u"AboutText"_s);
};

TEST_F(AboutBox, TellsWhatTheProgramIs) {
    open();
    EXPECT_EQ(about.windowTitle(), u"About Tessaly"_s);
    EXPECT_EQ(about.findChild<QLabel*>(u"Label1"_s)->text(), u"Version 1.0"_s);
    EXPECT_NE(about.findChild<QWidget*>(u"Image1"_s), nullptr);
    EXPECT_TRUE(text.isReadOnly());
    const QStringList lines = text.toPlainText().split(u'\n');
    ASSERT_EQ(lines.size(), 11);
    EXPECT_EQ(lines[0], QString());
    EXPECT_EQ(lines[1], u"Tessaly Puzzle - October 2009"_s);
    EXPECT_EQ(lines[2], u"Fill Hexagons with numbers 1 to 6"_s);
    EXPECT_EQ(lines[3], u"Contact: contact@tessaly.example"_s);
    EXPECT_TRUE(lines[4].startsWith(u"Thanks to "_s));
    EXPECT_EQ(lines[5], QString());
    EXPECT_EQ(lines[6], u"This progam is free to use and distribute"_s);
    EXPECT_EQ(lines[7], u"NO warranties whatsoever"_s);
    EXPECT_EQ(lines[9], u"1,000 puzzles available at tessaly.example"_s);
}

TEST_F(AboutBox, WearsTheScheme) {
    game.session.appearance.SchemeColours[slot::Background] = RGB(20, 24, 30);
    game.session.appearance.SchemeColours[slot::Accent] = RGB(90, 60, 120);
    open();
    EXPECT_EQ(about.palette().color(QPalette::Window), QColor(20, 24, 30));
    EXPECT_EQ(text.palette().color(QPalette::Base), QColor(20, 24, 30));
    EXPECT_EQ(about.findChild<BoxControl*>(u"AboutOk"_s)->faceColour(), QColor(90, 60, 120));
    const auto* version = about.findChild<QLabel*>(u"Label1"_s);
    EXPECT_EQ(version->palette().color(QPalette::Window), QColor(90, 60, 120));
    EXPECT_EQ(version->palette().color(QPalette::WindowText), QColor(Qt::white));
}

TEST_F(AboutBox, OkEscapeAndAPressOnTheTextCloseIt) {
    open();
    QTest::mouseClick(about.findChild<QWidget*>(u"AboutOk"_s), Qt::LeftButton);
    EXPECT_FALSE(about.isVisible());
    open();
    QTest::keyClick(&about, Qt::Key_Escape);
    EXPECT_FALSE(about.isVisible());
    open();
    QTest::mousePress(text.viewport(), Qt::LeftButton);
    EXPECT_FALSE(about.isVisible());
    EXPECT_TRUE(game.window->isVisible());
}

} // namespace
} // namespace tessaly
