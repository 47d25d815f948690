#include "core/files/file_access.h"

#include "core/board/puzzle_store.h"

#include "support/temporary_folder.h"

#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace tessaly::file_access_test {

namespace fs = std::filesystem;
using Names = std::set<std::string>;

struct FileAccess : testing::Test {
    static Outcome append(const fs::path& path) {
        return PuzzleStore().appendPuzzles(path, "more\r\n");
    }

    TemporaryFolder folder;
    fs::path file = folder / "a.txt";
};

TEST_F(FileAccess, ReplacingKeepsWhoMayDoWhatAndShowsNobodyMoreMeanwhile) {
    constexpr uid_t Nobody = 65534;
    put(file, "old");
    const bool takesAttributes = ::setxattr(file.c_str(), "user.note", "mine", 4, 0) == 0;
    const bool givesAway = ::chown(file.c_str(), Nobody, Nobody) == 0;
    fs::permissions(file, fs::perms(04651)); // the right to be another does not go along
    const auto write = [&](const ContentSink& sink) {
        for (const std::string& name : folder.names())
            EXPECT_EQ(fs::status(folder / name).permissions(),
                      fs::perms(name == "a.txt" ? 04651 : 0600));
        EXPECT_EQ(folder.names().size(), 2u) << "the old file and the new one";
        return sink.write("new");
    };
    EXPECT_EQ(replaceFile(file, write).problem, "");
    EXPECT_EQ(contentOf(file), "new");
    struct stat status {};
    ASSERT_EQ(::stat(file.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode, S_IFREG | 0651U);
    EXPECT_EQ(status.st_uid == Nobody, givesAway || ::geteuid() == Nobody);
    EXPECT_EQ(::getxattr(file.c_str(), "user.note", nullptr, 0) == 4, takesAttributes);
    EXPECT_EQ(folder.names(), Names{"a.txt"});
}

TEST_F(FileAccess, SymbolicLinksStayLinks) {
    fs::create_directory(folder / "far");
    put(folder / "far/a.txt", "old\r\n");
    for (const auto& [target, link] : {std::pair("far/a.txt", "link"),
                                       {"link", "chain"},
                                       {"far/absent.txt", "dangling"},
                                       {"loop", "loop"}})
        fs::create_symlink(target, folder / link);
    EXPECT_EQ(replaceFile(folder / "chain", "new\r\n").problem, "");
    EXPECT_EQ(append(folder / "link").problem, "");
    EXPECT_EQ(contentOf(folder / "far/a.txt"), "new\r\nmore\r\n");
    EXPECT_EQ(append(folder / "dangling").problem, "");
    EXPECT_EQ(contentOf(folder / "far/absent.txt"), "more\r\n");
    EXPECT_FALSE(replaceFile(folder / "loop", "x").ok());
    for (const char* link : {"link", "chain", "dangling", "loop"})
        EXPECT_TRUE(fs::is_symlink(folder / link)) << link;
}

TEST_F(FileAccess, WhatIsNoRegularFileIsRefusedWithoutWaiting) {
    fs::create_directory(folder / "folder");
    ASSERT_EQ(::mkfifo((folder / "fifo").c_str(), 0600), 0);
    std::string content = "kept";
    for (const fs::path& path :
         {folder / "folder", folder / "fifo", fs::path("/dev/full"), folder / "folder/",
          folder / "none/a.txt", fs::path(), fs::path(std::string("/tmp/a\0b", 8)),
          folder / std::string(256, 'n')}) {
        EXPECT_TRUE(replaceFile(path, "x").problem.starts_with(path.native() + ": "));
        EXPECT_FALSE(append(path).ok()) << path;
        EXPECT_FALSE(readSmallFile(path, 100, content).ok()) << path;
        EXPECT_FALSE(FileExists(path)) << path;
    }
    EXPECT_EQ(content, "kept");
    EXPECT_EQ(folder.names(), (Names{"folder", "fifo"}));
    const FileDescriptor terminal(::posix_openpt(O_RDWR | O_NOCTTY));
    ASSERT_EQ(::grantpt(terminal.get()) + ::unlockpt(terminal.get()), 0);
    FileDescriptor opened;
    EXPECT_EQ(openForReadingOnce(::ptsname(terminal.get()), opened).problem, "") << "is read once";
}

TEST_F(FileAccess, ASmallFileIsReadUpToItsLimitAndChangedInOneGo) {
    std::string foreign;
    const auto change = [&](std::string& content) {
        if (!foreign.empty())
            put(file, foreign);
        content += "line\n";
        return Outcome::done();
    };
    for (const char* expected : {"line\n", "line\nline\n"}) {
        EXPECT_EQ(rewriteSmallFile(file, 5, change).problem, "") << "it begins with nothing";
        EXPECT_EQ(contentOf(file), expected);
    }
    EXPECT_FALSE(rewriteSmallFile(file, 5, change).ok());
    foreign = "foreign";
    const Outcome changed = rewriteSmallFile(file, 100, change);
    EXPECT_NE(changed.problem.find("another program"), std::string::npos);
    EXPECT_EQ(contentOf(file), "foreign");
}

} // namespace tessaly::file_access_test
