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
    struct Step {
        const char16_t* link; // or
        const char16_t* button;
        QString place;
    };
    for (const Step& step : {
             Step{nullptr, u"Command1", {}},
             {u"First", nullptr, u"one"_s},
             {nullptr, u"Command2", u"one"_s}, // there is nothing ahead
             {u"second", nullptr, u"two"_s},
             {nullptr, u"Command1", u"one"_s},
             {nullptr, u"Command2", u"two"_s},
             {nullptr, u"Command1", u"one"_s},
             {nullptr, u"Command1", {}},
             {nullptr, u"Command2", {}}, // there is a way ahead, but the page has no anchor here
         }) {
        if (step.link != nullptr)
            follow(QString::fromUtf16(step.link));
        else
            press(QString::fromUtf16(step.button));
        EXPECT_EQ(at(), step.place);
    }
    EXPECT_TRUE(browser.isForwardAvailable());
    EXPECT_EQ(browser.source(), QUrl::fromLocalFile(QString::fromStdString(page)));
    follow(u"second"_s);
    press(u"Command3"_s);
    EXPECT_FALSE(help.isVisible());
    open();
    EXPECT_EQ(at(), QString()) << "opening it again starts the page anew";
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

TEST_F(HelpWindow, WearsTheSchemeInForceAndSaysWhenThePageIsMissing) {
    for (const Colour ground : {RGB(240, 240, 240), RGB(20, 24, 30)}) {
        game.session.appearance.SchemeColours[slot::Background] = ground;
        game.session.appearance.SchemeColours[slot::Button] = RGB(10, 200, 30);
        open();
        EXPECT_TRUE(browser.toPlainText().contains(QString::fromStdString(page)));
        EXPECT_EQ(button(u"Command2"_s).faceColour(), QColor(10, 200, 30));
        EXPECT_EQ(browser.palette().color(QPalette::Base), toQColor(ground));
        help.hide();
    }
    putPage(TwoPlaces);
    open();
    const auto link = browser.document()->begin().begin().fragment().charFormat().foreground();
    EXPECT_EQ(link.color(), browser.palette().link().color());
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
    EXPECT_EQ(browser.horizontalScrollBar()->maximum(), 0) << "nothing is cut off";
}

TEST(AboutBox, WearsTheSchemeAndIsClosedInThreeWays) {
    GameWindow game;
    auto& about = game.find<AboutForm>(u"AboutForm"_s);
    auto& text = *about.findChild<QPlainTextEdit*>(u"AboutText"_s);
    game.session.appearance.SchemeColours[slot::Background] = RGB(20, 24, 30);
    game.session.appearance.SchemeColours[slot::Accent] = RGB(90, 60, 120);
    const std::function<void()> ways[] = {
        [&] { QTest::mouseClick(about.findChild<QWidget*>(u"AboutOk"_s), Qt::LeftButton); },
        [&] { QTest::keyClick(&about, Qt::Key_Escape); },
        [&] { QTest::mousePress(text.viewport(), Qt::LeftButton); }};
    for (const auto& close : ways) {
        game.find<QAction>(u"mnuabout"_s).trigger();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&about));
        EXPECT_EQ(text.palette().color(QPalette::Base), QColor(20, 24, 30));
        EXPECT_EQ(about.findChild<BoxControl*>(u"AboutOk"_s)->faceColour(), QColor(90, 60, 120));
        EXPECT_EQ(about.findChild<QLabel*>(u"Label1"_s)->text(), u"Version 1.0");
        EXPECT_TRUE(text.toPlainText().contains(u"\nThis progam is free to use and distribute\n"));
        close();
        EXPECT_FALSE(about.isVisible());
    }
}

} // namespace
} // namespace tessaly
