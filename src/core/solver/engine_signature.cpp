#include "core/solver/engine_signature.h"

#include "core/board/puzzle_record.h"
#include "core/solver/deduction.h"
#include "core/solver/puzzle_series.h"
#include "core/solver/solution_counter.h"

#include <string_view>

namespace tessaly {
namespace {

constexpr int Fillings = 1000;
constexpr std::uint64_t PuzzlesOfEachDifficulty = 500;
constexpr std::uint64_t Seed = 1;

/// The hash FNV-1a of 64 bits (Glenn Fowler, Landon Curt Noll and Kiem-Phong Vo).
class Hash {
public:
    void add(std::string_view text) {
        for (char c : text) {
            m_value ^= static_cast<unsigned char>(c);
            m_value *= 0x100'0000'01B3;
        }
    }
    std::uint64_t value() const { return m_value; }

private:
    std::uint64_t m_value = 0xCBF2'9CE4'8422'2325;
};

void addFillings(const SearchFill& fill, Hash& hash) {
    Chance chance(Seed);
    for (int i = 0; i < Fillings; ++i) {
        HexagonWords cells{};
        fill.fill(cells, chance);
        for (HexagonWord word : cells)
            hash.add(std::to_string(word));
    }
}

/// What the rules make of a puzzle, from all of its givens and without its blank hexagon.
void addSolving(Board board, Hash& hash) {
    const Board start = board;
    hash.add(std::to_string(SolveByDeduction(board)));
    for (CellId cell : AllCells)
        hash.add(board.CellNum[cell] + " ");
    board = start;
    board.CellNum[start.BlankHex].fill({});
    std::int32_t counter = 0;
    SolveBasic(board, false, counter);
    for (CellId cell : AllCells)
        hash.add(board.CellNum[cell] + " ");
    hash.add(std::to_string(countSolutions(start).found));
}

} // namespace

std::uint64_t engineSignature(const SearchFill& fill) {
    Hash hash;
    addFillings(fill, hash);
    for (const DifficultyEntry& entry : Difficulties)
        for (std::uint64_t i = 0; i < PuzzlesOfEachDifficulty; ++i) {
            const std::string record = PuzzleSeries{entry.difficulty, Seed}.record(i, fill);
            hash.add(record);
            Board board;
            if (readRecord(record, board).ok())
                addSolving(board, hash);
        }
    return hash.value();
}

} // namespace tessaly
