#include "core/solver/blank_hexagon.h"

#include "core/board/digit_set.h"
#include "core/board/tables.h"
#include "core/solver/deduction.h"
#include "core/solver/packed_rules.h"

#include <algorithm>
#include <array>
#include <span>

namespace tessaly {
namespace {

constexpr auto NoYield = [] {};

/// Looks for the hint of a hard puzzle whose blank hexagon is chosen.
class HintSearch {
public:
    HintSearch(PuzzleDraft& draft, int blankHex)
        : m_draft(draft)
        , m_blankHex(blankHex)
        , m_stuck(draft.rulesWithout(blankHex))
        , m_isStuck(!m_stuck.deduceEverySide(false)) {}

    bool isStuck() const { return m_isStuck; }

    std::optional<BlankChoice> run(Chance& chance) {
        std::array<CellId, CellCount> cells;
        const std::span<CellId> hints = collectCells(cells);
        chance.shuffle(hints);
        for (CellId cell : hints)
            if (isHint(cell)) {
                m_draft.give(cell);
                return BlankChoice{m_blankHex, cell.position, m_draft.solutionDigit(cell)};
            }
        return std::nullopt;
    }

private:
    /// The open cells that touch the blank hexagon from outside.
    std::span<CellId> collectCells(std::array<CellId, CellCount>& cells) const {
        std::size_t count = 0;
        for (int position = 1; position <= CellCount; ++position) {
            const CellId cell = SideLink[{m_blankHex, position}];
            if (cell && mayHoldHint(cell) && m_stuck.open().contains(cell))
                cells[count++] = cell;
        }
        return std::span(cells).first(count);
    }

    bool isHint(CellId cell) {
        SideRules rules = m_stuck;
        rules.settle(SideSet::of(cell));
        return !rules.deduceEverySide(false) && rules.deduceEverySide(true) &&
               noOtherDigitSucceeds(cell);
    }

    /// Tries the other candidates in ascending order, as far as it has to: a digit that leaves the
    /// board unsettled ends the trials, and with them the cell unless the right one came before.
    bool noOtherDigitSucceeds(CellId cell) {
        const int solution = m_draft.solutionDigit(cell);
        const HexagonWord cells = stuckCells().board().hexagon(cell.hexagon);
        const DigitSet candidates = DigitSet::fromBits(word::byteAt(cells, cell.position));
        for (DigitSet rest = candidates; !rest.empty(); rest = rest.withoutFirst()) {
            const int digit = rest.first();
            if (digit == solution)
                continue;
            const int verdict = verdictOn(cell, digit);
            if (verdict == Unsettled)
                return digit > solution;
            if (verdict == SettledAndSound)
                return false;
        }
        return true;
    }

    int verdictOn(CellId cell, int digit) {
        PackedRules trial = stuckCells();
        trial.settle(cell, digit);
        trial.solveBasic(true, NoYield);
        return CheckHexagons(trial.board(), m_blankHex);
    }

    /// Where rules 1 to 3 are stuck, for wrong digits: what these lead to depends on the order in
    /// which the rules are applied.
    const PackedRules& stuckCells() {
        if (!m_stuckCells) {
            m_stuckCells.emplace(m_draft.solutionWithout(m_stuck.open()));
            m_stuckCells->solveBasic(false, NoYield);
        }
        return *m_stuckCells;
    }

    PuzzleDraft& m_draft;
    int m_blankHex;
    /// The givens without the blank hexagon, as far as rules 1 to 3 go.
    SideRules m_stuck;
    bool m_isStuck;
    std::optional<PackedRules> m_stuckCells;
};

/// Whether rules 1 to 3 settle a board without a hexagon's givens when they do with them: they do
/// once they have settled those.
bool fallsWithout(const PuzzleDraft& draft, int hexagon) {
    SideRules rules = draft.rulesWithout(hexagon);
    return rules.deduce(rules.open() - draft.rules().open(), false);
}

std::optional<BlankChoice> tryBlank(PuzzleDraft& draft, Difficulty difficulty, int hexagon,
                                    Chance& chance) {
    if (difficulty == Difficulty::Easy)
        return fallsWithout(draft, hexagon) ? std::optional(BlankChoice{hexagon}) : std::nullopt;
    HintSearch search(draft, hexagon);
    return search.isStuck() ? search.run(chance) : std::nullopt;
}

} // namespace

bool mayHoldHint(CellId cell) {
    return std::find(NeverGiven.begin(), NeverGiven.end(), cell) == NeverGiven.end();
}

CellId hintedCell(int blankHex, int hintCell) {
    if (!isHexagon(blankHex) || hintCell < 1 || hintCell > CellCount)
        return {};
    return SideLink[{blankHex, opposite(hintCell)}];
}

std::optional<BlankChoice> chooseBlank(PuzzleDraft& draft, Difficulty difficulty, Chance& chance,
                                       const std::function<void(int hexagon)>& beforeTrial) {
    std::array<int, BlankHexagonChoices.size()> hexagons = BlankHexagonChoices;
    chance.shuffle(hexagons);
    for (int hexagon : hexagons) {
        if (beforeTrial)
            beforeTrial(hexagon);
        if (const auto choice = tryBlank(draft, difficulty, hexagon, chance)) {
            draft.giveHexagon(hexagon);
            return choice;
        }
    }
    return std::nullopt;
}

} // namespace tessaly
