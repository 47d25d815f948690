#include "ui/game_window.h"

#include "core/board/puzzle_record.h"
#include "core/play/selection_walk.h"
#include "ui/controls/message_box.h"

#include <QApplication>
#include <QTextEdit>
#include <QTimer>

#include <map>
#include <queue>

namespace tessaly {
namespace {

using namespace Qt::StringLiterals;

class Play : public testing::Test {
protected:
    /// The cells that the player has to fill.
    std::vector<CellId> openCells() const {
        std::vector<CellId> open;
        for (CellId cell : AllCells)
            if (game.session.game.isSelectable(cell))
                open.push_back(cell);
        return open;
    }

    char solutionOf(CellId cell) const { return game.session.game.board.SolNum[cell].front(); }

    void loadEasyPuzzle() { game.window->files().load(game.folder.puzzles("easy.txt")); }

    void solveByPointerAndKeys() {
        for (CellId cell : openCells()) {
            game.pointAt(cell);
            QTest::keyClick(&game.board(), solutionOf(cell));
        }
    }

    void check() { QTest::mouseClick(&game.find(u"StatLab"_s), Qt::LeftButton); }

    void expectAllDone() {
        game.prompts.shown.clear();
        check();
        ASSERT_EQ(game.prompts.shown.size(), 1u);
        EXPECT_EQ(game.prompts.shown.front().text, "All Done!");
        EXPECT_EQ(game.message(), u"Not done yet ..."_s);
    }

    GameWindow game;
};

/// What a message box that opens within a while says; it is then closed by its button.
class BoxWatcher {
public:
    BoxWatcher() {
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            auto* box = qobject_cast<MsgForm*>(QApplication::activeModalWidget());
            if (box == nullptr)
                return;
            text = box->findChild<QTextEdit*>()->toPlainText();
            QTest::mouseClick(box->findChild<QWidget*>(u"cmd_0"_s), Qt::LeftButton);
        });
        m_timer.start(10);
    }
    QString text;

private:
    QTimer m_timer;
};

TEST(PlayWithTheRealBox, AnEasyPuzzleFromTheFirstCellToAllDone) {
    Appearance plain;
    MsgForm box(plain);
    GameWindow game(&box);
    game.window->files().load(game.folder.puzzles("easy.txt"));
    for (CellId cell : AllCells) {
        if (!game.session.game.isSelectable(cell))
            continue;
        game.pointAt(cell);
        QTest::keyClick(&game.board(), game.session.game.board.SolNum[cell].front());
    }
    BoxWatcher watcher;
    QTest::mouseClick(&game.find(u"StatLab"_s), Qt::LeftButton);
    EXPECT_EQ(watcher.text, u"All Done!"_s);
    EXPECT_EQ(game.message(), u"Not done yet ..."_s);
}

TEST_F(Play, EveryStepIsTakenBackByUndo) {
    loadEasyPuzzle();
    const Board fresh = game.session.game.board;
    solveByPointerAndKeys();
    expectAllDone();
    const std::size_t steps = openCells().size();
    EXPECT_EQ(game.session.game.undoList.size(), steps);
    for (std::size_t step = 0; step < steps; ++step)
        QTest::mouseClick(&game.find(u"cmdundo"_s), Qt::LeftButton);
    EXPECT_EQ(game.session.game.board, fresh);
    EXPECT_EQ(game.message(), QString());
}

TEST_F(Play, ThePopupFillsTheBoard) {
    loadEasyPuzzle();
    for (CellId cell : openCells()) {
        game.pointAt(cell);
        QTest::mouseClick(&game.board(), Qt::RightButton, {}, game.pointOf(cell));
        ASSERT_TRUE(game.find(u"Picture1"_s).isVisible());
        const int button = solutionOf(cell) - '1';
        QTest::mouseClick(&game.find(u"Num16_%1"_s.arg(button)), Qt::LeftButton);
        ASSERT_FALSE(game.find(u"Picture1"_s).isVisible());
    }
    expectAllDone();
}

TEST_F(Play, ThePaletteFillsTheBoard) {
    loadEasyPuzzle();
    for (char digit = '1'; digit <= '6'; ++digit) {
        QTest::mouseClick(&game.find(u"digt_%1"_s.arg(digit - '1')), Qt::LeftButton);
        for (CellId cell : openCells()) {
            if (solutionOf(cell) != digit)
                continue;
            game.pointAt(cell);
            QTest::mouseClick(&game.board(), Qt::LeftButton, {}, game.pointOf(cell));
        }
    }
    expectAllDone();
}

