// What needs more than one process: other users, and two instances side by side.

#include "core/board/puzzle_store.h"
#include "core/files/file_access.h"

#include "support/child_process.h"
#include "support/sample_puzzles.h"
#include "support/sample_records.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <set>

namespace tessaly {
namespace {

namespace fs = std::filesystem;
using test::put;
using test::recordNumbered;
using test::startChild;
using test::succeeded;

TEST(FileSafety, MissingPermissionsAreReportedAndChangeNothing) {
    const test::TemporaryFolder folder;
    const fs::path locked = folder / "locked.txt", readOnly = folder / "read-only.txt";
    for (const fs::path& path : {locked, readOnly})
        put(path, test::recordFile(2));
    fs::permissions(locked, fs::perms(0));
    fs::permissions(readOnly, fs::perms(0444));
    fs::permissions(folder.path(), fs::perms(0555));
    EXPECT_TRUE(succeeded(startChild([&] {
        // No permission stops the system administrator.
        constexpr uid_t Nobody = 65534;
        PuzzleStore store;
        Board board;
        const auto denied = [](const std::string& problem) {
            return problem.ends_with(": Permission denied");
        };
        return (::geteuid() != 0 || ::setresuid(Nobody, Nobody, Nobody) == 0) &&
               denied(store.ReadPuzzle(locked, 1, board).reason) && FileExists(locked) &&
               store.ReadPuzzle(readOnly, 2, board).ok() &&
               denied(store.appendPuzzles(readOnly, "x\n").problem) &&
               denied(replaceFile(readOnly, "x\n").problem) &&
               denied(replaceFile(folder / "new.txt", "x\n").problem);
    })));
    fs::permissions(folder.path(), fs::perms(0755));
    EXPECT_EQ(test::contentOf(readOnly), test::recordFile(2));
    EXPECT_EQ(folder.names().size(), 2u);
}

/// Appends records of its own and deletes some of them again, as another instance does the same.
bool appendAndDelete(const fs::path& path, int first, int rounds) {
    PuzzleStore store;
    Board board;
    int number = 0;
    for (int round = 0; round < rounds; ++round) {
        const std::string record = recordNumbered(first + round);
        if (!store.appendPuzzle(path, record, number).ok())
            return false;
        // The other instance may move the record before it is deleted; then it is looked for again.
        while (round % 2 == 1 && !store.DeletePuzzle(path, number, record).ok())
            for (number = 1; store.ReadPuzzle(path, number, board).record != record; ++number)
                if (number > 4 * rounds)
                    return false;
    }
    return true;
}

TEST(FileSafety, TwoInstancesLoseAndTearNoRecord) {
    const char* const asked = std::getenv("TESSALY_ROUNDS"); // for a longer run
    const int rounds = asked ? std::stoi(asked) : 100;
    const test::TemporaryFolder folder;
    const fs::path path = folder / "puzzles.txt";
    const pid_t one = startChild([&] { return appendAndDelete(path, 0, rounds); });
    const pid_t two = startChild([&] { return appendAndDelete(path, 100'000, rounds); });
    EXPECT_TRUE(succeeded(one));
    EXPECT_TRUE(succeeded(two));

    std::multiset<std::string> expected;
    for (int round = 0; round < rounds; round += 2)
        for (int first : {0, 100'000})
            expected.insert(recordNumbered(first + round));
    const std::vector<std::string> found = recordsOf(path);
    EXPECT_EQ(std::multiset<std::string>(found.begin(), found.end()), expected);
    EXPECT_EQ(fs::file_size(path), expected.size() * (RecordLength + 2));
    EXPECT_EQ(folder.names().size(), 1u);
}

} // namespace
} // namespace tessaly
