#include "core/solver/next_step.h"

#include "core/solver/generator.h"
#include "core/solver/solution_counter.h"
#include "core/solver/step_sentence.h"
#include "support/sample_boards.h"
#include "support/sample_puzzles.h"

#include <cstdlib>
#include <set>
#include <sstream>

namespace tessaly::next_step_test {

/// How many solutions a board of nothing but a step's proof has in which its cell holds `digit`.
int solutionsWith(const Step& step, int digit, const Board& puzzle) {
    Board board;
    for (CellId cell : step.proof)
        board.FixedCell[cell] = true;
    board.SolNum = puzzle.SolNum;
    board.SolNum[step.cell] = std::to_string(digit);
    board.FixedCell[step.cell] = true;
    return countSolutions(board, {.solutions = 1}).found;
}

TEST(NextStep, EveryStepIsProvedByItsCellsAndTheyLeadToTheSolution) {
    const char* const asked = std::getenv("TESSALY_ROUNDS"); // for a longer run
    const std::uint64_t rounds = asked != nullptr ? std::strtoull(asked, nullptr, 10) : 100;
    std::set<std::string_view> seen;
    int inBlank = 0;
    for (std::uint64_t i = 0; i < rounds; ++i) {
        Chance chance(3, i);
        Board board;
        CreatePuzzle(board, Difficulties[i % 2].difficulty, chance, completeFill());
        Board unseen = board;
        unseen.SolNum = {};
        unseen.CellNum[board.BlankHex].fill("");
        WithheldDigits withheld{};
        while (const auto step = nextStep(unseen, withheld)) {
            ASSERT_EQ(std::to_string(step->digit), board.SolNum[step->cell]);
            for (CellId cell : step->proof)
                ASSERT_TRUE(cell.hexagon == board.BlankHex
                                ? withheld[static_cast<std::size_t>(cell.position)] != 0
                                : isPlaced(unseen.CellNum[cell]));
            for (int digit = 1; digit <= CellCount; ++digit)
                ASSERT_EQ(solutionsWith(*step, digit, board), digit == step->digit ? 1 : 0)
                    << sentenceOf(*step, unseen) << " in " << PuzzleRecord(board);
            take(*step, unseen, withheld);
            seen.insert(Reasons.at(static_cast<std::size_t>(step->reason)).word);
            inBlank += step->cell.hexagon == board.BlankHex ? 1 : 0;
            for (CellId cell : AllCells)
                if (unseen.CellNum[cell].empty() && i % 3 == 0)
                    unseen.CellNum[cell] = "246"; // marks say nothing
        }
        unseen.CellNum[board.BlankHex] = board.SolNum[board.BlankHex];
        ASSERT_EQ(unseen.CellNum, board.SolNum);
    }
    EXPECT_EQ(seen.size(), Reasons.size());
    EXPECT_GT(inBlank, 50);
}

/// A board that holds nothing but a few numbers, each as cell code and number: "052 6".
Board boardWith(const std::string& numbers, int blankHex) {
    Board board = puzzleWithoutGivens();
    board.BlankHex = blankHex;
    std::istringstream words(numbers);
    for (std::string code, number; words >> code >> number;)
        board.CellNum[{std::stoi(code.substr(0, 2)), code[2] - '0'}] = number;
    return board;
}

TEST(NextStep, TheSimplestReasonComesFirstAndIsToldInOneSentence) {
    const struct {
        std::string numbers;
        CellId cell;
        std::string sentence;
        WithheldDigits withheld = {};
    } rows[] = {
        {"031 6", {1, 4}, "The triangle across the side holds 6."},
        {"011 1 012 2 013 3 016 4 023 4 014 5 031 5",
         {1, 5},
         "6 is the last number that hexagon 1 lacks."},
        {"011 1 012 2 013 3 032 4 021 4", {1, 5}, "In hexagon 1 only this triangle can hold 4."},
        {"032 5 033 4 062 6 063 1 064 3", {3, 4}, "Here hexagon 3 and hexagon 6 leave only 2."},
        {"024 1 036 2 081 3 012 4 013 5", {1, 5}, "Here hexagon 1 and the solid one leave only 6."},
        {"024 1 036 2 081 3 102 4 073 5",
         {5, 2},
         "The solid hexagon must hold 6 there: it lacks no other."},
        {"024 1 036 2 081 3 104 6 131 6 076 6 093 6",
         {5, 2},
         "The solid hexagon must hold 6 there: it fits nowhere else in it."},
        {"", {1, 5}, "The solid hexagon holds 6 across the side.", {0, 0, 6}},
    };
    for (const auto& row : rows) {
        const Board board = boardWith(row.numbers, 5);
        const auto step = nextStep(board, row.withheld);
        ASSERT_TRUE(step) << row.sentence;
        EXPECT_EQ(step->cell, row.cell) << row.sentence;
        EXPECT_EQ(sentenceOf(*step, board), row.sentence);
    }
    EXPECT_FALSE(nextStep(boardWith("", NoHexagon)));
}

TEST(NextStep, MistakesAreFoundByTheRulesAndOnlyOnDemandByTheSolution) {
    const struct {
        std::string numbers;
        bool breaksARule;
        std::string sentence;
    } rows[] = {
        {"111 5 084 6", true, "One side cannot hold 6 and 5."},
        {"011 4 032 4 031 1 013 1 012 4", true, "Hexagon 1 cannot hold 4 twice."},
        {"024 3 036 3", true, "The solid hexagon cannot hold 3 twice."},
        {"011 4 052 2", false, "The 4 is wrong here."},
    };
    for (const auto& row : rows) {
        Board board = boardWith(row.numbers, 5);
        EXPECT_EQ(findBrokenRule(board).has_value(), row.breaksARule) << row.sentence;
        const auto mistake = findMistake(board);
        ASSERT_TRUE(mistake);
        EXPECT_EQ(sentenceOf(*mistake, board), row.sentence);
        board.SolNum = board.CellNum;
        EXPECT_EQ(findMistake(board).has_value(), row.breaksARule);
    }
}

} // namespace tessaly::next_step_test