/// The arrow keys that lead from one cell to every other.
std::map<int, std::vector<Qt::Key>> walksFrom(const Game& game, CellId start) {
    const auto number = [](CellId cell) { return 10 * cell.hexagon + cell.position; };
    const std::vector<std::tuple<Qt::Key, int, int>> arrows{
        {Qt::Key_Right, 1, 0}, {Qt::Key_Left, -1, 0}, {Qt::Key_Down, 0, 1}, {Qt::Key_Up, 0, -1}};
    std::map<int, std::vector<Qt::Key>> walks{{number(start), {}}};
    std::queue<CellId> open;
    open.push(start);
    for (; !open.empty(); open.pop())
        for (const auto& [key, columns, rows] : arrows) {
            const CellId next = cellBeside(game, open.front(), columns, rows);
            if (walks.contains(number(next)))
                continue;
            walks[number(next)] = walks[number(open.front())];
            walks[number(next)].push_back(key);
            open.push(next);
        }
    return walks;
}

TEST_F(Play, KeysAloneFillTheBoardAndCheckIt) {
    loadEasyPuzzle();
    ASSERT_TRUE(game.board().hasFocus());
    const auto walks = walksFrom(game.session.game, firstSelectable(game.session.game));
    for (CellId cell : openCells()) {
        QTest::keyClick(&game.board(), Qt::Key_Home);
        for (Qt::Key key : walks.at(10 * cell.hexagon + cell.position))
            QTest::keyClick(&game.board(), key);
        QTest::keyClick(&game.board(), solutionOf(cell));
    }
    for (int tabs = 0; tabs < 60 && !game.find(u"StatLab"_s).hasFocus(); ++tabs)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    ASSERT_TRUE(game.find(u"StatLab"_s).hasFocus());
    QTest::keyClick(&game.find(u"StatLab"_s), Qt::Key_Space);
    ASSERT_EQ(game.prompts.shown.size(), 1u);
    EXPECT_EQ(game.prompts.shown.front().text, "All Done!");
}

TEST_F(Play, NothingHappensOutsideCellsOnGivensAndOnTheBlankHexagon) {
    const auto tryEverywhere = [this](const std::vector<QPoint>& points) {
        for (QPoint point : points) {
            QTest::mouseMove(&game.board(), QPoint(1, 1));
            QTest::mouseMove(&game.board(), point);
            EXPECT_FALSE(game.find(u"Shape1"_s).isVisible());
            QTest::mouseClick(&game.board(), Qt::LeftButton, {}, point);
            QTest::mouseClick(&game.board(), Qt::RightButton, {}, point);
            QTest::keyClick(&game.board(), Qt::Key_Menu);
            QTest::keyClick(&game.board(), Qt::Key_3);
            QTest::keyClick(&game.board(), Qt::Key_Space);
            QTest::keyClick(&game.board(), Qt::Key_Delete);
            EXPECT_FALSE(game.find(u"Picture1"_s).isVisible());
        }
    };
    const auto pointsOfClosedCells = [this] {
        std::vector<QPoint> points{{0, 0}, {game.board().width() - 1, game.board().height() - 1}};
        for (CellId cell : AllCells)
            if (!game.session.game.isSelectable(cell))
                points.push_back(game.pointOf(cell));
        return points;
    };
    QTest::mouseClick(&game.find(u"digt_4"_s), Qt::LeftButton);
    for (bool loaded : {false, true}) {
        if (loaded)
            loadEasyPuzzle();
        const Board fresh = game.session.game.board;
        tryEverywhere(pointsOfClosedCells());
        EXPECT_EQ(game.session.game.board, fresh);
        EXPECT_TRUE(game.session.game.undoList.empty());
    }
}

TEST_F(Play, WithoutAPuzzleTagsAndArrowsDoNothing) {
    QTest::mousePress(&game.find(u"Celltags_4"_s), Qt::LeftButton);
    EXPECT_EQ(game.session.game.board, Board());
    for (Qt::Key key : {Qt::Key_Home, Qt::Key_Right, Qt::Key_5})
        QTest::keyClick(&game.board(), key);
    EXPECT_EQ(game.session.game.board, Board());
}

TEST_F(Play, AnotherPuzzleForgetsTheSelectionThePopupAndThePeek) {
    loadEasyPuzzle();
    const auto expectPuzzleUntouched = [this](int number) {
        EXPECT_EQ(PuzzleRecord(game.session.game.board), game.session.puzzle.record);
        EXPECT_EQ(game.session.puzzle.PuzNum, number);
    };
    QTest::keyClick(&game.board(), Qt::Key_Home);
    game.window->files().cmdarrow(1);
    QTest::keyClick(&game.board(), Qt::Key_5);
    expectPuzzleUntouched(2);

    const CellId cell = openCells().front();
    game.pointAt(cell);
    QTest::mouseClick(&game.board(), Qt::RightButton, {}, game.pointOf(cell));
    game.window->files().cmdarrow(1);
    EXPECT_FALSE(game.find(u"Picture1"_s).isVisible());
    QTest::mouseClick(&game.find(u"Num16_3"_s), Qt::LeftButton);
    expectPuzzleUntouched(3);

    QWidget& tag = game.find(u"Celltags_%1"_s.arg(cell.hexagon));
    QTest::mousePress(&tag, Qt::LeftButton);
    game.window->files().cmdarrow(1);
    QTest::mouseRelease(&tag, Qt::LeftButton);
    expectPuzzleUntouched(4);
}

