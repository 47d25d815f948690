#include "core/session/program_folder.h"

#include "support/file_calls.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

namespace tessaly {
namespace {

namespace fs = std::filesystem;
using test::contentOf;
using test::put;
using Names = std::set<std::string>;

class ProgramFolderTest : public testing::Test {
protected:
    ProgramFolderTest() {
        fs::create_directories(share / "puzzles");
        fs::create_directory(bin);
        for (const char* name : {"all.col", "hexabinx.txt", "puzzles/easy.txt"})
            put(share / name, std::string("shipped ") + name);
    }

    fs::path found() {
        fs::path result;
        problem = findProgramFolder(sources, result).problem;
        return problem.empty() ? result : fs::path();
    }
    std::string user(const char* name) const { return contentOf(userFolder / name); }
    static Names namesIn(const fs::path& folder) {
        Names names;
        for (const auto& entry : fs::directory_iterator(folder))
            names.insert(entry.path().filename());
        return names;
    }

    test::TemporaryFolder root;
    fs::path share = root / "usr/share/tessaly-data";
    fs::path bin = root / "usr/bin";
    fs::path data = root / "home/data";
    fs::path userFolder = data / "tessaly";
    ProgramFolderSources sources{
        .given = {}, .executableFolder = bin, .shareFolder = share, .dataHome = data, .home = {}};
    std::string problem;
};

TEST_F(ProgramFolderTest, IsTheGivenOneElseTheExecutablesElseTheUsers) {
    put(bin / "all.col", "");
    sources.given = share / "puzzles/../";
    EXPECT_TRUE(fs::equivalent(found(), share)) << "only the system knows where .. leads";
    for (const fs::path& wrong : {root / "none", share / "all.col"}) {
        sources.given = wrong;
        EXPECT_EQ(found(), "");
        EXPECT_EQ(problem.find(wrong.native() + ": "), 0U) << problem;
    }
    sources.given.clear();
    EXPECT_EQ(found(), bin / "");
    EXPECT_FALSE(fs::exists(data));
    fs::remove(bin / "all.col");
    EXPECT_EQ(found(), userFolder / "");
    for (const char* notCounting : {"", "relative/data"}) {
        sources.dataHome = notCounting;
        sources.home = root / "me";
        EXPECT_EQ(found(), root / "me/.local/share/tessaly/");
        sources.home.clear();
        EXPECT_EQ(found(), "");
        EXPECT_NE(problem.find("HOME"), std::string::npos);
    }
}

TEST_F(ProgramFolderTest, TheFirstStartCopiesWhatIsShippedAndLeavesNothingElse) {
    // A start that was killed while it filled the folder.
    fs::create_directories(data / ".tessaly.new/puzzles");
    put(data / ".tessaly.new/puzzles/half-written", "");
    fs::create_directory(userFolder);

    ASSERT_EQ(found(), userFolder / "") << problem;
    EXPECT_EQ(namesIn(data), Names{"tessaly"});
    EXPECT_EQ(namesIn(userFolder), (Names{"all.col", "hexabinx.txt", "puzzles"}));
    EXPECT_EQ(user("all.col"), "shipped all.col");
    EXPECT_EQ(namesIn(userFolder / "puzzles"), Names{"easy.txt"});
    EXPECT_EQ(user("puzzles/easy.txt"), "shipped puzzles/easy.txt");
}

TEST_F(ProgramFolderTest, LaterStartsRenewTheProgramsFilesAndLeaveTheUsersAlone) {
    ASSERT_NE(found(), "");
    put(userFolder / "puzzles/easy.txt", "my progress");
    fs::remove(userFolder / "all.col");
    put(share / "puzzles/hard.txt", "new library");
    // Neither files nor folders need to look newer: some systems give all the same time.
    put(share / "hexabinx.txt", "second release");
    for (const fs::path& old : {share / "hexabinx.txt", userFolder / "puzzles/easy.txt"})
        fs::last_write_time(old, fs::last_write_time(old) - std::chrono::hours(1000));
    put(share / "tessaly.htm", "new page");
    fs::create_directory(share / "manual");
    put(share / "manual/side.png", "new drawing");
    ASSERT_NE(found(), "");
    EXPECT_EQ(user("manual/side.png"), "new drawing");
    EXPECT_EQ(user("hexabinx.txt"), "second release");
    EXPECT_EQ(user("tessaly.htm"), "new page");
    EXPECT_EQ(user("puzzles/easy.txt"), "my progress");
    EXPECT_EQ(namesIn(userFolder / "puzzles"), Names{"easy.txt"});
    EXPECT_FALSE(fs::exists(userFolder / "all.col"));
    fs::remove_all(share);
    EXPECT_NE(found(), "") << "an installed folder is enough: " << problem;
}

TEST_F(ProgramFolderTest, AFirstStartThatFailsLeavesNothingBehind) {
    fs::remove(share / "hexabinx.txt");
    // Even a file that the program could do without is not left out when it is only in trouble.
    fs::create_directory(share / "tessaly.htm");
    for (const char* name : {"hexabinx.txt", "tessaly.htm"}) {
        EXPECT_EQ(found(), "");
        EXPECT_EQ(problem.find((share / name).native()), 0U) << problem;
        EXPECT_EQ(namesIn(data), Names{});
        put(share / "hexabinx.txt", "repaired");
    }
    fs::remove(share / "tessaly.htm");
    EXPECT_NE(found(), "") << problem;
}

TEST_F(ProgramFolderTest, AFirstStartThatRunsOutOfRoomLeavesNothingBehind) {
    fs::create_directories(data);
    const std::vector<std::pair<std::string, std::string>> failures{
        {"open", data},
        {"write", data / ".tessaly.new/all.col"},
        {"rename", userFolder},
        // The last two flush the filled folder and the one that it lies in.
        {"fsync", data / ".tessaly.new"},
        {"fsync", userFolder}};
    int flushes = 0;
    {
        const test::FileCalls calls(
            [&](std::string_view name, int) { return flushes += name == "fsync" ? 1 : 0, 0; });
        ASSERT_NE(found(), "");
    }
    for (std::size_t i = 0; i < failures.size(); ++i) {
        fs::remove_all(userFolder);
        const auto& [call, path] = failures[i];
        const int first = call == "fsync" ? flushes - 5 + static_cast<int>(i) : 0;
        const test::FileCalls calls(test::failing(call, ENOSPC, first));
        EXPECT_EQ(found(), "");
        EXPECT_TRUE(problem.starts_with(path + ": ") &&
                    problem.ends_with(": No space left on device"))
            << call << ": " << problem;
        EXPECT_EQ(namesIn(data), i + 1 < failures.size() ? Names{} : Names{"tessaly"});
    }
}

TEST_F(ProgramFolderTest, WhatIsInTheWayIsNamed) {
    put(root / "home", "a file");
    EXPECT_EQ(found(), "");
    EXPECT_EQ(problem.find((root / "home").native()), 0U) << problem;
    fs::remove(root / "home");
    fs::create_directories(data);
    put(userFolder, "a file");
    EXPECT_EQ(found(), "");
    EXPECT_EQ(problem, userFolder.native() + ": is no folder");
    fs::remove(userFolder);
    fs::create_symlink(userFolder, userFolder);
    EXPECT_EQ(found(), "");
    EXPECT_EQ(problem,
              userFolder.native() + ": cannot be examined: Too many levels of symbolic links");
    // Where not even the system administrator can make a folder.
    sources.dataHome = "/proc";
    EXPECT_EQ(found(), "");
    EXPECT_EQ(problem.find("/proc/.tessaly.new: cannot be created: "), 0U) << problem;
}

TEST_F(ProgramFolderTest, TwoFirstStartsAtOnceBothFindAWholeFolder) {
    for (int round = 0; round < 30; ++round) {
        fs::remove_all(data);
        std::vector<std::string> problems(2);
        const auto start = [this](std::string& mine) {
            fs::path folder;
            mine = findProgramFolder(sources, folder).problem;
            if (mine.empty() && contentOf(folder / "puzzles/easy.txt").empty())
                mine = "not whole";
        };
        std::thread other(start, std::ref(problems[0]));
        start(problems[1]);
        other.join();
        EXPECT_EQ(problems, std::vector<std::string>(2));
    }
}

TEST(ProgramFolderSources, KnowWhereThisProcessLies) {
    const auto sources = ProgramFolderSources::ofThisProcess();
    EXPECT_TRUE(fs::exists(sources.executableFolder / "tessaly_core_tests"));
    EXPECT_EQ(sources.shareFolder, sources.executableFolder.parent_path() / "share/tessaly-data");
}

} // namespace
} // namespace tessaly
