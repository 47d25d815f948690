#include "core/solver/deduction.h"

#include "core/solver/packed_rules.h"

#include <algorithm>

namespace tessaly {
namespace {

/// A board's cells at work in packed form; what changes goes back into its texts.
class Packing {
public:
    explicit Packing(Board& board)
        : m_board(board)
        , m_written(packEntries(board.CellNum))
        , m_rules(m_written, {board.SkipHex, board.BlankHex}, &board.CellNum) {}

    PackedRules& rules() { return m_rules; }

    void writeBack() {
        const HexagonWords& now = m_rules.board().cells();
        unpackChanges(m_written, now, m_board.CellNum);
        m_written = now;
    }

    /// What the loops call before each pass: the board is up to date when its owner sees it.
    auto yielding(const Yield& yield) {
        return [this, &yield] {
            if (!yield)
                return;
            writeBack();
            yield();
        };
    }

private:
    Board& m_board;
    HexagonWords m_written;
    PackedRules m_rules;
};

void apply(Board& board, std::int32_t& counter, void (PackedRules::*rule)()) {
    Packing packing(board);
    packing.rules().counter = counter;
    (packing.rules().*rule)();
    counter = packing.rules().counter;
    packing.writeBack();
}

} // namespace

void FixNeighbours(Board& board, std::int32_t& counter) {
    apply(board, counter, &PackedRules::FixNeighbours);
}

void GetCandidates(Board& board, std::int32_t& counter) {
    apply(board, counter, &PackedRules::GetCandidates);
}

void FixSingles(Board& board, std::int32_t& counter) {
    apply(board, counter, &PackedRules::FixSingles);
}

void FixXcellPairs(Board& board, std::int32_t& counter) {
    apply(board, counter, &PackedRules::FixXcellPairs);
}

int SolveByDeduction(Board& board, const Yield& yield) {
    Packing packing(board);
    packing.rules().solveByDeduction(packing.yielding(yield));
    packing.writeBack();
    return packing.rules().board().everyCellIsSettled() ? 0 : 1;
}

void SolveBasic(Board& board, bool useXcells, std::int32_t& counter, const Yield& yield) {
    Packing packing(board);
    packing.rules().solveBasic(useXcells, packing.yielding(yield));
    counter = packing.rules().counter;
    packing.writeBack();
}

int CheckHexagons(const Board& board, int leftOut) {
    return CheckHexagons(PackedBoard(packEntries(board.CellNum)), leftOut);
}

int countOpenCells(const Board& board) {
    return static_cast<int>(std::count_if(AllCells.begin(), AllCells.end(), [&board](CellId cell) {
        return board.CellNum[cell].size() > 1;
    }));
}

} // namespace tessaly
