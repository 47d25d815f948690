#include "core/board/arrangements.h"

#include "support/temporary_folder.h"

#include <algorithm>

namespace tessaly::arrangements_test {

TEST(Arrangements, AnyOrderWillDoButEachMustBeThereOnce) {
    const std::string shipped = TESSALY_DATA "/hexabinx.txt";
    ArrangementTable table;
    ASSERT_EQ(Set6Combos(shipped, table).problem, "");
    EXPECT_EQ(table.words[2] + table.words[720] + table.words[721], "ABCDFEFEDCBA");
    EXPECT_TRUE(std::is_sorted(&table.words[1], &table.words[721]));
    EXPECT_EQ(std::count(&table.scores[1], &table.scores[721], 6 * 720), 720);
    const std::string line = contentOf(shipped).substr(0, 2160);
    const auto changed = [&line](std::size_t at, const std::string& characters) {
        return std::string(line).replace(at, characters.size(), characters);
    };
    const std::string turned = line.substr(2157) + line.substr(0, 2157);
    const struct {
        std::string content;
        std::string reason;
    } rows[] = {
        {turned, ""},
        {"\xEF\xBB\xBF" + turned + "\nand whatever follows", ""},
        {"", "has 0 characters instead of 2160"},
        {line + "%;Q", "has 2163 characters instead of 2160"},
        {"\r\n" + line, "has 0 characters"},
        {std::string(2'000'000, '%'), "is larger than 65536 bytes"},
        {changed(0, "%%Q"), "arrangement 1 of the first line does not hold each of 1 to 6 once"},
        {changed(3, "%;\xff"), "arrangement 2 of the first line does not hold"},
        {changed(2157, std::string("\0\x01\x18", 3)), "arrangement 720 of the first line does not"},
        {changed(3, "%;Q"), "arrangement 2 of the first line stands there twice"},
    };
    const TemporaryFolder folder;
    const std::string file = folder / "hexabinx.txt";
    for (const auto& row : rows) {
        put(file, row.content);
        const std::string problem = Set6Combos(file, table).problem;
        EXPECT_TRUE(row.reason.empty() ? problem.empty() : problem.starts_with(file + ": "))
            << problem;
        EXPECT_NE(problem.find(row.reason), std::string::npos) << problem;
        EXPECT_EQ(table.words[1], "FEDCBA") << "the table was changed: " << row.reason;
    }
}

} // namespace tessaly::arrangements_test
