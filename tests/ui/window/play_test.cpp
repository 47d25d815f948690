#include "core/play/selection_walk.h"
#include "ui/game_window.h"

namespace tessaly::play_test {

struct Play : testing::Test {
    GameWindow game{"easy.txt"};
    const Game& play = game.session.game;
};

/// By key, pop-up and palette in turn.
TEST_F(Play, AnEasyPuzzleFromTheFirstCellToAllDoneAndBack) {
    const Board fresh = play.board;
    int step = 0;
    for (CellId cell : AllCells) {
        if (!play.isSelectable(cell))
            continue;
        const char digit = play.board.SolNum[cell].front();
        const QString item = u"digt_%1"_s.arg(digit - '1');
        game.pointAt(cell);
        EXPECT_TRUE(find(game.board(), u"Shape1"_s).isVisible());
        if (++step % 3 == 0) {
            QTest::keyClick(&game.board(), digit);
        } else if (step % 3 == 1) {
            QTest::mouseClick(&game.board(), Qt::RightButton, {}, game.pointOf(cell));
            game.click(u"Num16_%1"_s.arg(digit - '1'));
        } else {
            game.click(item);
            EXPECT_TRUE(game.find<BoxControl>(item).isLatched());
            QTest::mouseClick(&game.board(), Qt::LeftButton, {}, game.pointOf(cell));
            game.click(item);
        }
    }
    game.click(u"StatLab"_s);
    EXPECT_EQ(game.lastPrompt().text, "All Done!");
    const Board solved = play.board;
    for (const auto& [button, expected] :
         {std::pair(u"cmdundo"_s, fresh), {u"cmdredo"_s, solved}}) {
        for (int pressed = 0; pressed < step; ++pressed)
            game.click(button);
        EXPECT_EQ(play.board, expected);
    }
}

TEST_F(Play, KeysAloneReachEverything) {
    ASSERT_TRUE(game.board().hasFocus());
    game.press(Qt::Key_Home);
    const CellId first = firstSelectable(play);
    for (Qt::Key key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Left, Qt::Key_Up})
        game.press(key);
    EXPECT_EQ(game.board().input().cell(), first) << "once around";
    game.press(Qt::Key_End);
    EXPECT_EQ(game.selection(), lastSelectable(play));
    for (Qt::Key key : {Qt::Key_Home, Qt::Key_Menu, Qt::Key_Right, Qt::Key_Down, Qt::Key_Space})
        game.press(key);
    EXPECT_EQ(play.board.CellNum[first], "5");
    EXPECT_TRUE(game.board().hasFocus());
    for (int tabs = 0; tabs < 60 && !game.find(u"StatLab"_s).hasFocus(); ++tabs)
        game.press(Qt::Key_Tab);
    game.press(Qt::Key_Space);
    EXPECT_EQ(game.message(), u"Not done yet ..."_s);
}

TEST_F(Play, TheAssistsAnswerToTheirButtons) {
    const Board fresh = play.board;
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
    EXPECT_EQ(play.board, fresh);
}

TEST_F(Play, ThePencilTurnsEveryWayToEnterIntoAWayToMark) {
    const CellId cell = lastSelectable(play);
    const auto mark = [&](bool byPencil) {
        game.press(byPencil ? Qt::Key_1 : Qt::CTRL | Qt::Key_1);
        if (byPencil) {
            game.click(u"digt_2"_s);
            QTest::mouseClick(&game.board(), Qt::LeftButton, {}, game.pointOf(cell));
            game.click(u"digt_2"_s);
            QTest::mouseClick(&game.board(), Qt::RightButton, {}, game.pointOf(cell));
            game.click(u"Num16_4"_s);
        }
    };
    auto& pencil = game.find<BoxControl>(u"cmdpencil"_s);
    game.pointAt(cell);
    mark(false);
    EXPECT_EQ(play.board.CellNum[cell], " 1");
    game.press(Qt::Key_M);
    EXPECT_TRUE(pencil.isLatched());
    mark(true);
    EXPECT_EQ(play.board.CellNum[cell], "35");
    game.click(u"cmdpencil"_s);
    EXPECT_FALSE(pencil.isLatched() || game.find<QAction>(u"mnumakemarks"_s).isChecked());
    game.press(Qt::Key_2);
    EXPECT_EQ(play.board.CellNum[cell], "352") << "typed on";
}

