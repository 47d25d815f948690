#include "core/play/cell_description.h"
#include "core/play/selection_walk.h"
#include "ui/game_window.h"
#include "ui/play/board_accessible.h"

#include <QAccessible>
#include <QRadioButton>
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

namespace tessaly::accessibility_test {

QString nameOf(const QAccessibleInterface& item) {
    return item.text(QAccessible::Name);
}

/// What a screen reader is told: the kind of event, and the child of the board that it is about.
std::vector<std::pair<QAccessible::Event, int>> told;
/// What it speaks out by itself.
QStringList heard;

void listenTo(QAccessibleEvent* event) {
    told.emplace_back(event->type(), event->child());
    if (event->type() == QAccessible::ObjectShow &&
        event->accessibleInterface()->role() == QAccessible::Notification)
        heard << nameOf(*event->accessibleInterface());
}

struct Accessibility : testing::Test {
    QAccessibleInterface& of(CellId cell) { return *board.child(BoardAccessible::indexOf(cell)); }
    /// Lets Qt believe that a screen reader listens, for which it has no public call.
    static void listen(bool active) {
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(active);
    }
    /// How often a key lets this be told.
    std::ptrdiff_t timesTold(Qt::Key key, QAccessible::Event kind, int child) {
        told.clear();
        QTest::keyClick(&game.board(), key);
        QCoreApplication::processEvents();
        return std::count(told.begin(), told.end(), std::pair(kind, child));
    }

