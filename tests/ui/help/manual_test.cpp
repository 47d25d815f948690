#include "core/play/assists.h"
#include "manual/drawings.h"
#include "manual/examples.h"
#include "ui/game_window.h"
#include "ui/golden_picture.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <set>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

QString manualText() {
    QFile file(QStringLiteral(TESSALY_DATA "/tessaly.htm"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return QString::fromUtf8(file.readAll());
}

/// What an expression's first group matches, all through the manual.
QStringList allOf(const char* expression) {
    QStringList found;
    QRegularExpressionMatchIterator match =
        QRegularExpression(QString::fromLatin1(expression)).globalMatch(manualText());
    while (match.hasNext())
        found << match.next().captured(1);
    return found;
}

template <class List>
std::set<QString> setOf(const List& list) {
    return {list.begin(), list.end()};
}

TEST(Manual, EveryLinkLeadsToAnAnchorAndEveryAnchorIsInTheContents) {
    const QStringList links = allOf("href=\"([^\"]*)\"");
    const QStringList anchors = allOf("<h[23] id=\"([^\"]*)\"");
    EXPECT_EQ(setOf(anchors).size(), static_cast<std::size_t>(anchors.size())) << "an anchor twice";
    std::set<QString> targets;
    for (const QString& link : links) {
        EXPECT_TRUE(link.startsWith(u'#')) << link.toStdString() << " leads out of the page";
        if (link != u"#top")
            targets.insert(link.mid(1));
    }
    EXPECT_GT(anchors.size(), 15);
    EXPECT_EQ(setOf(anchors), targets);
    EXPECT_EQ(allOf("id=\"(top)\"").size(), 1);
}

TEST(Manual, EveryDrawingIsShownInItsSizeWithATextAndIsWhatTheProgramDraws) {
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
    EXPECT_EQ(setOf(allOf("<img\\s+(src=[^>]*?)\\s+alt=\"[^\"]+\"")), drawn);
}

TEST(Manual, NamesEveryCommandOfTheWindow) {
    const GameWindow game;
    const QString manual = manualText();
    for (const QAction* action : game.window->findChildren<QAction*>()) {
        const QString caption = QString(action->text()).remove(u'&');
        if (action->objectName().isEmpty() || caption.isEmpty() || caption == u"OldFiles"_s ||
            caption == u"Cancel"_s)
            continue;
        EXPECT_TRUE(manual.contains(u"<b>"_s + caption + u"</b>"_s)) << caption.toStdString();
        if (const QKeySequence key = action->shortcut(); !key.isEmpty()) {
            EXPECT_TRUE(manual.contains(key.toString())) << key.toString().toStdString();
        }
    }
    for (const char16_t* name :
         {u"cmdload", u"cmdarrow_0", u"cmdarrow_1", u"cmdcreate", u"DifLab", u"cmdundo",
          u"cmdreset", u"cmdshowsol", u"cmdallpencil", u"cmdsetpairs", u"cmdset1s", u"StatLab"}) {
        const auto* control = game.window->findChild<QWidget*>(QString::fromUtf16(name));
        ASSERT_NE(control, nullptr);
        EXPECT_TRUE(manual.contains(control->toolTip())) << control->toolTip().toStdString();
    }
}

/// Solves the first puzzle of the library with nothing but what the manual's first puzzle tells.
class Newcomer {
public:
    explicit Newcomer(GameWindow& game)
        : m_game(game) {}

    void press(const QString& control) { QTest::mouseClick(&m_game.find(control), Qt::LeftButton); }

    /// What a hexagon shows while the number in its middle is held.
    Grid<std::string>::Row look(int hexagon) const {
        const Game& play = m_game.session.game;
        return withCandidates(play.board, play.TouchedCell, hexagon).CellNum[hexagon];
    }

    /// Writes down what is sure in a hexagon.
    void workOn(int hexagon) {
        const auto seen = look(hexagon);
        for (int position = 1; position <= CellCount; ++position) {
            const CellId cell{hexagon, position};
            const std::string& own = seen[static_cast<std::size_t>(position)];
            for (char digit : own) {
                const auto places = std::count_if(seen.begin(), seen.end(), [&](const auto& entry) {
                    return entry.find(digit) != std::string::npos;
                });
                if ((own.size() > 1 && places > 1) ||
                    !m_game.session.game.board.CellNum[cell].empty())
                    continue;
                m_game.pointAt(cell);
                QTest::keyClick(&m_game.board(), digit);
            }
        }
    }

private:
    GameWindow& m_game;
};

TEST(Manual, AnEasyPuzzleIsSolvedInTheWindowAsItTells) {
    GameWindow game;
    const Board& board = game.session.game.board;
    const std::string path = game.folder.path() + "easy.txt";
    std::filesystem::copy_file(TESSALY_DATA "/puzzles/easy.txt", path);
    game.window->files().load(path, manual::FirstNumber);
    Newcomer newcomer(game);
    newcomer.press(u"cmdsetpairs"_s);
    EXPECT_EQ(game.message(), u" 3 Cells Fixed"_s);
    EXPECT_EQ(newcomer.look(3), (Grid<std::string>::Row{"", "13", "5", "4", "2", "1236", "123"}));
    for (int rounds = 0; rounds < 20 && !isSolved(board); ++rounds) {
        for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon)
            if (hexagon != board.BlankHex)
                newcomer.workOn(hexagon);
        newcomer.press(u"cmdsetpairs"_s);
        newcomer.press(u"cmdset1s"_s);
    }
    EXPECT_TRUE(isSolved(board));
}

} // namespace
} // namespace tessaly
