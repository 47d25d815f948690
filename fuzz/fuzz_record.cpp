// One line of a puzzle file. What is read is written the same way, and a refusal changes nothing.

#include "core/board/puzzle_record.h"
#include "fuzz_target.h"

using namespace tessaly;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Board before;
    before.CellNum[1][1] = "4";
    before.BlankHex = 5;
    Board board = before;
    if (!readRecord(fuzz::textOf(data, size), board).ok()) {
        fuzz::require(board == before, "a refused record leaves the board alone");
        return 0;
    }
    Board again;
    const std::string written = PuzzleRecord(board);
    fuzz::require(readRecord(written, again).ok(), "a written record can be read");
    fuzz::require(PuzzleRecord(again) == written, "a record reads as it was written");
    return 0;
}
