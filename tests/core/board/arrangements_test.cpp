#include "core/board/arrangements.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <vector>

namespace tessaly {
namespace {

using test::contentOf;
using test::put;
using test::TemporaryFolder;

const std::string ShippedFile = TESSALY_DATA "/hexabinx.txt";

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
    EXPECT_EQ(contentOf(ShippedFile), ascendingLine() + "\r\n");

    ArrangementTable table;
    ASSERT_EQ(Set6Combos(ShippedFile, table).problem, "");
    EXPECT_EQ(table.wordCount, 720);
    EXPECT_EQ(table.words[1], "ABCDEF");
    EXPECT_EQ(table.words[2], "ABCDFE");
    EXPECT_EQ(table.words[720], "FEDCBA");
    EXPECT_TRUE(table.words[0].empty());
    EXPECT_TRUE(table.words[721].empty());
    const std::set<std::string> distinct(&table.words[1], &table.words[721]);
    EXPECT_EQ(distinct.size(), 720U);
    EXPECT_EQ(table.letterWeights, (std::array<int, 7>{720, 720, 720, 720, 720, 720, 0}));
    EXPECT_EQ(table.scores[0], 0);
    EXPECT_EQ(std::count(&table.scores[1], &table.scores[721], 6 * 720), 720);
    EXPECT_EQ(table.scores[721], 0);
}

TEST(Arrangements, AnyOrderAndAnyLineEndWillDo) {
    const TemporaryFolder folder;
    const std::string line = ascendingLine();
    const std::string turned = line.substr(2157) + line.substr(0, 2157);
    for (const std::string& content :
         {turned, turned + "\n", "\xEF\xBB\xBF" + turned + "\r\nand whatever follows"}) {
        put(folder / "hexabinx.txt", content);
        ArrangementTable table;
        ASSERT_EQ(Set6Combos(folder / "hexabinx.txt", table).problem, "");
        EXPECT_EQ(table.words[1], "FEDCBA");
        EXPECT_EQ(table.words[720], "FEDCAB");
    }
}

TEST(Arrangements, WhatIsNotEveryArrangementOnceIsRefusedWithTheFileAndTheReason) {
    const struct {
        std::string content;
        std::string reason;
    } cases[] = {
        {"", "has 0 characters instead of 2160"},
        {ascendingLine().substr(3), "has 2157 characters instead of 2160"},
        {ascendingLine() + "%;Q", "has 2163 characters instead of 2160"},
        {"\r\n" + ascendingLine(), "has 0 characters"},
        {std::string(2'000'000, '%'), "longer than 65536 characters"},
        {changed(0, "%%Q"), "arrangement 1 of the first line does not hold each of 1 to 6 once"},
        {changed(3, "%;\xff"), "arrangement 2 of the first line does not hold"},
        {changed(2157, std::string("\0\x01\x18", 3)), "arrangement 720 of the first line does not"},
        {changed(3, "%;Q"), "arrangement 2 of the first line stands there twice"},
    };
    const TemporaryFolder folder;
    const std::string path = folder / "hexabinx.txt";
    ArrangementTable table;
    ASSERT_TRUE(readArrangements(ascendingLine(), table).ok());
    for (const auto& bad : cases) {
        put(path, bad.content);
        const Outcome outcome = Set6Combos(path, table);
        EXPECT_NE(outcome.problem.find(bad.reason), std::string::npos) << outcome.problem;
        EXPECT_EQ(outcome.problem.find(path), 0U) << outcome.problem;
        EXPECT_EQ(table.words[2], "ABCDFE") << "the table was changed: " << bad.reason;
    }
    for (const auto& missing : {folder.path(), folder / "none"})
        EXPECT_EQ(Set6Combos(missing, table).problem.find(missing.native() + ": "), 0U);
}

} // namespace
} // namespace tessaly
