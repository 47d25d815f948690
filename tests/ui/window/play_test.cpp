#include "core/play/selection_walk.h"
#include "ui/controls/message_box.h"
#include "ui/game_window.h"

#include <QApplication>
#include <QTextEdit>
#include <QTimer>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

struct Play : testing::Test {
    /// Makes the window afresh, with the real message box in the place of the test's answers.
    explicit Play(Prompts* prompts = nullptr)
        : game(prompts) {
        game.load("easy.txt");
    }
    std::vector<CellId> openCells() const {
        std::vector<CellId> open;
        for (CellId cell : AllCells)
            if (play().isSelectable(cell))
                open.push_back(cell);
        return open;
    }
    const Game& play() const { return game.session.game; }
    QImage picture() { return game.board().grab().toImage(); }
    void press(QKeyCombination keys) {
        QTest::keyClick(QApplication::focusWidget(), keys.key(), keys.keyboardModifiers());
    }

    GameWindow game;
};

struct RealBox {
    Appearance appearance;
    MsgForm box{appearance};
};

struct PlayWithTheRealBox : RealBox, Play {
    PlayWithTheRealBox()
        : Play(&box) {}
};

/// By key, pop-up and palette in turn.
TEST_F(PlayWithTheRealBox, AnEasyPuzzleFromTheFirstCellToAllDoneAndBack) {
    const Board fresh = play().board;
    const std::vector<CellId> open = openCells();
    for (std::size_t i = 0; i < open.size(); ++i) {
        const int number = play().board.SolNum[open[i]].front() - '1';
        const auto click = [&](Qt::MouseButton button) {
            QTest::mouseClick(&game.board(), button, {}, game.pointOf(open[i]));
        };
        game.pointAt(open[i]);
        EXPECT_TRUE(game.board().findChild<QWidget*>(u"Shape1"_s)->isVisible());
        if (i % 3 == 0) {
            QTest::keyClick(&game.board(), static_cast<char>('1' + number));
        } else if (i % 3 == 1) {
            click(Qt::RightButton);
            ASSERT_TRUE(game.find(u"Picture1"_s).isVisible());
            game.click(u"Num16_%1"_s.arg(number));
            ASSERT_FALSE(game.find(u"Picture1"_s).isVisible());
        } else {
            game.click(u"digt_%1"_s.arg(number));
            game.pointAt(open[i]);
            click(Qt::LeftButton);
            game.click(u"digt_%1"_s.arg(number));
        }
    }
    QString praise;
    QTimer::singleShot(0, qApp, [&] {
        praise = box.findChild<QTextEdit*>()->toPlainText();
        QTest::mouseClick(box.findChild<QWidget*>(u"cmd_0"_s), Qt::LeftButton);
    });
    game.click(u"StatLab"_s);
    EXPECT_EQ(praise, u"All Done!"_s);
    EXPECT_EQ(game.message(), u"Not done yet ..."_s);
    for (std::size_t step = 0; step < open.size(); ++step)
        game.click(u"cmdundo"_s);
    EXPECT_EQ(play().board, fresh);
}

TEST_F(Play, KeysAloneReachEverything) {
    ASSERT_TRUE(game.board().hasFocus());
    press(Qt::Key_Home);
    const CellId first = firstSelectable(play());
    for (const auto& [key, columns, rows] : {std::tuple(Qt::Key_Right, 1, 0),
                                             {Qt::Key_Down, 0, 1},
                                             {Qt::Key_Left, -1, 0},
                                             {Qt::Key_Up, 0, -1}}) {
        const CellId next = cellBeside(play(), game.board().input().selection(), columns, rows);
        press(key);
        EXPECT_EQ(game.board().input().selection(), next);
    }
    press(Qt::Key_End);
    EXPECT_EQ(game.board().input().selection(), lastSelectable(play()));
    press(Qt::Key_Home);
    press(Qt::Key_Menu);
    ASSERT_TRUE(game.find(u"Num16_0"_s).hasFocus());
    press(Qt::Key_Right);
    press(Qt::Key_Down);
    EXPECT_TRUE(game.find(u"Num16_4"_s).hasFocus());
    press(Qt::Key_Space);
    EXPECT_EQ(play().board.CellNum[first], "5");
    EXPECT_TRUE(game.board().hasFocus());
    press(Qt::Key_Menu);
    press(Qt::Key_Escape);
    EXPECT_TRUE(game.board().hasFocus() && !game.find(u"Picture1"_s).isVisible());
    for (int tabs = 0; tabs < 60 && !game.find(u"StatLab"_s).hasFocus(); ++tabs)
        press(Qt::Key_Tab);
    press(Qt::Key_Space);
    EXPECT_EQ(game.message(), u"Not done yet ..."_s);
}

