#include "core/files/line_index.h"

#include "core/files/line_reader.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace tessaly {
namespace {

using test::put;
using test::TemporaryFolder;

const std::string Mark(ByteOrderMark);

/// The lines of a text, line ends included, found in the plainest way.
std::vector<std::string> linesOf(std::string text) {
    std::vector<std::string> lines;
    if (text.starts_with(Mark))
        text.erase(0, Mark.size());
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size() - 1) + 1;
        lines.push_back(text.substr(0, end));
        text.erase(0, end);
    }
    while (!lines.empty() && lines.back().find_first_not_of(" \t\r\n") == std::string::npos)
        lines.pop_back();
    return lines;
}

void expectIndexed(const LineIndex& index, const FileDescriptor& file, const std::string& text) {
    const std::vector<std::string> lines = linesOf(text);
    ASSERT_EQ(index.count(), static_cast<int>(lines.size()));
    for (int number = 1; number <= index.count(); ++number) {
        LineSpan span;
        ASSERT_EQ(index.find(file, number, span).problem, "");
        const auto begin = static_cast<std::size_t>(span.begin);
        ASSERT_EQ(text.substr(begin, static_cast<std::size_t>(span.end) - begin),
                  lines[static_cast<std::size_t>(number - 1)]);
    }
}

struct IndexCase {
    std::string text;
    int count;
    bool blankTail;
};

TEST(LineIndex, CountsLinesAndLeavesOutBlankOnesAtTheEnd) {
    const TemporaryFolder folder;
    const std::vector<IndexCase> cases{
        {"", 0, false},           {"a", 1, false},
        {"a\r\n", 1, false},      {"a\nb", 2, false},
        {"a\n\nb\n", 3, false},   {"a  \r\n", 1, false},
        {"a\r\n\r\n", 1, true},   {"a\n \t", 1, true},
        {"\r\n\r\n", 0, true},    {" ", 0, true},
        {Mark, 0, false},         {Mark + "a\r\n", 1, false},
        {Mark + "\r\n", 0, true}, {std::string("a\0\n", 3), 1, false}};
    for (const IndexCase& each : cases) {
        put(folder / "a.txt", each.text);
        FileDescriptor file;
        LineIndex index;
        ASSERT_TRUE(openForReading(folder / "a.txt", file).ok());
        ASSERT_EQ(index.update(file).problem, "");
        EXPECT_EQ(index.count(), each.count) << each.text;
        EXPECT_EQ(index.hasBlankTail(), each.blankTail) << each.text;
        expectIndexed(index, file, each.text);
    }
}

/// Lines of all sorts, some longer than a block of the index; ends as chance will have it.
std::string randomText(std::mt19937& chance, std::size_t size) {
    std::string text;
    while (text.size() < size) {
        text.append(chance() % 40 == 0 ? chance() % 200'000 : chance() % 700, 'x');
        text += std::vector<std::string>{"\n", "\r\n", "\n\n", " \r\n"}[chance() % 4];
    }
    text.resize(size);
    return text;
}

TEST(LineIndex, FindsEveryLineOfLargeFilesAlsoAfterTheyHaveGrown) {
    constexpr std::size_t Block = std::size_t{64} * 1024;
    const TemporaryFolder folder;
    std::mt19937 chance(20260101);
    for (const std::size_t size : {Block - 1, Block, Block + 1, 7 * Block, 7 * Block + 12'345}) {
        std::string text = randomText(chance, size);
        LineIndex growing;
        for (int growth = 0; growth < 4; ++growth) {
            put(folder / "a.txt", text);
            FileDescriptor file;
            LineIndex fresh;
            ASSERT_TRUE(openForReading(folder / "a.txt", file).ok());
            ASSERT_EQ(fresh.update(file).problem, "");
            ASSERT_EQ(growing.updateAppended(file).problem, "");
            expectIndexed(fresh, file, text);
            expectIndexed(growing, file, text);
            EXPECT_EQ(growing.hasBlankTail(), fresh.hasBlankTail());
            text += randomText(chance, chance() % (2 * Block));
        }
    }
}

TEST(LineIndex, ReadsNothingUntilTheFileChangesOrMayHaveChangedUnseen) {
    int blocks = 0;
    const auto update = [&](LineIndex& index, const std::filesystem::path& path) {
        FileDescriptor file;
        return openForReading(path, file).ok() && index.update(file, [&] { ++blocks; }).ok();
    };
    LineIndex index;
    const std::filesystem::path atRest = TESSALY_DATA "/hexabinx.txt";
    ASSERT_TRUE(update(index, atRest) && update(index, atRest));
    EXPECT_EQ(blocks, 1);

    const TemporaryFolder folder;
    for (int round = 0; round < 200; ++round) {
        // As many bytes, other lines: only what is in the file tells them apart.
        put(folder / "a.txt", round % 2 == 0 ? "aaa\nb\n" : "a\nb\nc\n");
        ASSERT_TRUE(update(index, folder / "a.txt"));
        ASSERT_EQ(index.count(), round % 2 == 0 ? 2 : 3);
    }
    FileDescriptor file;
    ASSERT_TRUE(openForReading(folder / "a.txt", file).ok());
    auto state = FileState::of(file).value();
    state.changed += 1'000'000'000; // as if the file were changed this very moment
    EXPECT_FALSE(state.wouldShowAChange());
    state.changed -= 2'000'000'000;
    EXPECT_TRUE(state.wouldShowAChange());
}

} // namespace
} // namespace tessaly
