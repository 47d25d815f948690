#include "manual/examples.h"

#include "core/board/puzzle_store.h"
#include "core/solver/deduction.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tessaly::manual {
namespace {

Board after(const Example& example, int rule) {
    Board board = example.board;
    std::int32_t counter = 0;
    constexpr std::array Rules{FixNeighbours, GetCandidates, FixSingles, FixXcellPairs};
    Rules.at(static_cast<std::size_t>(rule - 1))(board, counter);
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
            EXPECT_EQ(std::ranges::count(example.hexagons, cell.hexagon), 1);
        }
        for (int hexagon : example.hexagons)
            EXPECT_FALSE(example.board.isBlank(hexagon)) << "the player sees nothing there";
    }
    EXPECT_EQ(rules, (std::vector<int>{1, 2, 3, 4}));
}

/// What the manual says of the numbers in its examples.
TEST(ManualExamples, AreAsTheManualTellsThem) {
    const std::vector<Example> all = examples();
    EXPECT_EQ(all[1].board.PlacedNumbers(3), "54");
    EXPECT_EQ(all[1].board.PlacedNumbers(6), "613");
    const auto entries = [&all](std::size_t example, const std::vector<CellId>& cells) {
        std::string text;
        for (CellId cell : cells)
            text += all[example].board.CellNum[cell] + " ";
        return text;
    };
    EXPECT_EQ(entries(0, {{5, 2}}), "6 ");
    EXPECT_EQ(entries(2, {{3, 1}, {3, 5}, {3, 6}}), "13 1236 123 ");
    EXPECT_EQ(entries(3, {{5, 5}, {5, 6}, {7, 3}, {7, 4}, {10, 1}, {10, 2}}),
              "234 24 24 24 24 234 ");
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
