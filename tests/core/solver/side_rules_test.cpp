#include "core/solver/side_rules.h"

#include "core/solver/packed_rules.h"
#include "core/solver/puzzle_draft.h"
#include "support/sample_boards.h"

#include <gtest/gtest.h>

#include <array>

namespace tessaly {
namespace {

/// A filling with the rim and some more cells given, few or many.
PuzzleDraft randomDraft(const HexagonWords& filling, Chance& chance) {
    PuzzleDraft draft(filling);
    const std::uint32_t percent = chance.below(30);
    for (CellId cell : AllCells)
        if (SideLink[cell]) {
            draft.withdraw(cell);
            if (chance.below(100) < percent)
                draft.give(cell);
        }
    return draft;
}

TEST(SideRules, EndWhereTheRulesEndOneByOneOnAHundredThousandBoards) {
    std::array<int, 2> stuck{};
    for (std::uint64_t i = 0; i < 5'000; ++i) {
        Chance chance(9, i);
        HexagonWords filling{};
        completeFill().fill(filling, chance);
        for (int board = 0; board < 20; ++board) {
            const PuzzleDraft draft = randomDraft(filling, chance);
            const bool useXcells = board % 2 == 1;
            PackedRules oneByOne(draft.givens());
            oneByOne.solveBasic(useXcells, [] {});
            SideRules together = draft.rules();
            const bool isDone = together.deduceEverySide(useXcells);
            ASSERT_EQ(isDone, oneByOne.board().everyCellIsSettled());
            for (CellId cell : AllCells)
                ASSERT_NE(together.open().contains(cell), oneByOne.board().isSettled(cell));
            stuck.at(useXcells ? 1 : 0) += isDone ? 0 : 1;
        }
    }
    for (int count : stuck)
        EXPECT_TRUE(count > 10'000 && count < 49'000) << count;
}

} // namespace
} // namespace tessaly
