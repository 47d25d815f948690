// The solver on any 114 texts of digits. It ends, and it does to every cell what a plain reading of
// the rules does. The input holds the texts one after another, with any other character between
// them; the first two of its bytes name the blank hexagon and the one that is skipped.

#include "core/solver/deduction.h"
#include "core/solver/solution_counter.h"
#include "fuzz_target.h"
#include "support/plain_rules.h"

using namespace tessaly;

namespace {

Board boardOf(std::string_view text) {
    Board board;
    std::size_t at = 0;
    const auto next = [&] { return at < text.size() ? text[at++] : ' '; };
    for (int* hexagon : {&board.BlankHex, &board.SkipHex})
        if (const int number = next() - 'a' + 1; isHexagon(number))
            *hexagon = number;
    for (CellId cell : AllCells) {
        std::string& entry = board.CellNum[cell];
        for (char c = next(); c >= '0' && c <= '6'; c = next())
            if (entry.size() < CellCount)
                entry += c;
        board.SolNum[cell] = "1";
        board.FixedCell[cell] = entry.size() == 1;
    }
    return board;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Board puzzle = boardOf(fuzz::textOf(data, size));
    Board board = puzzle, plain = puzzle;
    fuzz::require(SolveByDeduction(board) == plain::SolveByDeduction(plain), "the results agree");
    fuzz::require(board == plain, "the boards agree");

    board = plain = puzzle;
    std::int32_t counter = 0, plainCounter = 0;
    SolveBasic(board, true, counter);
    plain::SolveBasic(plain, true, plainCounter);
    fuzz::require(board == plain && counter == plainCounter, "the basic rules agree");

    static_cast<void>(countSolutions(puzzle, {.solutions = 2, .guesses = 200}));
    return 0;
}
