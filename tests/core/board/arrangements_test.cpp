#include "core/board/arrangements.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tessaly {
namespace {

/// The line that the shipped file must hold, made anew: every arrangement, in ascending order.
std::string ascendingLine() {
    std::string digits = "123456";
    std::string line;
    do {
        for (std::size_t i = 0; i < digits.size(); i += 2)
            line += static_cast<char>(10 * (digits[i] - '0') + (digits[i + 1] - '0') + 25);
    } while (std::next_permutation(digits.begin(), digits.end()));
    return line;
}

std::string changed(std::size_t at, const std::string& characters) {
    return ascendingLine().replace(at, characters.size(), characters);
}

TEST(Arrangements, TheShippedFileListsAllInAscendingOrder) {
    const std::string file = TESSALY_DATA "/hexabinx.txt";
    EXPECT_EQ(test::contentOf(file), ascendingLine() + "\r\n");
    ArrangementTable table;
    ASSERT_EQ(Set6Combos(file, table).problem, "");
    EXPECT_EQ(table.wordCount, 720);
    EXPECT_EQ(table.words[2], "ABCDFE");
    EXPECT_EQ(table.words[720], "FEDCBA");
    EXPECT_EQ(table.words[721], "");
    EXPECT_EQ(table.letterWeights, (std::array<int, 7>{720, 720, 720, 720, 720, 720, 0}));
    EXPECT_EQ(std::count(&table.scores[1], &table.scores[721], 6 * 720), 720);
}

TEST(Arrangements, AnyOrderWillDoButEachMustBeThereOnce) {
    const std::string turned = ascendingLine().substr(2157) + ascendingLine().substr(0, 2157);
    const struct {
        std::string content;
        std::string reason;
    } rows[] = {
        {turned, ""},
        {"\xEF\xBB\xBF" + turned + "\nand whatever follows", ""},
        {"", "has 0 characters instead of 2160"},
        {ascendingLine() + "%;Q", "has 2163 characters instead of 2160"},
        {"\r\n" + ascendingLine(), "has 0 characters"},
        {std::string(2'000'000, '%'), "is larger than 65536 bytes"},
        {changed(0, "%%Q"), "arrangement 1 of the first line does not hold each of 1 to 6 once"},
        {changed(3, "%;\xff"), "arrangement 2 of the first line does not hold"},
        {changed(2157, std::string("\0\x01\x18", 3)), "arrangement 720 of the first line does not"},
        {changed(3, "%;Q"), "arrangement 2 of the first line stands there twice"},
    };
    const test::TemporaryFolder folder;
    const auto file = folder / "hexabinx.txt";
    ArrangementTable table;
    for (const auto& row : rows) {
        test::put(file, row.content);
        const Outcome outcome = Set6Combos(file, table);
        EXPECT_EQ(outcome.ok(), row.reason.empty()) << outcome.problem;
        EXPECT_NE(outcome.problem.find(row.reason), std::string::npos) << outcome.problem;
        EXPECT_TRUE(outcome.ok() || outcome.problem.starts_with(file.native() + ": "));
        EXPECT_EQ(table.words[1], "FEDCBA") << "the table was changed: " << row.reason;
    }
}

} // namespace
} // namespace tessaly
