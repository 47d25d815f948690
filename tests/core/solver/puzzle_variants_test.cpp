#include "core/solver/puzzle_variants.h"

#include "core/solver/blank_hexagon.h"
#include "support/sample_puzzles.h"

#include <gtest/gtest.h>

#include <set>

namespace tessaly {
namespace {

/// What a transform is to do, cell by cell.
void expectMoved(const Board& from, const Board& to, const Symmetry& symmetry) {
    for (CellId cell : AllCells) {
        const CellId image = symmetry.cell(cell);
        EXPECT_EQ(to.SolNum[image], from.SolNum[cell]);
        EXPECT_EQ(to.CellNum[image], from.CellNum[cell]);
        EXPECT_EQ(to.FixedCell[image], from.FixedCell[cell]);
    }
    EXPECT_EQ(to.BlankHex, symmetry.hexagon(from.BlankHex));
    const CellId hint = hintedCell(from.BlankHex, from.HintCell);
    EXPECT_EQ(hintedCell(to.BlankHex, to.HintCell), hint ? symmetry.cell(hint) : CellId{});
}

TEST(PuzzleVariants, EveryCellTheBlankHexagonAndTheHintMoveTogetherAndBack) {
    for (const char* file : {"easy.txt", "hard.txt"})
        for (std::string record : sampleRecords(file)) {
            record += ":" + record.substr(5); // as progress, where it is numbers
            record = PuzzleRecord(boardOf(record));
            for (const auto& [symmetry, order] : {std::pair(symmetry::TopBottom, 2),
                                                  {symmetry::LeftRight, 2},
                                                  {symmetry::Rising, 2},
                                                  {symmetry::Falling, 2},
                                                  {symmetry::Turn, 6}}) {
                std::string moved = transformed(record, symmetry);
                expectMoved(boardOf(record), boardOf(moved), symmetry);
                for (int i = 1; i < order; ++i)
                    moved = transformed(moved, symmetry);
                EXPECT_EQ(moved, record);
            }
            const PuzzleVariants variants = variantsOf(record, TopBottomHeader::Follows);
            EXPECT_EQ(std::set<std::string>(variants.begin(), variants.end()).size(), 8u);
            EXPECT_EQ(variants.front(), record);
            for (std::size_t turned : {6, 7})
                EXPECT_EQ(variants[turned], transformed(variants[turned - 1], symmetry::Turn));
        }
}

TEST(PuzzleVariants, TheSubtractedHeaderDiffersFromTheTrueOneAsItAlwaysDid) {
    for (const std::string& record : sampleRecords("hard.txt")) {
        const Board board = boardOf(record);
        const std::string changed = mirroredTopBottom(record, TopBottomHeader::Subtracts);
        const Board mirrored = boardOf(changed);
        const Board truly = boardOf(transformed(record, symmetry::TopBottom));
        EXPECT_EQ(mirrored.BlankHex, 20 - board.BlankHex);
        EXPECT_EQ(mirrored.HintCell, 7 - board.HintCell);
        EXPECT_EQ(mirrored.SolNum, truly.SolNum);
        EXPECT_EQ(mirrored.BlankHex == truly.BlankHex, board.BlankHex == 5 || board.BlankHex == 15);
        EXPECT_EQ(mirroredTopBottom(changed, TopBottomHeader::Subtracts), record);
    }
    std::string easy = sampleRecords("easy.txt").front();
    easy.replace(1, 2, "99");
    for (const std::string& variant : variantsOf(easy, TopBottomHeader::Subtracts))
        EXPECT_EQ(variant.substr(0, 5), "E9900") << "no blank hexagon, no hint";
}

} // namespace
} // namespace tessaly
