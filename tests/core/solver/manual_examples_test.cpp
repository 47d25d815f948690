#include "manual/examples.h"

#include "core/solver/deduction.h"
#include "core/solver/step_sentence.h"
#include "support/sample_puzzles.h"

#include <algorithm>

namespace tessaly::manual::manual_examples_test {

/// What a rule makes of a cell of an example.
std::string after(const Example& example, int rule, CellId cell) {
    constexpr std::array Rules{FixNeighbours, GetCandidates, FixSingles, FixXcellPairs};
    Board board = example.board;
    std::int32_t counter = 0;
    Rules.at(static_cast<std::size_t>(rule - 1))(board, counter);
    return board.CellNum[cell];
}

TEST(ManualExamples, EachRuleSettlesItsCellsAndNoSimplerOneDoes) {
    std::vector<int> rules;
    for (const Example& example : examples()) {
        rules.push_back(example.rule);
        for (CellId cell : example.settled) {
            EXPECT_EQ(after(example, example.rule, cell), example.number);
            EXPECT_EQ(example.board.SolNum[cell], example.number);
            for (int simpler = 1; simpler < example.rule; ++simpler)
                EXPECT_FALSE(isPlaced(after(example, simpler, cell)))
                    << "rule " << simpler << " where " << example.rule << " is explained";
            EXPECT_EQ(std::ranges::count(example.hexagons, cell.hexagon), 1);
        }
        for (int hexagon : example.hexagons)
            EXPECT_FALSE(example.board.isBlank(hexagon)) << "the player sees nothing there";
    }
    EXPECT_EQ(rules, (std::vector<int>{1, 2, 3, 4}));
}

TEST(ManualExamples, AreShippedPuzzlesAndAsTheManualTellsThem) {
    const std::string folder = TESSALY_DATA "/puzzles/";
    EXPECT_EQ(recordsOf(folder + "easy.txt").at(FirstNumber - 1), FirstPuzzle);
    EXPECT_EQ(recordsOf(folder + "hard.txt").at(CornerNumber - 1), CornerPuzzle);
    const std::vector<Example> all = examples();
    EXPECT_EQ(all[1].board.PlacedNumbers(3) + " " + all[1].board.PlacedNumbers(6), "65 321");
    const struct {
        std::size_t example;
        CellId cell;
        const char* entry;
    } rows[] = {{0, {5, 2}, "1"},   {2, {3, 1}, "23"},  {2, {3, 5}, "1234"}, {2, {3, 6}, "234"},
                {3, {5, 5}, "136"}, {3, {5, 6}, "16"},  {3, {7, 3}, "16"},   {3, {7, 4}, "16"},
                {3, {10, 1}, "16"}, {3, {10, 2}, "136"}};
    for (const auto& row : rows)
        EXPECT_EQ(all[row.example].board.CellNum[row.cell], row.entry);

    std::string manual = contentOf(TESSALY_DATA "/tessaly.htm");
    std::ranges::replace(manual, '\n', ' ');
    constexpr std::array ReasonOf{Reason::Across, Reason::Cell, Reason::Place, Reason::Xcell};
    constexpr int Corner = 8;
    for (const Example& example : all) {
        const Step step{ReasonOf.at(static_cast<std::size_t>(example.rule - 1)),
                        example.settled.front(),
                        std::stoi(example.number),
                        {},
                        Corner};
        const std::string sentence = sentenceOf(step, example.board);
        EXPECT_NE(manual.find("<i>" + sentence + "</i>"), std::string::npos) << sentence;
    }
}

} // namespace tessaly::manual::manual_examples_test
