#include "core/solver/puzzle_variants.h"

#include "core/solver/blank_hexagon.h"
#include "core/solver/deduction.h"
#include "core/solver/generator.h"
#include "core/solver/solution_counter.h"
#include "support/sample_puzzles.h"

#include <gtest/gtest.h>

#include <set>

namespace tessaly {
namespace {

constexpr std::array Mirrors{symmetry::TopBottom, symmetry::LeftRight, symmetry::Rising,
                             symmetry::Falling};

/// Records of both difficulties, half of them with progress.
std::vector<std::string> records() {
    std::vector<std::string> records = sampleRecords("easy.txt");
    for (const std::string& record : sampleRecords("hard.txt"))
        records.push_back(record);
    for (std::size_t i = 0; i < records.size(); i += 2) {
        Board board = boardOf(records[i]);
        for (CellId cell : AllCells)
            if (!board.FixedCell[cell] && (cell.hexagon + cell.position) % 3 != 0)
                board.CellNum[cell] = board.SolNum[cell];
        records[i] = PuzzleRecord(board);
    }
    return records;
}

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
    if (hint) {
        EXPECT_EQ(hintedCell(to.BlankHex, to.HintCell), symmetry.cell(hint));
    }
}

TEST(PuzzleVariants, EveryCellTheBlankHexagonAndTheHintMoveTogether) {
    for (const std::string& record : records())
        for (const Symmetry& symmetry :
             {Mirrors[0], Mirrors[1], Mirrors[2], Mirrors[3], symmetry::Turn})
            expectMoved(boardOf(record), boardOf(transformed(record, symmetry)), symmetry);
}

TEST(PuzzleVariants, TwoMirrorsOrSixTurnsGiveTheBoardBack) {
    for (const std::string& record : records()) {
        for (const Symmetry& mirror : Mirrors)
            EXPECT_EQ(transformed(transformed(record, mirror), mirror), record);
        std::string turned = record;
        for (int i = 0; i < 6; ++i)
            turned = transformed(turned, symmetry::Turn);
        EXPECT_EQ(turned, record);
        const std::string mirrored = mirroredTopBottom(record, TopBottomHeader::Subtracts);
        EXPECT_EQ(mirroredTopBottom(mirrored, TopBottomHeader::Subtracts), record);
    }
}

TEST(PuzzleVariants, TheSubtractedHeaderDiffersFromTheTrueOneAsItAlwaysDid) {
    for (const std::string& record : sampleRecords("hard.txt")) {
        const Board board = boardOf(record);
        const Board mirrored = boardOf(mirroredTopBottom(record, TopBottomHeader::Subtracts));
        const Board truly = boardOf(transformed(record, symmetry::TopBottom));
        EXPECT_EQ(mirrored.BlankHex, 20 - board.BlankHex);
        EXPECT_EQ(mirrored.HintCell, 7 - board.HintCell);
        EXPECT_EQ(mirrored.SolNum, truly.SolNum);
        EXPECT_EQ(mirrored.BlankHex == truly.BlankHex, board.BlankHex == 5 || board.BlankHex == 15);
    }
    std::string easy = sampleRecords("easy.txt").front();
    easy.replace(1, 2, "99");
    for (const std::string& variant : variantsOf(easy, TopBottomHeader::Subtracts))
        EXPECT_EQ(variant.substr(0, 5), "E9900") << "no blank hexagon, no hint";
}

TEST(PuzzleVariants, AreEightDifferentPuzzlesThatArePuzzles) {
    Chance chance(35);
    const SearchFill fill(allArrangements());
    for (int made = 0; made < 30; ++made) {
        Board board;
        CreatePuzzle(board, made % 2 == 0 ? Difficulty::Easy : Difficulty::Hard, chance, fill);
        const std::string record = PuzzleRecord(board);
        const PuzzleVariants variants = variantsOf(record, TopBottomHeader::Follows);
        EXPECT_EQ(std::set<std::string>(variants.begin(), variants.end()).size(), 8u);
        EXPECT_EQ(variants.front(), record);
        EXPECT_EQ(transformed(variants[7], symmetry::Turn),
                  transformed(transformed(variants[6], symmetry::Turn), symmetry::Turn));
        for (const std::string& variant : variants) {
            const Board changed = boardOf(variant);
            EXPECT_EQ(countSolutions(changed).found, 1);
            EXPECT_EQ(changed.SolNum[hintedCell(changed.BlankHex, changed.HintCell)],
                      changed.difficulty == Difficulty::Hard ? std::to_string(changed.HintNum)
                                                             : std::string());
        }
    }
}

} // namespace
} // namespace tessaly