TEST_F(Play, TheFocusReturnsToTheBoardFromAPopupThatWasOpenedByKey) {
    loadEasyPuzzle();
    QTest::keyClick(&game.board(), Qt::Key_Home);
    QTest::keyClick(&game.board(), Qt::Key_Menu);
    ASSERT_FALSE(game.board().hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_TRUE(game.board().hasFocus());
}

TEST_F(Play, AssistsAnswerToTheirButtons) {
    loadEasyPuzzle();
    const Board fresh = game.session.game.board;
    QTest::mouseClick(&game.find(u"cmdsetpairs"_s), Qt::LeftButton);
    EXPECT_TRUE(game.message().endsWith(u" Cells Fixed"_s));
    QTest::mouseClick(&game.find(u"cmdundo"_s), Qt::LeftButton);
    EXPECT_EQ(game.session.game.board, fresh);
    QTest::mouseClick(&game.find(u"cmdset1s"_s), Qt::LeftButton);
    EXPECT_EQ(game.message(), u"None Set"_s);
    game.prompts.answers = {answer::Yes, answer::Yes, answer::Yes};
    QTest::mouseClick(&game.find(u"cmdallpencil"_s), Qt::LeftButton);
    EXPECT_EQ(game.message(), u"Pencilmarks updated"_s);
    QTest::mouseClick(&game.find(u"cmdallpencil"_s), Qt::RightButton);
    EXPECT_EQ(game.message(), u"Pencilmarks cleared"_s);
    QTest::mouseClick(&game.find(u"cmdreset"_s), Qt::LeftButton);
    EXPECT_EQ(game.session.game.board, fresh);
}

TEST_F(Play, SolutionAndCandidatesShowOnlyWhileTheirButtonIsHeld) {
    loadEasyPuzzle();
    const Board fresh = game.session.game.board;
    const QImage before = game.board().grab().toImage();
    QTest::mousePress(&game.find(u"cmdshowsol"_s), Qt::LeftButton);
    EXPECT_NE(game.board().grab().toImage(), before);
    EXPECT_EQ(game.session.game.board, fresh);
    QTest::mouseRelease(&game.find(u"cmdshowsol"_s), Qt::LeftButton);
    EXPECT_EQ(game.board().grab().toImage(), before);

    QWidget& tag = game.find(u"Celltags_%1"_s.arg(openCells().front().hexagon));
    QTest::mousePress(&tag, Qt::LeftButton);
    EXPECT_NE(game.board().grab().toImage(), before);
    EXPECT_EQ(game.session.game.board, fresh);
    QTest::mouseRelease(&tag, Qt::LeftButton);
    EXPECT_EQ(game.board().grab().toImage(), before);
}

TEST_F(Play, ThePopupClosesByItself) {
    loadEasyPuzzle();
    game.pointAt(openCells().front());
    QTest::mouseClick(&game.board(), Qt::RightButton, {}, game.pointOf(openCells().front()));
    auto* timer = game.find(u"Picture1"_s).findChild<QTimer*>(u"Timer1"_s);
    ASSERT_NE(timer, nullptr);
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 6000);
    timer->setInterval(1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !game.find(u"Picture1"_s).isVisible(); }, 2000));
}

TEST_F(Play, AKeyRepaintsOneHexagonOnly) {
    loadEasyPuzzle();
    struct PaintedArea : QObject {
        bool eventFilter(QObject*, QEvent* event) override {
            if (event->type() == QEvent::Paint)
                area += static_cast<QPaintEvent*>(event)->region();
            return false;
        }
        QRegion area;
    } painted;
    const CellId cell = openCells().front();
    game.pointAt(cell);
    QApplication::processEvents();
    game.board().installEventFilter(&painted);
    QTest::keyClick(&game.board(), solutionOf(cell));
    QApplication::processEvents();
    ASSERT_FALSE(painted.area.isEmpty());
    const QRectF hexagon =
        game.board().boardToWidget().mapRect(QRectF(0, 0, 2 * HexagonSide + 6, 2 * HalfHeight + 6));
    EXPECT_LE(painted.area.boundingRect().width(), hexagon.width() + 2);
    EXPECT_LE(painted.area.boundingRect().height(), hexagon.height() + 2);
}

} // namespace
} // namespace tessaly
