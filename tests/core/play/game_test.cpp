#include "core/play/game.h"

#include "core/play/assists.h"
#include "support/sample_puzzles.h"

#include <algorithm>
#include <functional>
#include <iterator>

namespace tessaly::game_test {

constexpr CellId Cell{7, 3};
using Entries = Grid<std::string>::Row;

struct GameTest : testing::Test, Game {
    void type(CellId cell, const std::string& digits) {
        for (char digit : digits)
            typeDigit(cell, digit);
    }
};

TEST_F(GameTest, TypedDigitsMakeMarksAndOneUndoRecord) {
    type(Cell, "3513120645");
    ASSERT_EQ(undoList.size(), 1u);
    EXPECT_EQ(undoList.text(0), "0703");
    EXPECT_EQ(board.CellNum[Cell], "351206") << "no digit twice, six at most";
    place(Cell, "");
    undo();
    EXPECT_EQ(board.CellNum[Cell], "351206") << "all six come back";
    EXPECT_TRUE(undo().test(7));
    EXPECT_EQ(board.CellNum[Cell], "");
    EXPECT_TRUE(TouchedCell[Cell]) << "a single record leaves the cell touched";
    EXPECT_TRUE(undo().none());

    for (const char* entry : {"3", "", ""})
        place(Cell, entry);
    PushUndo(0, 3);
    PushUndo(7, -1);
    ASSERT_EQ(undoList.size(), 3u) << "placing always pushes the entry before";
    EXPECT_EQ(undoList.text(1), "07033");
}

TEST_F(GameTest, CopyAcrossSidesFeedsLaterCellsAndIsUndoneAsOne) {
    board.BlankHex = 5;
    place({2, 3}, "6"); // faces hexagon 1 cell 6
    place({5, 1}, "4"); // faces hexagon 2 cell 4, but hexagon 5 is blank
    board.CellNum[1][6] = "123456";
    int count = 0;
    CopyAcrossSides(count);
    EXPECT_EQ(count, 1);
    EXPECT_EQ(board.CellNum[1][6], "6");
    EXPECT_EQ(board.CellNum[2][4], "");
    EXPECT_EQ(undoList.text(0), "0106*123456");
    EXPECT_TRUE(undo().test(1));
    EXPECT_EQ(board.CellNum[1][6], "123456");
    EXPECT_FALSE(TouchedCell[1][6]);
}

TEST_F(GameTest, MarksAreMadeTakenAndTypedOn) {
    const auto turned = [this](const std::string& entry, char digit) {
        board.CellNum[Cell] = entry;
        turnMark(Cell, digit);
        std::string after = board.CellNum[Cell];
        undo();
        EXPECT_EQ(board.CellNum[Cell], entry);
        return after;
    };
    for (const auto& [entry, digit, expected] : {std::tuple("", '4', " 4"),
                                                 {" 4", '4', ""},
                                                 {" 4", '5', "45"},
                                                 {"45", '4', " 5"},
                                                 {"3", '3', " 3"},
                                                 {"3", '5', "35"},
                                                 {"654321", '3', "65421"},
                                                 {"012345", '6', "012345"}})
        EXPECT_EQ(turned(entry, digit), expected) << entry << " and " << digit;
    for (const auto& [digits, expected] : {std::pair("4", "4"), {"45", "45"}, {"54", "45"}}) {
        board.CellNum[Cell] = " 4";
        type(Cell, digits);
        EXPECT_EQ(board.CellNum[Cell], expected) << "typed " << digits;
    }
}

TEST_F(GameTest, AnEntryTakesAlongWhatIsSwitchedOnAndOneUndoTakesAllBack) {
    const CellId cell{2, 3};
    const auto seen = [&] {
        std::string text;
        for (CellId shown : {cell, CellId{1, 6}, CellId{2, 5}, CellId{1, 2}, CellId{3, 1}})
            text += board.CellNum[shown] + "|";
        return text;
    };
    const std::string before = "|12|34|13|13|";
    for (const auto& [fill, strike, typed, expected] :
         {std::tuple(false, false, "3", "3|12|34|13|13|"),
          {true, false, "3", "3|3|34|13|13|"},
          {false, true, "3", "3|12| 4| 1|13|"},
          {true, true, "3", "3|3| 4| 1|13|"},
          {true, true, "35", "35|12|34|13|13|"},
          {true, true, "0", "0|12|34|13|13|"}}) {
        switches = {.fillBothSides = fill, .strikeMarks = strike};
        board.CellNum[cell] = "";
        board.CellNum[1] = {"", "", "13", "", "", "", "12"};
        board.CellNum[{2, 5}] = "34";
        board.CellNum[{3, 1}] = "13";
        type(cell, typed);
        EXPECT_EQ(seen(), expected) << typed;
        undo();
        EXPECT_EQ(seen(), before);
        redo();
        EXPECT_EQ(seen(), expected);
    }
    switches.strikeMarks = false;
    board.FixedCell[{2, 5}] = true; // a given
    for (const auto& [entry, expected] :
         {std::pair("4", "4|4|34|13|13|"), {"", "||34|13|13|"}, {"6", "6|6|34|13|13|"}}) {
        place(cell, entry);
        EXPECT_EQ(seen(), expected);
    }
    board.CellNum[{1, 6}] = "5";
    place(cell, "");
    EXPECT_EQ(seen(), "|5|34|13|13|") << "another number stays";
}

TEST_F(GameTest, WhateverIsTakenBackCanBeDoneAgainStepByStep) {
    board = boardOf(sampleRecords("easy.txt").front());
    std::vector<CellId> open;
    std::copy_if(AllCells.begin(), AllCells.end(), std::back_inserter(open),
                 [this](CellId cell) { return isSelectable(cell); });
    int count = 0;
    const std::function<void()> steps[] = {
        [&] { type(open[0], "35"), place(open[1], "4"), type(open[0], "1"); },
        [&] { CopyAcrossSides(count); },
        [&] { fillMarks(); }, // between two grouped runs
        [&] { CopyAcrossSides(count), setSingles(); },
        [&] { clearMarks(); },
    };
    std::vector<Board> boards{board};
    for (const auto& step : steps) {
        step();
        boards.push_back(board);
    }
    const std::string position = positionText(*this);
    const std::size_t records = undoList.size();
    EXPECT_GT(count, 1);
    boards.erase(std::unique(boards.begin(), boards.end()), boards.end());
    for (int turn = 0; turn < 2; ++turn) {
        auto expected = boards.rbegin();
        for (; canUndo(); undo())
            expected += *expected == board ? 1 : 0;
        EXPECT_TRUE(*expected == board && expected + 1 == boards.rend());
        auto again = boards.begin();
        for (; canRedo(); redo())
            again += *again == board ? 1 : 0;
        EXPECT_TRUE(*again == board && again + 1 == boards.end());
        EXPECT_EQ(positionText(*this), position);
        EXPECT_EQ(undoList.size(), records);
    }
    place(open[0], "4");
    place(open[1], "2");
    undo();
    type(open[0], "4");
    EXPECT_TRUE(canRedo()) << "a digit that is there already is no change";
    type(open[0], "5");
    EXPECT_FALSE(canRedo()) << "a new change forgets it, an undo record or none";
}

TEST_F(GameTest, OnlyWhatThePlayerMayFillIsSelectableAndReset) {
    EXPECT_FALSE(isSelectable({1, 2})) << "no puzzle";
    const Board fresh = boardOf(sampleRecords("easy.txt").front());
    board = fresh;
    for (CellId cell : AllCells) {
        const bool isOpen = !fresh.FixedCell[cell] && cell.hexagon != fresh.BlankHex;
        EXPECT_EQ(isSelectable(cell), isOpen);
        if (isOpen)
            type(cell, cell.position % 2 == 0 ? "12" : "3");
    }
    EXPECT_FALSE(isSelectable(CellId{}));
    reset();
    EXPECT_EQ(board, fresh);
    EXPECT_TRUE(undoList.empty());
    EXPECT_EQ(TouchedCell, Grid<bool>{});
}

/// Hexagon 10 holds the givens 1, 2 and 3 in its cells 1, 2 and 3. Its cell 5 faces hexagon 15, its
/// cell 2 faces hexagon 5.
struct AssistsTest : GameTest {
    AssistsTest() {
        board.CellNum[10] = {"", "1", "2", "3", "", "", ""};
        for (int position = 1; position <= 3; ++position)
            board.FixedCell[CellId{10, position}] = true;
    }
    std::string candidates(CellId cell) const { return CandidateText(board, TouchedCell, cell); }
};

TEST_F(AssistsTest, CandidatesComeFromBothHexagonsOfTheSide) {
    place({15, 1}, "6");
    EXPECT_EQ(candidates({10, 5}), "45");
    board.CellNum[10][5] = "45";
    EXPECT_EQ(candidates({10, 5}), "456") << "its own hexagon's where the marks stand already";
    board.CellNum[10][5] = "";
    place({15, 2}, "5");
    EXPECT_EQ(candidates({10, 5}), "5") << "the pair must match";
    EXPECT_EQ(candidates({10, 1}), "1") << "a given is itself";
    EXPECT_EQ(candidates({1, 1}), "123456") << "a rim cell";
    board.CellNum[10][4] = "4";
    EXPECT_EQ(candidates({10, 4}), "456") << "a number of a saved game counts only once touched";
    TouchedCell[10][4] = true;
    EXPECT_EQ(candidates({10, 4}), "4");
    place({10, 5}, "5");
    board.CellNum[10][6] = "12";
    EXPECT_EQ(candidates({10, 6}), "12") << "the last cell of a hexagon is left alone";
    board.BlankHex = 15;
    EXPECT_EQ(candidates({10, 5}), "5") << "a number that is there stays";
    board.CellNum[10][4] = "";
    board.CellNum[10][5] = "";
    EXPECT_EQ(candidates({10, 5}), "456") << "nothing of what is withheld is given away";
    board.SkipHex = 10;
    EXPECT_EQ(candidates({10, 5}), "");
}

TEST_F(AssistsTest, MarksReplaceMarksAndUntouchedNumbersAndAreCleared) {
    board.CellNum[10] = {"", "1", "2", "3", "6", "12", ""};
    const Board before = board;
    EXPECT_EQ(withCandidates(board, TouchedCell, 10).CellNum[10][5], "456");
    EXPECT_EQ(board, before) << "a peek is a copy";
    fillPencilMarks(board, TouchedCell);
    EXPECT_EQ(board.CellNum[10], (Entries{"", "1", "2", "3", "456", "456", "456"}));
    EXPECT_EQ(board.CellNum[5][5], "2") << "what the given across the side holds";
    clearPencilMarks(board);
    EXPECT_EQ(board.CellNum[10], (Entries{"", "1", "2", "3", "", "", ""}));
}

TEST_F(GameTest, TheSingleCandidateIsTheFirstOpenCellOfAHexagonThatLacksOneNumber) {
    const std::pair<Entries, int> rows[] = {
        {{"", "1", "23", "3", "4", "5", "6"}, 2},
        {{"", "1", "23", "3", "4", "3", "6"}, 0}, // two numbers are missing
        {{"", "1", "1", "3", "4", "5", "6"}, 0},  // no open cell
    };
    for (const auto& [entries, position] : rows) {
        board.CellNum[4] = entries;
        EXPECT_EQ(SingleCandidate(board, 4).cell.position, position);
        EXPECT_EQ(SingleCandidate(board, 4).number, position == 0 ? "" : "2");
    }
    board.CellNum[4] = rows[0].first;
    board.SkipHex = 4;
    EXPECT_FALSE(SingleCandidate(board, 4).cell || SingleCandidate(board, 20).cell);
}

TEST_F(GameTest, TheCheckFindsTheLowestWrongHexagonAndWhetherAllIsSolved) {
    board = boardOf(sampleRecords("easy.txt").front());
    EXPECT_EQ(firstWrongHexagon(board), 0) << "missing numbers are no fault";
    board.CellNum[12] = {"", "3", "", "3", "", "33", ""};
    EXPECT_EQ(firstWrongHexagon(board), 12);
    board.CellNum[3] = {"", "", "", "0", "", "", ""};
    EXPECT_EQ(firstWrongHexagon(board), 3);

    board.CellNum = board.SolNum;
    EXPECT_TRUE(isSolved(board));
    for (const std::string& wrong : {std::string("12"), std::string(), board.SolNum[19][5]}) {
        board.CellNum[19][6] = wrong;
        EXPECT_FALSE(isSolved(board)) << wrong;
    }
    for (CellId cell : AllCells)
        board.SolNum[cell] = cell.hexagon % 2 == 0 ? "" : "0";
    EXPECT_TRUE(isSolved(board)) << "where there is no solution any number will do";
    board.CellNum[2][1] = "45";
    EXPECT_FALSE(isSolved(board));
}

} // namespace tessaly::game_test
