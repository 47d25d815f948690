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
#include <map>
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
    CellId firstOpen() const { return firstSelectable(game.session.game); }

    GameWindow game;
};

TEST_F(Accessibility, EachCellIsAnItemWithItsPlaceAndWhatItHolds) {
    ASSERT_EQ(name(ofBoard()), u"Board"_s);
    ASSERT_GE(ofBoard().childCount(), BoardCellCount);
    const Board& board = game.session.game.board;
    std::map<QString, int> names;
    for (int i = 0; i < BoardCellCount; ++i) {
        QAccessibleInterface& item = *ofBoard().child(i);
        const CellId cell = AllCells[static_cast<std::size_t>(i)];
        SCOPED_TRACE(name(item).toStdString());
        ++names[name(item)];
        EXPECT_TRUE(name(item).startsWith(u"Hexagon %1, "_s.arg(cell.hexagon)));
        EXPECT_TRUE(name(item).endsWith(QString::fromStdString(entryInWords(board, cell))));
        EXPECT_EQ(item.text(QAccessible::Value).toStdString(), board.CellNum[cell]);
        EXPECT_EQ(item.state().readOnly, !game.session.game.isSelectable(cell));
        EXPECT_EQ(item.parent(), &ofBoard());
        EXPECT_EQ(ofBoard().indexOfChild(&item), i);
        EXPECT_EQ(item.role(), QAccessible::ListItem);
    }
    EXPECT_EQ(names.size(), static_cast<std::size_t>(BoardCellCount)) << "each name is one cell's";
    EXPECT_EQ(of({1, 5}).text(QAccessible::Description).toStdString(),
              "Across: hexagon 5, top, " + entryInWords(board, {5, 2}));
}

TEST_F(Accessibility, AnItemLiesWhereItsCellIsDrawn) {
    for (CellId cell : AllCells) {
        const QPoint middle = game.board().mapToGlobal(game.pointOf(cell));
        EXPECT_TRUE(of(cell).rect().contains(middle));
        EXPECT_EQ(ofBoard().childAt(middle.x(), middle.y()), &of(cell));
    }
    QWidget& tag = game.find(u"Celltags_3"_s);
    const QPoint onTag = tag.mapToGlobal(tag.rect().center());
    QAccessibleInterface* there = ofBoard().childAt(onTag.x(), onTag.y());
    ASSERT_NE(there, nullptr);
    EXPECT_EQ(there->object(), &tag);
    EXPECT_EQ(there->role(), QAccessible::Button);
    EXPECT_GE(ofBoard().indexOfChild(there), BoardCellCount);
    EXPECT_EQ(ofBoard().child(ofBoard().indexOfChild(there)), there);
    EXPECT_EQ(ofBoard().childAt(-50, -50), nullptr);
}

TEST_F(Accessibility, ThePlayIsHeard) {
    QTest::keyClick(&game.board(), Qt::Key_Home);
    const CellId cell = firstOpen();
    QAccessibleInterface& item = of(cell);
    EXPECT_EQ(ofBoard().focusChild(), &item);
    EXPECT_TRUE(item.state().focused);
    EXPECT_TRUE(name(item).endsWith(u", empty"_s));
    QTest::keyClick(&game.board(), Qt::Key_2);
    EXPECT_TRUE(name(item).endsWith(u", 2"_s));
    QTest::keyClick(&game.board(), Qt::Key_5);
    EXPECT_TRUE(name(item).endsWith(u", marks 2 5"_s));

    QTest::keyClick(&game.board(), Qt::Key_End);
    EXPECT_FALSE(item.state().focused);
    auto* actions = item.actionInterface();
    ASSERT_NE(actions, nullptr);
    actions->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ(game.board().input().selection(), cell);
    for (CellId given : AllCells)
        if (game.session.game.board.FixedCell[given]) {
            EXPECT_TRUE(of(given).actionInterface()->actionNames().isEmpty());
            of(given).actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
            EXPECT_FALSE(game.board().input().selection());
            break;
        }
}

/// What a screen reader is told: the kind of event, and the child of the board that it is about.
std::vector<std::pair<QAccessible::Event, int>> told;

TEST_F(Accessibility, AReaderIsToldWhatChanges) {
    const auto remember = [](QAccessibleEvent* event) {
        told.emplace_back(event->type(), event->child());
    };
    const auto before = QAccessible::installUpdateHandler(remember);
    listen(true);
    const auto wasTold = [](QAccessible::Event kind, int child) {
        return std::count(told.begin(), told.end(), std::pair(kind, child)) > 0;
    };
    const int cell = BoardAccessible::indexOf(firstOpen());
    told.clear();
    QTest::keyClick(&game.board(), Qt::Key_Home);
    EXPECT_TRUE(wasTold(QAccessible::Focus, cell));
    QTest::keyClick(&game.board(), Qt::Key_3);
    EXPECT_TRUE(wasTold(QAccessible::NameChanged, cell));
    told.clear();
    QTest::keyClick(&game.board(), Qt::Key_F5);
    EXPECT_TRUE(wasTold(QAccessible::Alert, -1)) << game.message().toStdString();
    listen(false);
    QAccessible::installUpdateHandler(before);
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
