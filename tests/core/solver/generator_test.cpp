// From chance over a filling to a puzzle.

#include "core/solver/chance.h"
#include "core/solver/generator.h"
#include "core/solver/puzzle_audit.h"
#include "core/solver/puzzle_draft.h"
#include "core/solver/search_fill.h"

#include "support/sample_boards.h"
#include "support/sample_puzzles.h"

#include <map>
#include <set>
#include <string>

namespace tessaly::generator_test {

constexpr auto Easy = Difficulty::Easy;
constexpr auto Hard = Difficulty::Hard;

/// That a board holds a sound puzzle of a difficulty, its givens and nothing else.
void expectPuzzle(const Board& board, Difficulty difficulty) {
    EXPECT_EQ(board.difficulty, difficulty);
    EXPECT_EQ(board, boardOf(PuzzleRecord(board)));
    EXPECT_EQ(auditRecord(PuzzleRecord(board)), std::vector<std::string>{});
}

// What puzzles promise besides is what the command line's check finds in those that it has created.
TEST(Generator, AWatchedPuzzleIsTheSameAndIsDrawnAsItGrows) {
    Chance chance(7);
    for (Difficulty difficulty : {Easy, Hard}) {
        Board board = sampleBoard(Sample::Puzzle, chance);
        board.SkipHex = 4;
        Grid<std::string> drawn = board.CellNum;
        int yields = 0;
        std::set<int> emptied;
        CreationObserver observer;
        observer.yield = [&] {
            ++yields;
            EXPECT_EQ(board.CellNum, drawn) << "what changed was drawn before the event loop runs";
        };
        observer.redraw = [&](int hexagon) {
            drawn[hexagon] = board.CellNum[hexagon];
            if (yields == 0)
                emptied.insert(hexagon);
        };
        Chance again = chance;
        CreatePuzzle(board, difficulty, chance, completeFill(), observer);
        EXPECT_EQ(board.CellNum, drawn);
        EXPECT_EQ(emptied.size(), 19U) << "the old puzzle goes first";
        EXPECT_GT(yields, 8);
        expectPuzzle(board, difficulty);
        Board unwatched;
        CreatePuzzle(unwatched, difficulty, again, completeFill());
        EXPECT_EQ(unwatched, board);
    }
}

TEST(Generator, ATableWithoutAFillingIsTriedAgainAndSaidSo) {
    std::vector<std::string> said;
    CreationObserver observer;
    observer.message = [&](const std::string& text) {
        said.push_back(text);
        if (said.size() == 2)
            throw said;
    };
    Board board;
    Chance chance(7);
    const SearchFill none(std::array<Arrangement, 1>{{{1, 2, 3, 4, 5, 6}}});
    EXPECT_THROW(CreatePuzzle(board, Easy, chance, none, observer), std::vector<std::string>);
    EXPECT_EQ(said, std::vector<std::string>(2, "No solution in 50 iterations, solution aborted"));
}

TEST(Generator, ABlankHexagonIsChosenOrTheGivensAreLeft) {
    Chance chance(8);
    int failures = 0;
    for (int i = 0; i < 100; ++i) {
        Board start = sampleBoard(Sample::Puzzle, chance);
        Board board = start;
        const auto difficulty = i % 2 == 0 ? Easy : Hard;
        if (ChooseBlankHexagon(board, difficulty, chance)) {
            expectPuzzle(board, difficulty);
            continue;
        }
        ++failures;
        start.difficulty = board.difficulty;
        start.BlankHex = start.SkipHex = NoHexagon;
        EXPECT_EQ(board, start);
    }
    EXPECT_NEAR(failures, 55, 34);
}

TEST(Generator, OneHalfOfTheDrawsIsEasy) {
    for (const auto& [number, drawn] :
         {std::pair(0U, Easy), {49U, Easy}, {50U, Hard}, {99U, Hard}}) {
        Chance chance = chanceOf(number);
        EXPECT_EQ(drawDifficulty(std::nullopt, chance), drawn) << number;
        EXPECT_EQ(drawDifficulty(Hard, chance), Hard);
    }
}

TEST(Chance, WhateverIsDrawnIsEquallyLikely) {
    EXPECT_NE(Chance::freshSeed(), Chance::freshSeed());
    Chance chance(3);
    std::map<std::string, double> counts;
    for (int i = 0; i < 48'000; ++i) {
        std::string order = "abcd";
        chance.shuffle(order);
        counts[order] += 24;
        // Of three quarters of the range every fourth number must be drawn again, or a third of
        // them would come twice as often.
        counts[std::to_string(chance.below(3U << 30) % 3)] += 3;
    }
    EXPECT_EQ(counts.size(), 24U + 3U);
    for (const auto& [kind, count] : counts)
        EXPECT_NEAR(count, 48'000, 4'000) << kind;
}

} // namespace tessaly::generator_test
