// The help window, the page that it shows, and the about box.

#include "manual/drawings.h"
#include "manual/examples.h"
#include "ui/game_window.h"
#include "ui/golden_picture.h"
#include "ui/help/about_box.h"
#include "ui/help/help_window.h"

#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>

namespace tessaly::help_test {

struct HelpWindow : testing::Test {
    HelpWindow() {
        put(page, "<html><body><p><a href='#one'>First</a> and <a href='#two'>second</a></p>"
                  "<h2 id='one'>One</h2><p>text</p><h2 id='two'>Two</h2></body></html>");
    }
    void open() {
        game.choose(u"mnuhelp"_s);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&help));
    }
    /// Clicks a button, or else the first link whose text it is.
    void follow(const QString& name) {
        if (auto* button = help.findChild<BoxControl*>(name)) {
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
        QTextCursor cursor = browser.document()->find(name);
        cursor.setPosition(cursor.selectionStart() + 1);
        QTest::mouseClick(browser.viewport(), Qt::LeftButton, {},
                          browser.cursorRect(cursor).center());
    }

    GameWindow game;
    std::string page = game.folder.path() + "tessaly.htm";
    Form4& help = game.find<Form4>(u"Form4"_s);
    HelpBrowser& browser = find<HelpBrowser>(help, u"WebBrowser1"_s);
};

TEST_F(HelpWindow, BackAndForwardActAtAnchorsOnly) {
    open();
    for (const auto& [name, place] : {
             std::pair(u"Command1"_s, QString()),
             {u"First"_s, u"one"_s},
             {u"Command2"_s, u"one"_s}, // there is nothing ahead
             {u"second"_s, u"two"_s},
             {u"Command1"_s, u"one"_s},
             {u"Command1"_s, QString()},
             {u"Command2"_s, QString()}, // there is a way ahead, but the page has no anchor here
         }) {
        follow(name);
        EXPECT_EQ(browser.source().fragment(), place);
    }
    EXPECT_TRUE(browser.isForwardAvailable());
    EXPECT_EQ(browser.source(), QUrl::fromLocalFile(QString::fromStdString(page)));
    follow(u"second"_s);
    follow(u"Command3"_s);
    EXPECT_FALSE(help.isVisible());
    open();
    EXPECT_FALSE(browser.source().hasFragment()) << "opening it again starts the page anew";
    const QSize size(500, 400);
    help.resize(size);
    EXPECT_EQ(QSize(browser.width() + 8, browser.height() + browser.y() + 32), size);
}

TEST_F(HelpWindow, WearsTheSchemeInForceAndSaysWhenThePageIsMissing) {
    game.session.appearance.SchemeColours[slot::Background] = RGB(20, 24, 30);
    open();
    EXPECT_EQ(toColour(browser.palette().base().color()), RGB(20, 24, 30));
    const auto link = browser.document()->begin().begin().fragment().charFormat().foreground();
    EXPECT_EQ(link.color(), browser.palette().link().color());
    help.hide();
    std::filesystem::remove(page);
    open();
    EXPECT_TRUE(browser.toPlainText().contains(QString::fromStdString(page)));
}

TEST_F(HelpWindow, TheRealPageShowsItsDrawingsInTheirSize) {
    put(page, contentOf(TESSALY_DATA "/tessaly.htm"));
    std::filesystem::copy(TESSALY_DATA "/manual", game.folder.path() + "manual");
    open();
    const auto picture = browser.document()
                             ->resource(QTextDocument::ImageResource, QUrl(u"manual/rule-3.png"_s))
                             .value<QImage>();
    EXPECT_EQ(picture.deviceIndependentSize(), QSizeF(136, 116));
    EXPECT_EQ(picture.devicePixelRatio(), browser.devicePixelRatioF());
    EXPECT_EQ(browser.horizontalScrollBar()->maximum(), 0) << "nothing is cut off";
}

TEST(AboutBox, WearsTheSchemeAndIsClosedByButtonAndClick) {
    GameWindow game;
    auto& about = game.find<AboutForm>(u"AboutForm"_s);
    auto& text = find<QPlainTextEdit>(about, u"AboutText"_s);
    game.session.appearance.SchemeColours[slot::Background] = RGB(20, 24, 30);
    for (QWidget* closing : {&find(about, u"AboutOk"_s), text.viewport()}) {
        game.choose(u"mnuabout"_s);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&about));
        EXPECT_EQ(groundOf(about), RGB(20, 24, 30));
        EXPECT_EQ(find<QLabel>(about, u"Label1"_s).text(), u"Version 1.0");
        EXPECT_TRUE(text.toPlainText().contains(u"\nThis progam is free to use and distribute\n"));
        QTest::mouseClick(closing, Qt::LeftButton);
        EXPECT_FALSE(about.isVisible());
    }
}

struct Manual : testing::Test {
    const QString text = QString::fromStdString(contentOf(TESSALY_DATA "/tessaly.htm"));
};

TEST_F(Manual, EveryDrawingIsShownInItsSizeWithATextAndIsWhatTheProgramDraws) {
    std::set<QString> drawn, shown;
    auto image = QRegularExpression(u"<img\\s+(src=[^>]*?)\\s+alt=\"[^\"]+\""_s).globalMatch(text);
    while (image.hasNext())
        shown.insert(image.next().captured(1));
    for (const auto& [name, picture] : manual::drawings()) {
        const QImage shipped(QStringLiteral(TESSALY_DATA "/manual/%1.png").arg(name));
        ASSERT_EQ(shipped.size(), picture.size()) << name.toStdString() << ": ninja manual";
        EXPECT_LE(differingPixels(shipped, picture), 20) << name.toStdString() << ": ninja manual";
        const QSize size = picture.size() / manual::DrawingScale;
        drawn.insert(u"src=\"manual/%1.png\" width=\"%2\" height=\"%3\""_s.arg(name)
                         .arg(size.width())
                         .arg(size.height()));
    }
    EXPECT_EQ(shown, drawn);
}

TEST_F(Manual, NamesEveryCommandAndTellsWhatItDoes) {
    GameWindow game;
    for (const QAction* action : game.window->findChildren<QAction*>()) {
        const QString caption = QString(action->text()).remove(u'&');
        if (action->shortcut().isEmpty() || caption.isEmpty())
            continue;
        EXPECT_TRUE(text.contains(u"<b>"_s + caption + u"</b>"_s)) << caption.toStdString();
        EXPECT_TRUE(text.contains(action->shortcut().toString())) << caption.toStdString();
    }
    for (const BoxControl* button : game.window->centralWidget()->findChildren<BoxControl*>())
        if (button->isVisible() && !button->objectName().startsWith(u"digt"_s)) {
            EXPECT_TRUE(text.contains(button->toolTip())) << button->toolTip().toStdString();
        }
    game.window->files().load(TESSALY_DATA "/puzzles/easy.txt", manual::FirstNumber);
    game.click(u"cmdsetpairs"_s);
    EXPECT_EQ(game.message(), u" 3 Cells Fixed"_s) << "as the first puzzle's walk tells";
}

} // namespace tessaly::help_test
