// What needs more than one process: full disks, other users, two instances side by side.

#include "core/board/puzzle_file.h"
#include "core/files/file_access.h"
#include "core/files/locked_file.h"

#include "support/child_process.h"
#include "support/sample_records.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <sys/resource.h>
#include <vector>

namespace tessaly {
namespace {

namespace fs = std::filesystem;
using Names = std::set<std::string>;
using test::contentOf;
using test::put;
using test::recordFile;
using test::recordNumbered;
using test::startChild;
using test::succeeded;
using test::TemporaryFolder;

constexpr std::string_view FileName = "puzzles.txt";
constexpr uid_t Nobody = 65534;

TEST(FileSafety, AFullDiskLeavesTheOldContentAndSaysSo) {
    const TemporaryFolder folder;
    const fs::path path = folder / FileName;
    put(path, recordFile(10));
    const auto failsFully = [](const Outcome& outcome) {
        return outcome.problem.find(": cannot be written: File too large") != std::string::npos;
    };
    EXPECT_TRUE(succeeded(startChild([&] {
        const rlimit limit{1300, 1300};
        surviveFileSizeLimit();
        return ::setrlimit(RLIMIT_FSIZE, &limit) == 0 &&
               failsFully(appendLines(path, recordFile(1))) &&
               failsFully(replaceFile(path, recordFile(11))) &&
               failsFully(replaceFile(folder / "new.txt", recordFile(11))) &&
               replaceFile(folder / "fits.txt", recordFile(10)).ok();
    })));
    EXPECT_EQ(contentOf(path), recordFile(10));
    EXPECT_EQ(folder.names(), (Names{std::string(FileName), "fits.txt"}));
}

/// Gives up the system administrator's rights, which no permission stops.
bool becomeSomebody() {
    return ::geteuid() != 0 || ::setresuid(Nobody, Nobody, Nobody) == 0;
}

TEST(FileSafety, MissingPermissionsAreReportedAndChangeNothing) {
    const TemporaryFolder folder;
    const fs::path locked = folder / "locked.txt";
    const fs::path readOnly = folder / "read-only.txt";
    for (const fs::path& path : {locked, readOnly})
        put(path, recordFile(2));
    fs::permissions(locked, fs::perms(0));
    fs::permissions(readOnly, fs::perms(0444));
    fs::permissions(folder.path(), fs::perms(0555));
    EXPECT_TRUE(succeeded(startChild([&] {
        PuzzleFiles files;
        Board board;
        std::string content;
        const auto denied = [](const std::string& problem) {
            return problem.ends_with(": Permission denied");
        };
        return becomeSomebody() && denied(files.ReadPuzzle(locked, 1, board).reason) &&
               denied(readSmallFile(locked, 1000, content).problem) && FileExists(locked) &&
               files.ReadPuzzle(readOnly, 2, board).ok() &&
               denied(appendLines(readOnly, "x\n").problem) &&
               denied(replaceFile(readOnly, "x\n").problem) &&
               denied(replaceFile(folder / "new.txt", "x\n").problem);
    })));
    fs::permissions(folder.path(), fs::perms(0755));
    EXPECT_EQ(contentOf(readOnly), recordFile(2));
    EXPECT_EQ(folder.names(), (Names{"locked.txt", "read-only.txt"}));
}

TEST(FileSafety, OnlyLeftoversOfDeadProcessesAreCleared) {
    const TemporaryFolder folder;
    const fs::path leftover = folder / scratchNameOf(std::string(FileName));
    const Names own{std::string(FileName), ".tessaly-notes.tmp", ".tessaly-0123456789abcdef.txt",
                    "_tessaly-0123456789abcdef.tmp"};
    for (const std::string& name : own)
        put(folder / name, "the user's own");
    put(leftover, "torn");
    removeLeftovers(folder.path());
    EXPECT_EQ(folder.names(), own);

    put(leftover, "torn");
    EXPECT_EQ(replaceFile(folder / FileName, "new").problem, "");
    EXPECT_FALSE(fs::exists(leftover));

    LockedFile target;
    ASSERT_TRUE(target.lock(folder / FileName).ok());
    ScratchFile scratch(target);
    ASSERT_TRUE(scratch.create().ok());
    removeLeftovers(folder.path());
    removeLeftoverOf(folder / FileName);
    EXPECT_TRUE(fs::exists(leftover)) << "its writer is alive";
}

TEST(FileSafety, AChangeByAProgramWithoutLocksIsNotOverwritten) {
    const TemporaryFolder folder;
    const fs::path path = folder / FileName;
    put(path, "old");
    const Outcome changed = rewriteSmallFile(path, 100, [&](std::string& content) {
        put(path, content + " and foreign");
        content = "ours";
        return Outcome::done();
    });
    EXPECT_NE(changed.problem.find("another program"), std::string::npos);
    EXPECT_EQ(contentOf(path), "old and foreign");
    EXPECT_EQ(folder.names(), (Names{std::string(FileName)}));
}

/// Appends records of its own and deletes some of them again, as another instance does the same.
bool appendAndDelete(const fs::path& path, const fs::path& program, int first, int rounds) {
    PuzzleFiles files;
    Board board;
    int number = 0;
    for (int round = 0; round < rounds; ++round) {
        const std::string record = recordNumbered(first + round);
        if (!files.appendPuzzle(path, record, number).ok())
            return false;
        // The other instance may move the record before it is deleted; then it is looked for again.
        while (round % 2 == 1 && !files.DeletePuzzle(path, number, record, program).ok())
            for (number = 1; files.ReadPuzzle(path, number, board).record != record; ++number)
                if (number > 4 * rounds)
                    return false;
    }
    return true;
}

/// TESSALY_ROUNDS asks for a longer run.
int rounds() {
    const char* const asked = std::getenv("TESSALY_ROUNDS");
    return asked ? std::atoi(asked) : 100;
}

TEST(FileSafety, TwoInstancesLoseAndTearNoRecord) {
    const int lastRound = rounds();
    const TemporaryFolder folder;
    const fs::path path = folder / FileName;
    const pid_t one =
        startChild([&] { return appendAndDelete(path, folder.path(), 0, lastRound); });
    const pid_t two =
        startChild([&] { return appendAndDelete(path, folder.path(), 100'000, lastRound); });
    EXPECT_TRUE(succeeded(one));
    EXPECT_TRUE(succeeded(two));

    std::vector<std::string> expected;
    for (int round = 0; round < lastRound; round += 2)
        for (int first : {0, 100'000})
            expected.push_back(recordNumbered(first + round));
    PuzzleFiles files;
    Board board;
    std::vector<std::string> found;
    for (int number = 1; files.ReadPuzzle(path, number, board).ok(); ++number)
        found.push_back(files.ReadPuzzle(path, number, board).record);
    std::sort(expected.begin(), expected.end());
    std::sort(found.begin(), found.end());
    EXPECT_EQ(found, expected);
    EXPECT_EQ(contentOf(path).size(), expected.size() * (RecordLength + 2));
    EXPECT_EQ(folder.names(), (Names{std::string(FileName), std::string(TemporaryPuzzleFile)}));
}

} // namespace
} // namespace tessaly
