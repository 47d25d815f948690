#include "manual/drawings.h"
#include "manual/examples.h"
#include "ui/game_window.h"
#include "ui/golden_picture.h"

#include <QRegularExpression>

namespace tessaly {
namespace {

struct Manual : testing::Test {
    /// What an expression's first group matches, all through the manual.
    std::set<QString> allOf(const char* expression) const {
        std::set<QString> found;
        auto match = QRegularExpression(QString::fromLatin1(expression)).globalMatch(text);
        while (match.hasNext())
            found.insert(match.next().captured(1));
        return found;
    }
    const QString text = QString::fromStdString(test::contentOf(TESSALY_DATA "/tessaly.htm"));
};

TEST_F(Manual, EveryLinkLeadsToAnAnchorAndEveryAnchorIsInTheContents) {
    const auto anchors = allOf("<h[23] id=\"([^\"]*)\"");
    std::set<QString> targets;
    for (const QString& link : allOf("href=\"([^\"]*)\"")) {
        EXPECT_TRUE(link.startsWith(u'#')) << link.toStdString() << " leads out of the page";
        if (link != u"#top")
            targets.insert(link.mid(1));
    }
    EXPECT_GT(anchors.size(), 15U);
    EXPECT_EQ(anchors, targets);
    for (const QString& anchor : anchors)
        EXPECT_EQ(text.count(u"id=\"%1\""_s.arg(anchor)), 1) << anchor.toStdString();
    EXPECT_EQ(allOf("id=\"(top)\"").size(), 1U);
}

TEST_F(Manual, EveryDrawingIsShownInItsSizeWithATextAndIsWhatTheProgramDraws) {
    std::set<QString> drawn;
    for (const auto& [name, picture] : manual::drawings()) {
        const QImage shipped(QStringLiteral(TESSALY_DATA "/manual/%1.png").arg(name));
        ASSERT_EQ(shipped.size(), picture.size()) << name.toStdString() << ": ninja manual";
        EXPECT_LE(compare(shipped, picture).pixels, 20) << name.toStdString() << ": ninja manual";
        const QSize size = picture.size() / manual::DrawingScale;
        drawn.insert(u"src=\"manual/%1.png\" width=\"%2\" height=\"%3\""_s.arg(name)
                         .arg(size.width())
                         .arg(size.height()));
    }
    EXPECT_EQ(allOf("<img\\s+(src=[^>]*?)\\s+alt=\"[^\"]+\""), drawn);
}

TEST_F(Manual, NamesEveryCommandAndTellsWhatItDoes) {
    GameWindow game;
    for (const QAction* action : game.window->findChildren<QAction*>()) {
        const QString caption = QString(action->text()).remove(u'&');
        if (action->objectName().isEmpty() || caption.isEmpty() || caption == u"OldFiles"_s ||
            caption == u"Cancel"_s)
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

} // namespace
} // namespace tessaly
