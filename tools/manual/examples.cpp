#include "manual/examples.h"

#include "core/board/puzzle_record.h"
#include "core/solver/deduction.h"

#include <stdexcept>

namespace tessaly::manual {
namespace {

Board read(std::string_view record) {
    Board board;
    if (const Outcome outcome = readRecord(record, board); !outcome.ok())
        throw std::logic_error(outcome.problem);
    return board;
}

Example copyAcrossASide() {
    return {1, givensOf(FirstPuzzle), {1, 2, 5}, {{5, 2}}, {{1, 5}}, "1"};
}

Example whatMayStand() {
    Example example{
        2, givensOf(FirstPuzzle), {3, 6}, {{3, 2}, {3, 3}, {6, 2}, {6, 3}, {6, 4}}, {{3, 4}}, "4"};
    std::int32_t counter = 0;
    FixNeighbours(example.board, counter);
    return example;
}

Example onlyPlace() {
    Example example = whatMayStand();
    std::int32_t counter = 0;
    GetCandidates(example.board, counter);
    example.rule = 3;
    example.hexagons = {3};
    example.reasons = {{3, 1}, {3, 6}};
    example.settled = {{3, 5}};
    example.number = "1";
    return example;
}

Example threePairsAtACorner() {
    Example example{4,
                    givensOf(CornerPuzzle),
                    {5, 7, 10},
                    {{5, 6}, {7, 3}, {7, 4}, {10, 1}},
                    {{5, 5}, {10, 2}},
                    "3"};
    std::int32_t counter = 0;
    SolveBasic(example.board, false, counter);
    return example;
}

} // namespace

Board givensOf(std::string_view record) {
    Board board = read(record);
    board.CellNum[board.BlankHex].fill({});
    return board;
}

Board solutionOf(std::string_view record) {
    Board board = read(record);
    board.CellNum = board.SolNum;
    return board;
}

std::vector<Example> examples() {
    return {copyAcrossASide(), whatMayStand(), onlyPlace(), threePairsAtACorner()};
}

} // namespace tessaly::manual
