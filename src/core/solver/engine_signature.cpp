#include "core/solver/engine_signature.h"

#include "core/base/fnv_hash.h"
#include "core/board/puzzle_record.h"
#include "core/solver/deduction.h"
#include "core/solver/puzzle_of_day.h"
#include "core/solver/puzzle_series.h"
#include "core/solver/solution_counter.h"

#include <string>

namespace tessaly {
namespace {

constexpr int Fillings = 1000;
constexpr std::uint64_t PuzzlesOfEachDifficulty = 500;
constexpr std::uint64_t Seed = 1;

void addFillings(const SearchFill& fill, FnvHash& hash) {
    Chance chance(Seed);
    for (int i = 0; i < Fillings; ++i) {
        HexagonWords cells{};
        fill.fill(cells, chance);
        for (HexagonWord word : cells)
            hash.add(std::to_string(word));
    }
}

/// What the rules make of a puzzle, from all of its givens and without its blank hexagon.
void addSolving(Board board, FnvHash& hash) {
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

/// Days around a leap day, by their series' version.
void addDays(const SearchFill& fill, FnvHash& hash) {
    for (const char* text : {"2026-11-21", "2028-02-29", "2028-03-01"})
        for (const DifficultyEntry& entry : Difficulties)
            hash.add(puzzleOfDay(*readDay(text), entry.difficulty, fill));
    hash.add(std::to_string(DaySeriesVersion));
}

} // namespace

std::uint64_t engineSignature(const SearchFill& fill) {
    FnvHash hash;
    addFillings(fill, hash);
    for (const DifficultyEntry& entry : Difficulties)
        for (std::uint64_t i = 0; i < PuzzlesOfEachDifficulty; ++i) {
            const std::string record = PuzzleSeries{entry.difficulty, Seed}.record(i, fill);
            hash.add(record);
            Board board;
            if (readRecord(record, board).ok())
                addSolving(board, hash);
        }
    addDays(fill, hash);
    return hash.value();
}

} // namespace tessaly
