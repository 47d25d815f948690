#include "core/play/cell_description.h"
#include "core/play/selection_walk.h"
#include "ui/game_window.h"
#include "ui/options/options_dialog.h"
#include "ui/play/board_accessible.h"
#include "ui/window/multiple_creation_dialog.h"

#include <QAccessible>
#include <QApplication>
#include <QRadioButton>
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <algorithm>
#include <set>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

class Accessibility : public testing::Test {
protected:
    Accessibility() { game.window->files().load(game.folder.puzzles("easy.txt")); }
    QAccessibleInterface& ofBoard() {
        return *QAccessible::queryAccessibleInterface(&game.board());
    }
    QAccessibleInterface& of(CellId cell) {
        return *ofBoard().child(BoardAccessible::indexOf(cell));
    }
    /// Lets Qt believe that a screen reader listens, for which it has no public call.
    static void listen(bool active) {
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(active);
    }
    static QString name(QAccessibleInterface& item) { return item.text(QAccessible::Name); }

    GameWindow game;
};

TEST_F(Accessibility, EachCellIsAnItemWithItsPlaceAndWhatItHolds) {
    ASSERT_EQ(name(ofBoard()), u"Board"_s);
    const Board& board = game.session.game.board;
    std::set<QString> names;
    for (CellId cell : AllCells) {
        QAccessibleInterface& item = of(cell);
        SCOPED_TRACE(name(item).toStdString());
        names.insert(name(item));
        EXPECT_TRUE(name(item).startsWith(u"Hexagon %1, "_s.arg(cell.hexagon)));
        EXPECT_TRUE(name(item).endsWith(QString::fromStdString(entryInWords(board, cell))));
        EXPECT_EQ(item.text(QAccessible::Value).toStdString(), board.CellNum[cell]);
        EXPECT_EQ(item.state().readOnly, !game.session.game.isSelectable(cell));
        EXPECT_EQ(item.parent(), &ofBoard());
        EXPECT_EQ(ofBoard().indexOfChild(&item), BoardAccessible::indexOf(cell));
        const QPoint middle = game.board().mapToGlobal(game.pointOf(cell));
        EXPECT_TRUE(item.rect().contains(middle));
        EXPECT_EQ(ofBoard().childAt(middle.x(), middle.y()), &item);
    }
    EXPECT_EQ(std::ssize(names), BoardCellCount) << "each name is one cell's";
    EXPECT_EQ(of({1, 5}).text(QAccessible::Description).toStdString(),
              "Across: hexagon 5, top, " + entryInWords(board, {5, 2}));
    QWidget& tag = game.find(u"Celltags_3"_s);
    const QPoint onTag = tag.mapToGlobal(tag.rect().center());
    QAccessibleInterface* there = ofBoard().childAt(onTag.x(), onTag.y());
    ASSERT_NE(there, nullptr);
    EXPECT_EQ(there->object(), &tag);
    EXPECT_EQ(there->role(), QAccessible::Button);
    EXPECT_EQ(ofBoard().child(ofBoard().indexOfChild(there)), there);
    EXPECT_EQ(ofBoard().childAt(-50, -50), nullptr);
}

/// What a screen reader is told: the kind of event, and the child of the board that it is about.
std::vector<std::pair<QAccessible::Event, int>> told;

TEST_F(Accessibility, ThePlayIsHeardAndEachChangeOnce) {
    const auto before = QAccessible::installUpdateHandler(
        [](QAccessibleEvent* event) { told.emplace_back(event->type(), event->child()); });
    listen(true);
    const CellId cell = firstSelectable(game.session.game);
    QAccessibleInterface& item = of(cell);
    const auto timesTold = [&](Qt::Key key, QAccessible::Event kind, int child) {
        told.clear();
        QTest::keyClick(&game.board(), key);
        return std::count(told.begin(), told.end(), std::pair(kind, child));
    };
    const int index = BoardAccessible::indexOf(cell);
    EXPECT_EQ(timesTold(Qt::Key_Home, QAccessible::Focus, index), 1);
    EXPECT_EQ(ofBoard().focusChild(), &item);
    EXPECT_TRUE(item.state().focused);
    EXPECT_EQ(timesTold(Qt::Key_2, QAccessible::NameChanged, index), 1);
    EXPECT_EQ(timesTold(Qt::Key_2, QAccessible::NameChanged, index), 0) << "nothing changes";
    EXPECT_EQ(timesTold(Qt::Key_5, QAccessible::NameChanged, index), 1);
    EXPECT_TRUE(name(item).endsWith(u", marks 2 5"_s));
    EXPECT_EQ(timesTold(Qt::Key_F5, QAccessible::Alert, -1), 1) << "the message line";
    listen(false);
    QAccessible::installUpdateHandler(before);

    QTest::keyClick(&game.board(), Qt::Key_End);
    EXPECT_FALSE(item.state().focused);
    const auto focus = [this](CellId on) {
        of(on).actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
        return game.board().input().selection();
    };
    EXPECT_EQ(focus(cell), cell);
    const auto given = std::find_if(AllCells.begin(), AllCells.end(), [this](CellId each) {
        return game.session.game.board.FixedCell[each];
    });
    EXPECT_TRUE(of(*given).actionInterface()->actionNames().isEmpty());
    EXPECT_FALSE(focus(*given));
}

bool isReachedByTab(const QWidget& control) {
    const auto* option = qobject_cast<const QRadioButton*>(&control);
    return control.isVisible() && control.isEnabled() &&
           (control.focusPolicy() & Qt::TabFocus) != 0 && control.focusProxy() == nullptr &&
           (option == nullptr || option->isChecked());
}

/// Walks once around the window with the Tab key. Each control says what it is and looks different
/// while it has the focus, and none is left out.
void expectNamedAndVisiblyFocused(QWidget& window) {
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &window; }));
    EXPECT_FALSE(window.windowTitle().isEmpty());
    std::set<QWidget*> unmet;
    for (QWidget* control : window.findChildren<QWidget*>())
        if (control->window() == &window && isReachedByTab(*control))
            unmet.insert(control);
    ASSERT_GT(unmet.size(), 4u);
    QTest::keyClick(&window, Qt::Key_Tab);
    while (unmet.erase(QApplication::focusWidget()) == 1) {
        QWidget* control = QApplication::focusWidget();
        SCOPED_TRACE(control->objectName().toStdString() + " of " +
                     window.objectName().toStdString());
        QAccessibleInterface* item = QAccessible::queryAccessibleInterface(control);
        ASSERT_NE(item, nullptr);
        EXPECT_FALSE(item->text(QAccessible::Name).trimmed().isEmpty());
        const QImage focused = control->grab().toImage();
        QTest::keyClick(control, Qt::Key_Tab);
        EXPECT_NE(control->grab().toImage(), focused) << "the focus does not show";
    }
    for (QWidget* control : unmet)
        ADD_FAILURE() << control->objectName().toStdString() << " is not reached";
}

TEST_F(Accessibility, EveryControlHasANameAndShowsItsFocus) {
    expectNamedAndVisiblyFocused(*game.window);
    auto& options = game.find<Form2x>(u"Form2x"_s);
    options.showOptions();
    expectNamedAndVisiblyFocused(options);
    options.hide();
    auto& creation = game.find<Form3>(u"Form3"_s);
    expectNamedAndVisiblyFocused(creation);
    creation.hide();
}

} // namespace
} // namespace tessaly
