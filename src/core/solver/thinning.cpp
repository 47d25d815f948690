#include "core/solver/thinning.h"

#include "core/board/tables.h"
#include "core/solver/blank_hexagon.h"
#include "core/solver/packed_rules.h"
#include "core/solver/removal_plan.h"

#include <algorithm>

namespace tessaly {
namespace {

constexpr auto EveryCell = [](const PackedBoard& board) { return board.everyCellIsSettled(); };

/// Whether the number of one more cell beside a choice of blank hexagon would settle the board.
/// From fewer givens no hint can do what it does not do here.
bool aHintWouldHelp(const PuzzleDraft& draft, const PackedRules& stuck) {
    return std::any_of(BlankHexagonChoices.begin(), BlankHexagonChoices.end(), [&](int blankHex) {
        for (int position = 1; position <= CellCount; ++position) {
            const CellId hint = SideLink[{blankHex, position}];
            if (!mayHoldHint(hint) || stuck.board().isSettled(hint))
                continue;
            PackedRules trial = stuck;
            trial.settle(hint, draft.solutionDigit(hint));
            if (trial.deduceUntil(true, EveryCell))
                return true;
        }
        return false;
    });
}

/// Whether the four rules settle the board without the cells of an entry when they do with them:
/// they do once they have settled those.
bool canDoWithout(const PuzzleDraft& draft, const RemovalEntry& entry) {
    return PackedRules(draft.givens()).deduceUntil(true, [&entry](const PackedBoard& board) {
        return board.isSettled(entry.first) && (!entry.second || board.isSettled(entry.second));
    });
}

void tryToWithdraw(PuzzleDraft& draft, const RemovalEntry& entry) {
    const PuzzleDraft before = draft;
    draft.withdraw(entry.first);
    if (entry.second)
        draft.withdraw(entry.second);
    if (!canDoWithout(draft, entry))
        draft = before;
}

} // namespace

Prospect prospectOf(const PuzzleDraft& draft, Difficulty difficulty) {
    PackedRules rules(draft.givens());
    if (rules.deduceUntil(false, EveryCell))
        return Prospect::Solvable;
    if (difficulty == Difficulty::Easy)
        return Prospect::Hopeless;
    if (rules.deduceUntil(true, EveryCell))
        return Prospect::Solvable;
    return aHintWouldHelp(draft, rules) ? Prospect::Unsolvable : Prospect::Hopeless;
}

void thinGivens(PuzzleDraft& draft, Prospect prospect, const std::function<void()>& afterEntry) {
    for (const RemovalEntry& entry : RemovalPlan) {
        if (prospect == Prospect::Solvable)
            tryToWithdraw(draft, entry);
        if (afterEntry)
            afterEntry();
    }
    for (CellId cell : NeverGiven)
        draft.withdraw(cell);
}

} // namespace tessaly
