// The solver on any 114 texts of digits. It ends, and it does to every cell what a plain reading of
// the rules does. The input holds the texts one after another, with any other character between
// them; the first two of its bytes name the blank hexagon and the one that is skipped.

#include "core/solver/deduction.h"
#include "core/solver/solution_counter.h"
#include "fuzz_target.h"
#include "support/plain_rules.h"

using namespace tessaly;

namespace {

constexpr std::size_t LongestEntry = 6;

bool isDigit(char c) {
    return c >= '0' && c <= '6';
}

int hexagonOf(char byte) {
    return byte >= 'a' && byte < 'a' + HexagonCount ? byte - 'a' + 1 : NoHexagon;
}

Board boardOf(std::string_view text) {
    Board board;
    if (text.size() < 2)
        return board;
    board.BlankHex = hexagonOf(text[0]);
    board.SkipHex = hexagonOf(text[1]);
    std::size_t at = 2;
    for (CellId cell : AllCells) {
        std::string& entry = board.CellNum[cell];
        for (; at < text.size() && isDigit(text[at]); ++at)
            if (entry.size() < LongestEntry)
                entry += text[at];
        ++at;
        board.SolNum[cell] = "1";
        board.FixedCell[cell] = entry.size() == 1;
    }
    return board;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const Board puzzle = boardOf(fuzz::textOf(data, size));
    Board board = puzzle;
    Board plain = puzzle;
    fuzz::require(SolveByDeduction(board) == plain::SolveByDeduction(plain), "the results agree");
    fuzz::require(board == plain, "the boards agree");

    board = plain = puzzle;
    std::int32_t counter = 0;
    std::int32_t plainCounter = 0;
    SolveBasic(board, true, counter);
    plain::SolveBasic(plain, true, plainCounter);
    fuzz::require(board == plain && counter == plainCounter, "the basic rules agree");

    static_cast<void>(countSolutions(puzzle, {.solutions = 2, .guesses = 200}));
    return 0;
}
