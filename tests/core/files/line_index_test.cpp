#include "core/files/line_index.h"

#include "core/files/line_reader.h"

#include "support/temporary_folder.h"

#include <random>

namespace tessaly::line_index_test {

const std::string Mark(ByteOrderMark);

struct LineIndexTest : testing::Test {
    void put(const std::string& text) {
        tessaly::put(folder / "a.txt", text);
        ASSERT_EQ(openForReading(folder / "a.txt", file).problem, "");
    }
    /// That the lines are where the plainest reading finds them, and behind the last one, which is
    /// not blank, is nothing else.
    void expectIndexed(const LineIndex& index, const std::string& text) {
        constexpr const char* Blanks = " \t\r\n";
        std::size_t at = text.starts_with(Mark) ? Mark.size() : 0;
        for (int number = 1; number <= index.count(); ++number) {
            const std::size_t end = std::min(text.find('\n', at), text.size() - 1) + 1;
            LineSpan span;
            ASSERT_EQ(index.find(file, number, span).problem, "");
            ASSERT_EQ(span.begin, static_cast<std::int64_t>(at));
            ASSERT_EQ(span.end, static_cast<std::int64_t>(end));
            ASSERT_TRUE(number < index.count() || text.find_first_not_of(Blanks, at) < end);
            at = end;
        }
        EXPECT_EQ(text.find_first_not_of(Blanks, at), std::string::npos);
        EXPECT_EQ(index.hasBlankTail(), at < text.size());
    }

    TemporaryFolder folder;
    FileDescriptor file;
};

/// Lines of all sorts, some of them longer than a block of the index.
std::string randomText(std::mt19937& chance, std::size_t size) {
    constexpr const char* Ends[] = {"\n", "\r\n", "\n\n", " \r\n", "\t", "\r"};
    std::string text;
    while (text.size() < size) {
        text.append(chance() % 40 == 0 ? chance() % 200'000 : chance() % (size / 50 + 2), 'x');
        text += Ends[chance() % std::size(Ends)];
    }
    text.resize(size); // it may end in the middle of a line's end
    return text;
}

TEST_F(LineIndexTest, FindsEveryLineAlsoAfterTheFileHasGrown) {
    constexpr std::size_t Block = std::size_t{64} * 1024;
    std::mt19937 chance(20260101);
    std::vector<std::size_t> sizes{Block - 1, Block, Block + 1, 7 * Block, 7 * Block + 12'345};
    for (std::size_t i = 0; i < 400; ++i)
        sizes.push_back(i % 8);
    for (const std::size_t size : sizes) {
        std::string text = (chance() % 2 == 0 ? Mark : "") + randomText(chance, size);
        LineIndex growing;
        for (int growth = 0; growth < 4; ++growth) {
            put(text);
            LineIndex fresh;
            ASSERT_EQ(fresh.update(file).problem, "");
            ASSERT_EQ(growing.updateAppended(file).problem, "");
            expectIndexed(fresh, text);
            expectIndexed(growing, text);
            text += randomText(chance, size < Block ? 5 : chance() % (2 * Block));
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
    put("a\n"); // shorter than before
    ASSERT_TRUE(index.updateAppended(file).ok());
    EXPECT_EQ(index.count(), 1);
    ASSERT_TRUE(openForReading("/proc/uptime", file).ok()); // of another file system
    ASSERT_TRUE(index.updateAppended(file).ok());
    EXPECT_EQ(index.count(), 0);
    put("a\n");
    auto state = FileState::of(file).value();
    state.changed += 1'000'000'000; // as if the file were changed this very moment
    EXPECT_FALSE(state.wouldShowAChange());
    state.changed -= 2'000'000'000;
    EXPECT_TRUE(state.wouldShowAChange());
}

} // namespace tessaly::line_index_test
