#include "core/solver/puzzle_audit.h"

#include "core/solver/blank_hexagon.h"
#include "core/solver/solution_counter.h"
#include "support/sample_puzzles.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tessaly {
namespace {

using Findings = std::vector<std::string>;

std::string changed(std::string record, std::size_t at, std::string_view to) {
    return record.replace(at, to.size(), to);
}

/// The place of a cell in a record.
std::size_t placeOf(CellId cell) {
    return static_cast<std::size_t>(5 + CellCount * (cell.hexagon - 1) + cell.position - 1);
}

bool isNowhere(CellId) {
    return false;
}
bool isAnywhere(CellId) {
    return true;
}

TEST(PuzzleAudit, FindsNothingInSoundPuzzles) {
    for (const char* file : {"easy.txt", "hard.txt"})
        for (const std::string& record : sampleRecords(file)) {
            EXPECT_EQ(auditRecord(record), Findings{}) << record;
            EXPECT_EQ(auditRecord(record + ":" + std::string(BoardCellCount, '6')), Findings{});
        }
}

TEST(PuzzleAudit, FindsWhatIsWrong) {
    const std::string easy = sampleRecords("easy.txt").front();
    const std::string hard = sampleRecords("hard.txt").front();
    const std::string otherNumber(1, hard[4] == '6' ? '1' : static_cast<char>(hard[4] + 1));
    std::string swapped = easy;
    std::swap(swapped[placeOf({10, 1})], swapped[placeOf({10, 2})]);
    const Board ofEasy = boardOf(easy), ofHard = boardOf(hard);
    const auto isOutside = [&](CellId cell) { return !ofEasy.isBlank(cell.hexagon); };
    const CellId hint = hintedCell(ofHard.BlankHex, ofHard.HintCell);
    const auto isNoHint = [&](CellId cell) { return cell != hint; };
    for (const auto& [record, finding] : std::vector<std::pair<std::string, std::string>>{
             {easy.substr(1), "118 characters"},
             {"X" + easy.substr(1), "neither \"E\" nor \"H\""},
             {easy + " ", "does not begin with \":\""},
             {easy + ":7", "no number of the player"},
             {easy + ":" + std::string(BoardCellCount + 1, ' '), "longer than"},
             {changed(easy, 5, easy.substr(6, 1)), "hexagon 1 does not hold each"},
             {changed(easy, placeOf({10, 3}), "0"), "hexagon 10 does not hold each"},
             {swapped, "differs across the side of"},
             {givenWhere(easy, isNowhere), "more than one solution"},
             {changed(changed(hard, 0, "E"), 3, "00"), "not easy"},
             {givenWhere(hard, isAnywhere), "the puzzle is not hard: rules 1 to 3 solve it"},
             {recordOfTheRim(hard), "too hard"},
             {changed(hard, 4, otherNumber), "the hint is"},
             {changed(hard, 3, "0"), "names no cell"},
             {changed(hard, 3, "7"), "names no cell"},
             {changed(hard, 1, "99"), "names no cell"},
             {changed(easy, 3, "10"), "an easy puzzle has a hint"},
             {changed(easy, 3, "01"), "an easy puzzle has a hint"},
             {givenWhere(easy, isOutside), "a cell of the blank hexagon is not given"},
             {givenWhere(hard, isNoHint), "the hint is not given"}}) {
        const Findings findings = auditRecord(record);
        EXPECT_TRUE(std::any_of(findings.begin(), findings.end(),
                                [&part = finding](const std::string& found) {
                                    return found.find(part) != std::string::npos;
                                }))
            << finding;
    }
    EXPECT_EQ(auditRecord(swapped).size(), 2U) << "both cells have one across";
    EXPECT_EQ(auditRecord(givenWhere(hard, isAnywhere)).size(), 1U);
}

} // namespace
} // namespace tessaly
