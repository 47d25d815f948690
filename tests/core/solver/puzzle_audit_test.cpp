#include "core/solver/puzzle_audit.h"

#include "core/solver/blank_hexagon.h"
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

TEST(PuzzleAudit, FindsWhatIsWrongAndNothingElse) {
    const std::string easy = sampleRecords("easy.txt").front();
    const std::string hard = sampleRecords("hard.txt").front();
    const std::string otherNumber(1, hard[4] == '6' ? '1' : static_cast<char>(hard[4] + 1));
    std::string swapped = easy;
    std::swap(swapped[placeOf({10, 1})], swapped[placeOf({10, 2})]);
    const Board ofEasy = boardOf(easy), ofHard = boardOf(hard);
    const CellId hint = hintedCell(ofHard.BlankHex, ofHard.HintCell);
    const auto nowhere = [](CellId) { return false; };
    const auto anywhere = [](CellId) { return true; };
    const auto outside = [&](CellId cell) { return !ofEasy.isBlank(cell.hexagon); };
    const auto noHint = [&](CellId cell) { return cell != hint; };
    const struct {
        std::string record;
        const char* finding;
        /// How many findings there are; 0 is any number.
        std::size_t count = 0;
    } rows[] = {
        {easy.substr(1), "118 characters"},
        {"X" + easy.substr(1), "neither \"E\" nor \"H\""},
        {easy + "x", "does not begin with \":\""},
        {easy + ":7", "no number of the player"},
        {easy + ":" + std::string(BoardCellCount, ' ') + "1", "longer than"},
        {changed(easy, 5, easy.substr(6, 1)), "hexagon 1 does not hold each"},
        {changed(easy, placeOf({10, 3}), "0"), "hexagon 10 does not hold each"},
        {swapped, "differs across the side of", 2},
        {givenWhere(easy, nowhere), "more than one solution"},
        {changed(changed(hard, 0, "E"), 3, "00"), "not easy"},
        {givenWhere(hard, anywhere), "the puzzle is not hard: rules 1 to 3 solve it", 1},
        {recordOfTheRim(hard), "too hard"},
        {changed(hard, 4, otherNumber), "the hint is"},
        {changed(hard, 3, "0"), "names no cell"},
        {changed(hard, 3, "7"), "names no cell"},
        {changed(hard, 1, "99"), "names no cell"},
        {changed(easy, 3, "10"), "an easy puzzle has a hint"},
        {changed(easy, 3, "01"), "an easy puzzle has a hint"},
        {givenWhere(easy, outside), "a cell of the blank hexagon is not given"},
        {givenWhere(hard, noHint), "the hint is not given"},
    };
    for (const std::string& sound : {easy + ":" + std::string(BoardCellCount, '6'), hard + " \t"})
        EXPECT_EQ(auditRecord(sound), Findings{});
    for (const auto& row : rows) {
        const Findings findings = auditRecord(row.record);
        EXPECT_TRUE(std::ranges::any_of(findings, [&](const std::string& found) {
            return found.find(row.finding) != std::string::npos;
        })) << row.finding;
        EXPECT_TRUE(row.count == 0 || findings.size() == row.count) << row.finding;
    }
}

} // namespace
} // namespace tessaly
