#include "core/files/file_access.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace tessaly {
namespace {

namespace fs = std::filesystem;
using Names = std::set<std::string>;
using test::contentOf;
using test::put;
using test::TemporaryFolder;

fs::perms permissionsOf(const fs::path& path) {
    return fs::status(path).permissions();
}

TEST(FileAccess, ReplacingKeepsPermissionsAndLeavesNothingElse) {
    const TemporaryFolder folder;
    put(folder / "a.txt", "old");
    fs::permissions(folder / "a.txt", fs::perms(0641));
    EXPECT_EQ(replaceFile(folder / "a.txt", "new").problem, "");
    EXPECT_EQ(contentOf(folder / "a.txt"), "new");
    EXPECT_EQ(permissionsOf(folder / "a.txt"), fs::perms(0641));
    fs::permissions(folder / "a.txt", fs::perms(0600));
    constexpr uid_t Nobody = 65534;
    const bool givesAway = ::chown((folder / "a.txt").c_str(), Nobody, Nobody) == 0;
    EXPECT_EQ(replaceFile(folder / "a.txt", "newer").problem, "");
    EXPECT_EQ(permissionsOf(folder / "a.txt"), fs::perms(0600));
    struct stat status {};
    ASSERT_EQ(::stat((folder / "a.txt").c_str(), &status), 0);
    EXPECT_EQ(status.st_uid == Nobody, givesAway || ::geteuid() == Nobody);
    EXPECT_EQ(replaceFile(folder / "made.txt", "").problem, "");
    EXPECT_EQ(folder.names(), (Names{"a.txt", "made.txt"}));
}

TEST(FileAccess, SymbolicLinksStayLinks) {
    const TemporaryFolder folder;
    fs::create_directory(folder / "far");
    put(folder / "far/a.txt", "old\n");
    fs::create_symlink("far/a.txt", folder / "link");
    fs::create_symlink("link", folder / "chain");
    fs::create_symlink("far/absent.txt", folder / "dangling");
    fs::create_symlink("loop", folder / "loop");

    EXPECT_EQ(replaceFile(folder / "chain", "new\n").problem, "");
    EXPECT_EQ(appendLines(folder / "link", "more\r\n").problem, "");
    EXPECT_EQ(contentOf(folder / "far/a.txt"), "new\nmore\r\n");
    EXPECT_EQ(appendLines(folder / "dangling", "first\r\n").problem, "");
    EXPECT_EQ(contentOf(folder / "far/absent.txt"), "first\r\n");
    EXPECT_FALSE(replaceFile(folder / "loop", "x").ok());
    for (const char* link : {"link", "chain", "dangling", "loop"})
        EXPECT_TRUE(fs::is_symlink(folder / link)) << link;
}

TEST(FileAccess, AppendingEndsAnUnendedLineFirst) {
    const TemporaryFolder folder;
    const std::vector<std::pair<std::string, std::string>> cases{
        {"", "new\r\n"},
        {"old", "old\r\nnew\r\n"},
        {"old\r", "old\r\nnew\r\n"},
        {"old\n", "old\nnew\r\n"},
        {"\xEF\xBB\xBF", "\xEF\xBB\xBFnew\r\n"},
        {"\n", "\nnew\r\n"}};
    for (const auto& [before, after] : cases) {
        put(folder / "a.txt", before);
        EXPECT_EQ(appendLines(folder / "a.txt", "new\r\n").problem, "");
        EXPECT_EQ(contentOf(folder / "a.txt"), after);
    }
}

TEST(FileAccess, WhatIsNoRegularFileIsRefusedWithoutWaiting) {
    const TemporaryFolder folder;
    fs::create_directory(folder / "folder");
    ASSERT_EQ(::mkfifo((folder / "fifo").c_str(), 0600), 0);
    std::string content = "kept";
    const std::vector<fs::path> paths{folder / "folder",
                                      folder / "fifo",
                                      "/dev/full",
                                      folder / "folder/",
                                      folder / "none/a.txt",
                                      "",
                                      std::string("/tmp/a\0b", 8),
                                      folder / std::string(256, 'n')};
    for (const fs::path& path : paths) {
        EXPECT_NE(replaceFile(path, "x").problem.find(path.native() + ": "), std::string::npos);
        EXPECT_FALSE(appendLines(path, "x\n").ok()) << path;
        EXPECT_FALSE(readSmallFile(path, 100, content).ok()) << path;
        EXPECT_FALSE(FileExists(path)) << path;
    }
    EXPECT_EQ(content, "kept");
    EXPECT_EQ(folder.names(), (Names{"folder", "fifo"}));
}

TEST(FileAccess, AnyNameThatTheSystemTakesWillDo) {
    const TemporaryFolder folder;
    for (const std::string& name :
         {std::string("two words"), std::string("\"quoted\""), std::string("line\nfeed"),
          std::string(255, 'n'), std::string("\xff\xfe")}) {
        EXPECT_EQ(replaceFile(folder / name, "a\n").problem, "");
        EXPECT_EQ(appendLines(folder / name, "b\n").problem, "");
        EXPECT_EQ(replaceFile(folder / name, contentOf(folder / name)).problem, "");
        EXPECT_EQ(contentOf(folder / name), "a\nb\n") << name;
    }
    EXPECT_EQ(folder.names().size(), 5U);
}

TEST(FileAccess, RewritingStartsFromNothingWhereThereIsNoFile) {
    const TemporaryFolder folder;
    const auto addLine = [](std::string& content) {
        content += "line\n";
        return Outcome::done();
    };
    for (const char* expected : {"line\n", "line\nline\n"}) {
        EXPECT_EQ(rewriteSmallFile(folder / "a.txt", 100, addLine).problem, "");
        EXPECT_EQ(contentOf(folder / "a.txt"), expected);
    }
    removeLeftovers(folder / "none");
    removeLeftoverOf(folder / "none/a.txt");
    EXPECT_EQ(folder.names(), Names{"a.txt"});
}

TEST(FileAccess, SmallFilesAreReadUpToTheirLimit) {
    const TemporaryFolder folder;
    const std::string text(200'000, 'x');
    put(folder / "a.txt", text);
    std::string content;
    EXPECT_EQ(readSmallFile(folder / "a.txt", text.size(), content).problem, "");
    EXPECT_EQ(content, text);
    EXPECT_FALSE(readSmallFile(folder / "a.txt", text.size() - 1, content).ok());
}

} // namespace
} // namespace tessaly
