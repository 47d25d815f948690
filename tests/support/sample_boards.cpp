#include "support/sample_boards.h"

#include "core/solver/puzzle_draft.h"

#include <algorithm>

namespace tessaly {
namespace {

int randomHexagon(Chance& chance) {
    return static_cast<int>(1 + chance.below(HexagonCount));
}

std::string randomNumber(Chance& chance) {
    return std::to_string(1 + chance.below(CellCount));
}

/// One half settled digits (now and then a 0), else ascending candidates, else any text.
std::string randomText(Chance& chance) {
    const std::uint32_t form = chance.below(8);
    if (form < 3)
        return chance.below(9) == 0 ? "0" : randomNumber(chance);
    std::string text;
    for (std::uint32_t n = chance.below(form < 5 ? 4 : 7); n > 0; --n)
        text += randomNumber(chance);
    if (form < 7) {
        std::sort(text.begin(), text.end());
        text.erase(std::unique(text.begin(), text.end()), text.end());
    } else if (chance.below(4) == 0) {
        text += '0';
    }
    return text;
}

} // namespace

const SearchFill& completeFill() {
    static const SearchFill fill(allArrangements());
    return fill;
}

Chance chanceOf(std::uint32_t number) {
    for (std::uint64_t seed = 0;; ++seed)
        if (Chance chance(seed); chance.below(100) == number)
            return Chance(seed);
}

Board sampleBoard(Sample kind, Chance& chance) {
    HexagonWords cells{};
    completeFill().fill(cells, chance);
    Board board;
    PuzzleDraft(cells).writeTo(board);
    if (kind == Sample::RandomGivens || kind == Sample::WrongGivens) {
        const std::uint32_t percent = 20 + chance.below(75);
        for (CellId cell : AllCells)
            board.FixedCell[cell] = chance.below(100) < percent;
        board.ResetToGivens();
    }
    for (std::uint32_t n = kind == Sample::WrongGivens ? 1 + chance.below(4) : 0; n > 0; --n) {
        const CellId cell = AllCells[chance.below(BoardCellCount)];
        board.SolNum[cell] = board.CellNum[cell] = randomNumber(chance);
        board.FixedCell[cell] = true;
    }
    if (kind == Sample::EmptiedHexagon)
        board.CellNum[randomHexagon(chance)].fill({});
    if (kind == Sample::HalfTexts)
        board.CellNum = board.SolNum;
    if (kind == Sample::RandomTexts || kind == Sample::HalfTexts) {
        const std::uint32_t percent = kind == Sample::RandomTexts ? 100 : 10 + chance.below(40);
        for (CellId cell : AllCells)
            if (chance.below(100) < percent)
                board.CellNum[cell] = randomText(chance);
    }
    board.BlankHex = chance.below(2) == 0 ? randomHexagon(chance) : NoHexagon;
    board.SkipHex = chance.below(4) == 0 ? randomHexagon(chance) : NoHexagon;
    return board;
}

} // namespace tessaly
