#include "core/solver/puzzle_draft.h"

#include "core/board/digit_set.h"
#include "core/board/tables.h"

#include <algorithm>

namespace tessaly {
namespace {

constexpr CellSet makeFirstGivens() {
    CellSet given;
    for (CellId cell : AllCells)
        if (!SideLink[cell])
            given.add(cell);
    for (const RemovalEntry& entry : RemovalPlan)
        for (CellId cell : {entry.first, entry.second})
            if (cell)
                given.add(cell);
    return given;
}

constexpr CellSet FirstGivens = makeFirstGivens();

} // namespace

PuzzleDraft::PuzzleDraft(const HexagonWords& solution)
    : m_solution(solution)
    , m_sides(sideDigits(solution))
    , m_given(FirstGivens) {}

PuzzleDraft::PuzzleDraft(const Board& board)
    : m_solution(packEntries(board.SolNum))
    , m_sides(sideDigits(m_solution)) {
    for (CellId cell : AllCells)
        if (board.FixedCell[cell])
            give(cell);
}

int PuzzleDraft::solutionDigit(CellId cell) const {
    const HexagonWord cells = m_solution[static_cast<std::size_t>(cell.hexagon)];
    return DigitSet::fromBits(word::byteAt(cells, cell.position)).first();
}

bool PuzzleDraft::givesWholeRim() const {
    return std::all_of(AllCells.begin(), AllCells.end(),
                       [this](CellId cell) { return SideLink[cell] || isGiven(cell); });
}

HexagonWords PuzzleDraft::solutionAt(const CellSet& given) const {
    HexagonWords cells{};
    for (CellId cell : AllCells)
        if (const auto at = static_cast<std::size_t>(cell.hexagon); given.contains(cell))
            cells[at] |= m_solution[at] & word::maskOf(cell.position);
    return cells;
}

HexagonWords PuzzleDraft::solutionWithout(const SideSet& sides) const {
    HexagonWords cells = m_solution;
    const auto empty = [&cells](CellId cell) {
        cells[static_cast<std::size_t>(cell.hexagon)] &= ~word::maskOf(cell.position);
    };
    for (CellId cell : AllCells)
        if (const std::size_t direction = planes::sideIndex(cell);
            direction < SideDirections &&
            (sides[direction] & planes::hexagonBit(cell.hexagon)) != 0) {
            empty(cell);
            empty(SideLink[cell]);
        }
    return cells;
}

void PuzzleDraft::writeTo(Board& board) const {
    board.CellNum = {};
    board.SolNum = {};
    unpackChanges({}, givens(), board.CellNum);
    unpackChanges({}, m_solution, board.SolNum);
    for (CellId cell : AllCells)
        board.FixedCell[cell] = isGiven(cell);
}

} // namespace tessaly