TEST_F(Play, TheBoardIsFramedForTheKeyboardOnly) {
    game.find(u"cmdload"_s).setFocus();
    const QImage before = game.picture();
    game.pointAt(lastSelectable(play));
    QEvent leave(QEvent::Leave); // a large window may leave the pointer no place to go to
    QApplication::sendEvent(&game.board(), &leave);
    EXPECT_TRUE(game.board().hasFocus());
    EXPECT_EQ(game.picture(), before);
    game.board().clearFocus();
    game.board().setFocus(Qt::TabFocusReason);
    EXPECT_NE(game.picture(), before);
}

TEST_F(Play, SolutionAndCandidatesShowOnlyWhileButtonOrKeyIsHeld) {
    const QImage before = game.picture();
    const QSize size = game.window->size();
    const auto expectWhile = [&](auto hold, auto letGo) {
        hold();
        EXPECT_NE(game.picture(), before);
        letGo();
        game.resize({900, 900}); // the board is drawn anew
        game.resize(size);
        EXPECT_EQ(game.picture(), before);
        hold();
        QEvent away(QEvent::WindowDeactivate);
        QApplication::sendEvent(game.window.get(), &away);
        EXPECT_EQ(game.picture(), before) << "the window will not see the button come up";
        letGo();
    };
    for (const char* name : {"cmdshowsol", "Celltags_1"}) {
        QWidget& button = game.find(QLatin1String(name));
        expectWhile([&] { QTest::mousePress(&button, Qt::LeftButton); },
                    [&] { QTest::mouseRelease(&button, Qt::LeftButton); });
        button.setFocus();
        const QImage waiting = game.picture();
        for (const bool latched : {true, false, true}) {
            QTest::keyClick(&button, Qt::Key_Return);
            EXPECT_EQ(game.picture() != waiting, latched);
        }
        game.board().setFocus();
        EXPECT_EQ(game.picture(), before) << "a hold ends with the focus";
    }
    expectWhile(
        [&] {
            QTest::keyPress(&game.board(), Qt::Key_F2);
            QTest::keyPress(&game.board(), Qt::Key_F2); // held down, the key repeats
            QTest::keyRelease(&game.board(), Qt::Key_F3);
        },
        [&] { QTest::keyRelease(&game.board(), Qt::Key_F2); });
}

TEST_F(Play, ThePopupClosesByItselfByEscapeAndByAClickElsewhere) {
    QWidget& popup = game.find(u"Picture1"_s);
    auto& timer = game.find<QTimer>(u"Timer1"_s);
    const auto open = [&] {
        game.press(Qt::Key_Home);
        game.press(Qt::Key_Menu);
        EXPECT_FALSE(timer.isActive()) << "the hand is at it";
    };
    for (const bool fromPopup : {true, false}) {
        open();
        if (!fromPopup)
            game.board().setFocus();
        game.press(Qt::Key_Escape);
        EXPECT_TRUE(game.board().hasFocus() && !popup.isVisible());
    }
    EXPECT_TRUE(play.undoList.empty()) << "the pop-up was meant, not the cell";
    open();
    game.board().setFocus();
    EXPECT_EQ(timer.interval(), 6000);
    timer.setInterval(0);
    QApplication::processEvents();
    EXPECT_FALSE(popup.isVisible());
    for (const QString& elsewhere : {u"MsgLab"_s, u"cmdshowsol"_s, u"Celltags_19"_s}) {
        open();
        game.click(elsewhere);
        EXPECT_FALSE(popup.isVisible()) << elsewhere.toStdString();
    }
}

} // namespace tessaly::play_test
