#include "core/files/line_index.h"

#include "core/files/line_reader.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <map>
#include <random>

namespace tessaly {
namespace {

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

class LineIndexTest : public testing::Test {
protected:
    void put(const std::string& text) {
        test::put(folder / "a.txt", text);
        ASSERT_EQ(openForReading(folder / "a.txt", file).problem, "");
    }
    void expectIndexed(const LineIndex& index, const std::string& text) {
        const std::vector<std::string> lines = linesOf(text);
        ASSERT_EQ(index.count(), static_cast<int>(lines.size()));
        for (int number = 1; number <= index.count(); ++number) {
            LineSpan span;
            ASSERT_EQ(index.find(file, number, span).problem, "");
            ASSERT_EQ(text.substr(static_cast<std::size_t>(span.begin),
                                  static_cast<std::size_t>(span.end - span.begin)),
                      lines[static_cast<std::size_t>(number - 1)]);
        }
    }

    test::TemporaryFolder folder;
    FileDescriptor file;
};

TEST_F(LineIndexTest, CountsLinesAndLeavesOutBlankOnesAtTheEnd) {
    for (const auto& [text, blankTail] :
         std::map<std::string, bool>{{"", false},
                                     {"a", false},
                                     {"a\r\n", false},
                                     {"a\nb", false},
                                     {"a\n\nb\n", false},
                                     {"a  \r\n", false},
                                     {"a\r\n\r\n", true},
                                     {"a\n \t", true},
                                     {"\r\n\r\n", true},
                                     {" ", true},
                                     {Mark, false},
                                     {Mark + "a\r\n", false},
                                     {Mark + "\r\n", true},
                                     {std::string("a\0\n", 3), false}}) {
        put(text);
        LineIndex index;
        ASSERT_EQ(index.update(file).problem, "");
        EXPECT_EQ(index.hasBlankTail(), blankTail) << text;
        expectIndexed(index, text);
    }
}

/// Lines of all sorts, some longer than a block of the index; ends as chance will have it.
std::string randomText(std::mt19937& chance, std::size_t size) {
    std::string text;
    while (text.size() < size) {
        text.append(chance() % 40 == 0 ? chance() % 200'000 : chance() % 700, 'x');
        text += std::array{"\n", "\r\n", "\n\n", " \r\n"}[chance() % 4];
    }
    text.resize(size);
    return text;
}

TEST_F(LineIndexTest, FindsEveryLineOfLargeFilesAlsoAfterTheyHaveGrown) {
    constexpr std::size_t Block = std::size_t{64} * 1024;
    std::mt19937 chance(20260101);
    for (const std::size_t size : {Block - 1, Block, Block + 1, 7 * Block, 7 * Block + 12'345}) {
        std::string text = randomText(chance, size);
        LineIndex growing;
        for (int growth = 0; growth < 4; ++growth) {
            put(text);
            LineIndex fresh;
            ASSERT_EQ(fresh.update(file).problem, "");
            ASSERT_EQ(growing.updateAppended(file).problem, "");
            expectIndexed(fresh, text);
            expectIndexed(growing, text);
            EXPECT_EQ(growing.hasBlankTail(), fresh.hasBlankTail());
            text += randomText(chance, chance() % (2 * Block));
        }
    }
}

TEST_F(LineIndexTest, ReadsNothingUntilTheFileChangesOrMayHaveChangedUnseen) {
    int blocks = 0;
    LineIndex index;
    ASSERT_TRUE(openForReading(TESSALY_DATA "/hexabinx.txt", file).ok());
    for (int time = 0; time < 2; ++time)
        ASSERT_TRUE(index.update(file, [&] { ++blocks; }).ok());
    EXPECT_EQ(blocks, 1);
    for (int round = 0; round < 200; ++round) {
        // As many bytes, other lines: only what is in the file tells them apart.
        put(round % 2 == 0 ? "aaa\nb\n" : "a\nb\nc\n");
        ASSERT_TRUE(index.update(file).ok());
        ASSERT_EQ(index.count(), round % 2 == 0 ? 2 : 3);
    }
    auto state = FileState::of(file).value();
    state.changed += 1'000'000'000; // as if the file were changed this very moment
    EXPECT_FALSE(state.wouldShowAChange());
    state.changed -= 2'000'000'000;
    EXPECT_TRUE(state.wouldShowAChange());
}

} // namespace
} // namespace tessaly