    GameWindow game{"easy.txt"};
    const Game& play = game.session.game;
    QAccessibleInterface& board = *QAccessible::queryAccessibleInterface(&game.board());
};

TEST_F(Accessibility, EachCellIsAnItemWithItsPlaceAndWhatItHolds) {
    ASSERT_EQ(nameOf(board), u"Board"_s);
    std::set<QString> names;
    for (CellId cell : AllCells) {
        QAccessibleInterface& item = of(cell);
        SCOPED_TRACE(nameOf(item).toStdString());
        names.insert(nameOf(item));
        EXPECT_TRUE(nameOf(item).startsWith(u"Hexagon %1, "_s.arg(cell.hexagon)));
        EXPECT_TRUE(nameOf(item).endsWith(QString::fromStdString(entryInWords(play.board, cell))));
        EXPECT_EQ(item.text(QAccessible::Value).toStdString(),
                  play.board.isBlank(cell.hexagon) ? "" : play.board.CellNum[cell]);
        EXPECT_EQ(item.actionInterface()->actionNames().size(),
                  play.isSelectable(cell) ? 3 : play.isReadable(cell));
        EXPECT_EQ(item.state().readOnly, !play.isSelectable(cell));
        EXPECT_EQ(board.indexOfChild(&item), BoardAccessible::indexOf(cell));
        const QPoint middle = game.board().mapToGlobal(game.pointOf(cell));
        EXPECT_TRUE(item.rect().contains(middle));
        EXPECT_EQ(board.childAt(middle.x(), middle.y()), &item);
    }
    EXPECT_EQ(std::ssize(names), BoardCellCount) << "each name is one cell's";
    EXPECT_EQ(of({1, 5}).text(QAccessible::Description).toStdString(),
              "Across: hexagon 5, top, " + entryInWords(play.board, {5, 2}));
    QWidget& tag = game.find(u"Celltags_3"_s);
    const QPoint onTag = tag.mapToGlobal(tag.rect().center());
    QAccessibleInterface* there = board.childAt(onTag.x(), onTag.y());
    ASSERT_NE(there, nullptr);
    EXPECT_EQ(there->object(), &tag);
    EXPECT_EQ(board.child(board.indexOfChild(there)), there);
    EXPECT_EQ(board.childAt(-50, -50), nullptr);
}

TEST_F(Accessibility, ThePlayIsHeardAndEachChangeOnce) {
    const auto before = QAccessible::installUpdateHandler(listenTo);
    listen(true);
    const CellId cell = firstSelectable(play);
    const QAccessibleInterface& item = of(cell);
    const int index = BoardAccessible::indexOf(cell);
    EXPECT_EQ(timesTold(Qt::Key_Home, QAccessible::Focus, index), 1);
    EXPECT_TRUE(board.focusChild() == &item && item.state().focused);
    EXPECT_EQ(timesTold(Qt::Key_2, QAccessible::NameChanged, index), 1);
    EXPECT_EQ(timesTold(Qt::Key_2, QAccessible::NameChanged, index), 0) << "nothing changes";
    EXPECT_EQ(timesTold(Qt::Key_5, QAccessible::NameChanged, index), 1);
    game.find(u"StatLab"_s).setFocus();
    game.board().setFocus();
    EXPECT_EQ(timesTold(Qt::Key_F5, QAccessible::Focus, index), 1) << "it comes back to the cell";
    EXPECT_FALSE(board.state().focused);
    timesTold(Qt::Key_End, QAccessible::Focus, index);
    game.click(u"cmdundo"_s);
    QCoreApplication::processEvents();
    EXPECT_EQ(heard.join(u'/').toStdString(),
              "Puzzle 1 of 40/2, breaks a rule/marks 2 5. A second digit makes pencil marks/"
              "Not done yet .../" +
                  cellInWords(cell) + ", empty");
    listen(false);
    QAccessible::installUpdateHandler(before);
}

TEST_F(Accessibility, ACellCanBeFilledWithoutKeys) {
    const CellId cell = firstSelectable(play);
    QAccessibleInterface& item = of(cell);
    item.valueInterface()->setCurrentValue(4);
    EXPECT_EQ(item.valueInterface()->currentValue(), 4);
    item.valueInterface()->setCurrentValue(7);
    game.click(u"digt_1"_s);
    item.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(play.board.CellNum[cell], "2");
    item.actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    EXPECT_TRUE(game.find(u"Num16_0"_s).hasFocus());
    EXPECT_EQ(nameOf(*QAccessible::queryAccessibleInterface(&game.find(u"Picture1"_s))),
              u"Entry for "_s + QString::fromStdString(cellInWords(cell)));
}

/// Walks around each window with the Tab key. Each control says what it is and looks different
/// while it has the focus, and none is left out.
TEST_F(Accessibility, EveryControlHasANameAndShowsItsFocus) {
    game.find(u"Celltags_9"_s).setFocus(); // the arrow keys walk the tags, which are one stop
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Down,
                              Qt::Key_Down, Qt::Key_Left, Qt::Key_Left})
        game.press(key);
    EXPECT_TRUE(game.find(u"Celltags_12"_s).hasFocus()) << "by 12 10 8 13 18 15";
    for (const QString& name : {u"Form1"_s, u"Form2x"_s, u"Form3"_s, u"Form5"_s}) {
        QWidget& window = name == u"Form1"_s ? *game.window : game.find(name);
        if (name == u"Form2x"_s)
            game.choose(u"mnuopts"_s);
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitFor([&] { return window.isActiveWindow(); }));
        EXPECT_FALSE(window.windowTitle().isEmpty());
        std::set<QWidget*> unmet;
        for (QWidget* control : window.findChildren<QWidget*>())
            if (control->window() == &window && control->isVisible() && control->isEnabled() &&
                (control->focusPolicy() & Qt::TabFocus) != 0 && control->focusProxy() == nullptr &&
                qobject_cast<QRadioButton*>(control) == nullptr) // of which one stands for all
                unmet.insert(control);
        ASSERT_GT(unmet.size(), 4u);
        QTest::keyClick(&window, Qt::Key_Tab);
        for (int tabs = 0; tabs < 60 && !unmet.empty(); ++tabs) {
            QWidget* control = QApplication::focusWidget();
            unmet.erase(control);
            SCOPED_TRACE(control->objectName().toStdString() + " of " + name.toStdString());
            EXPECT_FALSE(
                nameOf(*QAccessible::queryAccessibleInterface(control)).trimmed().isEmpty());
            const QImage focused = control->grab().toImage();
            QTest::keyClick(control, Qt::Key_Tab);
            EXPECT_NE(control->grab().toImage(), focused) << "the focus does not show";
        }
        for (QWidget* control : unmet)
            ADD_FAILURE() << control->objectName().toStdString() << " is not reached";
        window.setVisible(&window == game.window.get());
    }
}

} // namespace tessaly::accessibility_test
