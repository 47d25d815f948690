#include "core/solver/library_tools.h"

#include "core/solver/blank_hexagon.h"
#include "core/solver/deduction.h"
#include "core/solver/puzzle_variants.h"

#include "support/plain_rules.h"
#include "support/sample_puzzles.h"
#include "support/temporary_folder.h"

#include <functional>
#include <map>
#include <set>

namespace tessaly::library_tools_test {

std::string textOf(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines)
        text += line + "\r\n";
    return text;
}

struct LibraryToolsTest : testing::Test {
    using ToolRun = std::function<Outcome(const KeepGoing&)>;

    TemporaryFolder folder;
    ToolFiles files{folder / "in.txt", folder / "out.txt"};
    std::vector<std::string> puzzles = sampleRecords("hard.txt");
    Chance chance{5};
    VerifyCount count;
    const std::vector<ToolRun> allTools{
        [this](const KeepGoing& goOn) {
            return expandPuzzles(files, TopBottomHeader::Follows, goOn);
        },
        [this](const KeepGoing& goOn) { return verifyPuzzles(files, count, goOn); },
        [this](const KeepGoing& goOn) { return shufflePuzzles(files, chance, goOn); },
    };
};

TEST_F(LibraryToolsTest, VerifyingKeepsWhatDeductionSolves) {
    const std::string easy = sampleRecords("easy.txt").front();
    std::vector<std::string> solved{puzzles[3], easy};
    std::vector<std::string> all{easy, recordOfTheRim(easy), recordOfTheRim(puzzles[0]),
                                 givenWhere(easy, [](CellId) { return false; })};
    for (const std::string& record : puzzles) {
        all.push_back(record);
        Board board = boardOf(record);
        plantHint(board);
        plain::SolveByDeduction(board);
        if (plain::CheckHexagons(board, board.BlankHex) == SettledAndSound)
            solved.push_back(record);
    }
    put(files.input, textOf(all));
    put(files.output, puzzles[3]);
    ASSERT_TRUE(verifyPuzzles(files, count).ok());
    EXPECT_EQ(count.tried, static_cast<int>(all.size()));
    EXPECT_EQ(count.solved, static_cast<int>(solved.size()) - 1);
    EXPECT_EQ(contentOf(files.output), textOf(solved));
}

TEST_F(LibraryToolsTest, ARunThatFailsOrIsStoppedIsSaidAndWritesNothing) {
    const std::string start = textOf({puzzles[0], puzzles[1]});
    const std::string thirdLine = files.input.string() + ": line 3: ";
    const KeepGoing untilThree = [](int records) { return records < 3; };
    for (const auto& [input, problem] : std::map<std::string, std::string>{
             {start + "nonsense\r\n" + puzzles[2], thirdLine + "the record has 8 characters"},
             {start + "\r\n" + puzzles[2], thirdLine + "the record has 0 characters"},
             {start + std::string(9000, '1'), thirdLine + "the line is longer"},
             {textOf(puzzles), StoppedProblem}})
        for (const ToolRun& tool : allTools)
            for (const std::string before : {"old", ""}) {
                put(files.input, input);
                put(files.output, before);
                EXPECT_TRUE(tool(untilThree).problem.starts_with(problem)) << problem;
                EXPECT_EQ(contentOf(files.output), before);
                EXPECT_EQ(folder.names(), (std::set<std::string>{"in.txt", "out.txt"}));
            }
    for (auto* missing : {&files.input, &files.output}) {
        *missing += "/none.txt";
        for (const ToolRun& tool : allTools)
            EXPECT_TRUE(tool({}).problem.starts_with(missing->string()));
    }
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

} // namespace tessaly::library_tools_test