TEST_F(Play, TheAssistsAnswerToTheirButtons) {
    const Board fresh = play().board;
    game.prompts.answers = {answer::Yes, answer::Yes, answer::Yes};
    for (const auto& [name, button, said] :
         {std::tuple(u"cmdsetpairs"_s, Qt::LeftButton, u" Cells Fixed"_s),
          {u"cmdundo"_s, Qt::LeftButton, QString()},
          {u"cmdset1s"_s, Qt::LeftButton, u"None Set"_s},
          {u"cmdallpencil"_s, Qt::LeftButton, u"Pencilmarks updated"_s},
          {u"cmdallpencil"_s, Qt::RightButton, u"Pencilmarks cleared"_s},
          {u"cmdreset"_s, Qt::LeftButton, QString()}}) {
        game.click(name, button);
        EXPECT_TRUE(game.message().endsWith(said)) << game.message().toStdString();
    }
    EXPECT_EQ(play().board, fresh);
}

TEST_F(Play, SolutionAndCandidatesShowOnlyWhileTheirButtonIsHeld) {
    const QImage before = picture();
    for (const QString& name :
         {u"cmdshowsol"_s, u"Celltags_%1"_s.arg(openCells().front().hexagon)}) {
        QTest::mousePress(&game.find(name), Qt::LeftButton);
        EXPECT_NE(picture(), before);
        QTest::mouseRelease(&game.find(name), Qt::LeftButton);
        const QSize size = game.window->size();
        for (const QSize& each : {QSize(900, 900), size}) { // the board is drawn anew
            game.window->resize(each);
            QApplication::processEvents();
        }
        EXPECT_EQ(picture(), before);
        for (const QEvent::Type end : {QEvent::WindowDeactivate, QEvent::WindowBlocked}) {
            QTest::mousePress(&game.find(name), Qt::LeftButton);
            QEvent away(end);
            QApplication::sendEvent(game.window.get(), &away);
            EXPECT_EQ(picture(), before) << "the window will not see the button come up";
            QTest::mouseRelease(&game.find(name), Qt::LeftButton);
        }
    }
}

TEST_F(Play, ThePopupClosesByItselfAndByEscape) {
    QWidget& popup = game.find(u"Picture1"_s);
    auto& timer = *popup.findChild<QTimer*>(u"Timer1"_s);
    const auto open = [&] {
        press(Qt::Key_Home);
        press(Qt::Key_Menu);
        EXPECT_FALSE(timer.isActive()) << "the hand is at it";
        game.board().setFocus();
    };
    open();
    EXPECT_TRUE(timer.isActive());
    EXPECT_EQ(timer.interval(), 6000);
    timer.setInterval(0);
    QApplication::processEvents();
    EXPECT_FALSE(popup.isVisible());
    open();
    press(Qt::Key_Escape);
    EXPECT_FALSE(popup.isVisible());
    EXPECT_TRUE(play().undoList.empty()) << "the pop-up was meant, not the cell";
}

TEST_F(Play, AKeyRepaintsOneHexagonOnly) {
    struct PaintedArea : QObject {
        bool eventFilter(QObject*, QEvent* event) override {
            if (event->type() == QEvent::Paint)
                area += static_cast<QPaintEvent*>(event)->region();
            return false;
        }
        QRegion area;
    } painted;
    press(Qt::Key_Home);
    QApplication::processEvents();
    game.board().installEventFilter(&painted);
    press(Qt::Key_3);
    QApplication::processEvents();
    ASSERT_FALSE(painted.area.isEmpty());
    const QRectF hexagon =
        game.board().boardToWidget().mapRect(QRectF(0, 0, 2 * HexagonSide + 6, 2 * HalfHeight + 6));
    EXPECT_LE(painted.area.boundingRect().width(), hexagon.width() + 2);
    EXPECT_LE(painted.area.boundingRect().height(), hexagon.height() + 2);
}

} // namespace
} // namespace tessaly
