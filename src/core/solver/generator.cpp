#include "core/solver/generator.h"

#include "core/board/tables.h"
#include "core/solver/blank_hexagon.h"
#include "core/solver/puzzle_draft.h"

#include <algorithm>

namespace tessaly {
namespace {

/// Keeps the board that is watched in step with the draft, where anybody watches.
class Watched {
public:
    Watched(Board& board, const CreationObserver& observer)
        : m_board(board)
        , m_observer(observer) {}

    void yield() const {
        if (m_observer.yield)
            m_observer.yield();
    }

    void message(const std::string& text) const {
        if (m_observer.message)
            m_observer.message(text);
    }

    bool isDrawn() const { return static_cast<bool>(m_observer.redraw); }

    void show(int hexagon, HexagonWord cells) const {
        for (int position = 1; position <= CellCount; ++position)
            unpackEntry(word::byteAt(cells, position), m_board.CellNum[{hexagon, position}]);
        m_observer.redraw(hexagon);
    }

    void show(const HexagonWords& cells) const {
        for (int hexagon = 1; isDrawn() && hexagon <= HexagonCount; ++hexagon)
            show(hexagon, cells[static_cast<std::size_t>(hexagon)]);
    }
    void show(const PuzzleDraft& draft) const {
        if (isDrawn())
            show(draft.givens());
    }

private:
    Board& m_board;
    const CreationObserver& m_observer;
};

HexagonWords findFilling(Chance& chance, const SearchFill& fill, const Watched& watched) {
    SearchFill::OnChange onChange;
    if (watched.isDrawn())
        onChange = [&watched](int hexagon, HexagonWord cells) { watched.show(hexagon, cells); };
    for (;;) {
        watched.yield();
        HexagonWords cells{};
        const FillResult result = fill.fill(cells, chance, onChange);
        if (result.filled)
            return cells;
        watched.message("No solution in " + std::to_string(result.attempts) +
                        " iterations, solution aborted");
    }
}

/// What is known of a fresh draft at once.
enum class Prospect {
    /// No blank hexagon can make a puzzle of the difficulty, whatever givens are withdrawn.
    Hopeless,
    /// The four rules do not settle the board from its givens: none of them can be withdrawn.
    Unsolvable,
    Solvable,
};

/// Whether the number of one more cell beside a choice of blank hexagon would settle the board.
/// From fewer givens no hint can do what it does not do here.
bool aHintWouldHelp(const SideRules& stuck) {
    return std::any_of(BlankHexagonChoices.begin(), BlankHexagonChoices.end(), [&](int blankHex) {
        for (int position = 1; position <= CellCount; ++position) {
            const CellId hint = SideLink[{blankHex, position}];
            if (!mayHoldHint(hint) || !stuck.open().contains(hint))
                continue;
            SideRules trial = stuck;
            trial.settle(SideSet::of(hint));
            if (trial.deduceEverySide(true))
                return true;
        }
        return false;
    });
}

Prospect prospectOf(const PuzzleDraft& draft, Difficulty difficulty) {
    SideRules rules = draft.rules();
    if (rules.deduceEverySide(false))
        return Prospect::Solvable;
    if (difficulty == Difficulty::Easy)
        return Prospect::Hopeless;
    if (rules.deduceEverySide(true))
        return Prospect::Solvable;
    return aHintWouldHelp(rules) ? Prospect::Unsolvable : Prospect::Hopeless;
}

/// Withdraws the cells of an entry when the four rules can do without them: they can once they have
/// settled those. False when the draft is lost, for an easy one that needs rule 4 here needs it in
/// the end.
bool tryToWithdraw(PuzzleDraft& draft, const RemovalEntry& entry, Difficulty difficulty) {
    const SideSet sides =
        SideSet::of(entry.first) | (entry.second ? SideSet::of(entry.second) : SideSet());
    SideRules rules = draft.rulesWithout(sides);
    const bool isEasy = difficulty == Difficulty::Easy;
    const bool isBasic = isEasy && rules.deduce(sides, false);
    if (!isBasic && !rules.deduce(sides, true))
        return true;
    draft.withdraw(entry.first);
    if (entry.second)
        draft.withdraw(entry.second);
    return isBasic || !isEasy;
}

/// Withdraws each entry of the removal plan in turn that the four rules can do without, and in the
/// end the cells that are never given. False as soon as the draft is lost.
bool thinGivens(PuzzleDraft& draft, Difficulty difficulty, Prospect prospect,
                const Watched& watched) {
    for (const RemovalEntry& entry : RemovalPlan) {
        if (prospect == Prospect::Solvable && !tryToWithdraw(draft, entry, difficulty))
            return false;
        watched.yield();
        watched.show(draft);
    }
    for (CellId cell : NeverGiven)
        draft.withdraw(cell);
    return true;
}

std::optional<BlankChoice> chooseBlank(PuzzleDraft& draft, Difficulty difficulty, Chance& chance,
                                       const Watched& watched) {
    return chooseBlank(draft, difficulty, chance, [&](int hexagon) {
        watched.yield();
        if (watched.isDrawn())
            watched.show(draft.givensWithout(hexagon));
    });
}

/// Whether there can be a blank hexagon at all: no rule settles a cell on the rim, and what is easy
/// falls to rules 1 to 3 with all of its givens.
bool mayHaveBlank(const PuzzleDraft& draft, Difficulty difficulty) {
    return draft.givesWholeRim() &&
           (difficulty == Difficulty::Hard || draft.rules().deduceEverySide(false));
}

void writeChoice(const BlankChoice& choice, Difficulty difficulty, Board& board) {
    board.difficulty = difficulty;
    board.BlankHex = choice.blankHex;
    board.HintCell = choice.hintCell;
    board.HintNum = choice.hintNum;
}

} // namespace

Difficulty drawDifficulty(DifficultyChoice choice, Chance& chance) {
    if (choice)
        return *choice;
    return chance.below(100) < 50 ? Difficulty::Easy : Difficulty::Hard;
}

void CreatePuzzle(Board& board, Difficulty difficulty, Chance& chance, const SearchFill& fill,
                  const CreationObserver& observer) {
    const Watched watched(board, observer);
    board.SkipHex = NoHexagon;
    board.BlankHex = NoHexagon;
    watched.show({});
    for (;;) {
        // Whatever an attempt draws, the next one starts from the same place.
        Chance own(chance.next());
        PuzzleDraft draft(findFilling(own, fill, watched));
        const Prospect prospect = prospectOf(draft, difficulty);
        if (prospect == Prospect::Hopeless)
            continue;
        if (!thinGivens(draft, difficulty, prospect, watched))
            continue;
        if (const auto choice = chooseBlank(draft, difficulty, own, watched)) {
            draft.writeTo(board);
            writeChoice(*choice, difficulty, board);
            watched.show(draft);
            return;
        }
    }
}

bool ChooseBlankHexagon(Board& board, Difficulty difficulty, Chance& chance,
                        const CreationObserver& observer) {
    const Watched watched(board, observer);
    board.SkipHex = NoHexagon;
    board.BlankHex = NoHexagon;
    PuzzleDraft draft(board);
    const auto choice = mayHaveBlank(draft, difficulty)
                            ? chooseBlank(draft, difficulty, chance, watched)
                            : std::nullopt;
    draft.writeTo(board);
    writeChoice(choice.value_or(BlankChoice{}), difficulty, board);
    return choice.has_value();
}

} // namespace tessaly
