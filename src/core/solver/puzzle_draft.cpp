#include "core/solver/puzzle_draft.h"

#include "core/board/digit_set.h"
#include "core/board/tables.h"

namespace tessaly {
namespace {

constexpr HexagonWords makeFirstGivens() {
    HexagonWords given{};
    const auto give = [&given](CellId cell) {
        given[static_cast<std::size_t>(cell.hexagon)] |= word::maskOf(cell.position);
    };
    for (CellId cell : AllCells)
        if (!SideLink[cell])
            give(cell);
    for (const RemovalEntry& entry : RemovalPlan)
        for (CellId cell : {entry.first, entry.second})
            if (cell)
                give(cell);
    return given;
}

constexpr HexagonWords FirstGivens = makeFirstGivens();

} // namespace

PuzzleDraft::PuzzleDraft(const HexagonWords& solution)
    : m_solution(solution)
    , m_given(FirstGivens) {}

PuzzleDraft::PuzzleDraft(const Board& board)
    : m_solution(packEntries(board.SolNum)) {
    for (CellId cell : AllCells)
        if (board.FixedCell[cell])
            give(cell);
}

int PuzzleDraft::solutionDigit(CellId cell) const {
    return DigitSet::fromBits(word::byteAt(m_solution[index(cell.hexagon)], cell.position)).first();
}

HexagonWords PuzzleDraft::givens() const {
    HexagonWords cells{};
    for (std::size_t i = 1; i < cells.size(); ++i)
        cells[i] = m_solution[i] & m_given[i];
    return cells;
}

HexagonWords PuzzleDraft::givensWithout(int hexagon) const {
    HexagonWords cells = givens();
    cells[index(hexagon)] = 0;
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
