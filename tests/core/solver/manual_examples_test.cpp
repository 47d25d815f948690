#include "manual/examples.h"

#include "core/board/puzzle_store.h"
#include "core/solver/deduction.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tessaly::manual {
namespace {

using Rule = void (*)(Board&, std::int32_t&);
constexpr std::array<Rule, 4> Rules{FixNeighbours, GetCandidates, FixSingles, FixXcellPairs};

Board after(const Example& example, int rule) {
    Board board = example.board;
    std::int32_t counter = 0;
    Rules[static_cast<std::size_t>(rule - 1)](board, counter);
    return board;
}

TEST(ManualExamples, EachRuleSettlesItsCellsAndNoSimplerOneDoes) {
    std::vector<int> rules;
    for (const Example& example : examples()) {
        rules.push_back(example.rule);
        for (CellId cell : example.settled) {
            EXPECT_EQ(after(example, example.rule).CellNum[cell], example.number);
            EXPECT_EQ(example.board.SolNum[cell], example.number);
            for (int simpler = 1; simpler < example.rule; ++simpler)
                EXPECT_FALSE(isPlaced(after(example, simpler).CellNum[cell]))
                    << "rule " << simpler << " where " << example.rule << " is explained";
            const auto& shown = example.hexagons;
            EXPECT_NE(std::find(shown.begin(), shown.end(), cell.hexagon), shown.end());
        }
        for (int hexagon : example.hexagons)
            EXPECT_FALSE(example.board.isBlank(hexagon)) << "the player sees nothing there";
    }
    EXPECT_EQ(rules, (std::vector<int>{1, 2, 3, 4}));
}

/// What the manual says of the numbers in its examples.
TEST(ManualExamples, AreAsTheManualTellsThem) {
    const std::vector<Example> all = examples();
    EXPECT_EQ(all[0].board.CellNum[5][2], "6");
    EXPECT_EQ(all[1].board.PlacedNumbers(3), "54");
    EXPECT_EQ(all[1].board.PlacedNumbers(6), "613");
    EXPECT_EQ(all[2].board.CellNum[3][1], "13");
    EXPECT_EQ(all[2].board.CellNum[3][5], "1236");
    EXPECT_EQ(all[2].board.CellNum[3][6], "123");
    std::string corner;
    for (CellId cell : std::vector<CellId>{{5, 5}, {5, 6}, {7, 3}, {7, 4}, {10, 1}, {10, 2}})
        corner += all[3].board.CellNum[cell] + " ";
    EXPECT_EQ(corner, "234 24 24 24 24 234 ");
}

TEST(ManualExamples, AreShippedPuzzles) {
    const std::filesystem::path folder = std::filesystem::path(TESSALY_DATA) / "puzzles";
    Board board;
    PuzzleStore files;
    EXPECT_EQ(files.ReadPuzzle(folder / "easy.txt", FirstNumber, board).record, FirstPuzzle);
    EXPECT_EQ(files.ReadPuzzle(folder / "hard.txt", CornerNumber, board).record, CornerPuzzle);
}

} // namespace
} // namespace tessaly::manual
