// What needs more than one process: other users, and two instances side by side.

#include "core/board/puzzle_record.h"
#include "core/board/puzzle_store.h"
#include "core/files/file_access.h"

#include "support/child_process.h"
#include "support/sample_records.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace tessaly {
namespace {

namespace fs = std::filesystem;
using test::contentOf;
using test::put;
using test::recordFile;
using test::recordNumbered;
using test::startChild;
using test::succeeded;
using test::TemporaryFolder;

/// Gives up the system administrator's rights, which no permission stops.
bool becomeSomebody() {
    constexpr uid_t Nobody = 65534;
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
        PuzzleStore store;
        Board board;
        const auto denied = [](const std::string& problem) {
            return problem.ends_with(": Permission denied");
        };
        return becomeSomebody() && denied(store.ReadPuzzle(locked, 1, board).reason) &&
               FileExists(locked) && store.ReadPuzzle(readOnly, 2, board).ok() &&
               denied(store.appendPuzzles(readOnly, "x\n").problem) &&
               denied(replaceFile(readOnly, "x\n").problem) &&
               denied(replaceFile(folder / "new.txt", "x\n").problem);
    })));
    fs::permissions(folder.path(), fs::perms(0755));
    EXPECT_EQ(contentOf(readOnly), recordFile(2));
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

/// TESSALY_ROUNDS asks for a longer run.
int rounds() {
    const char* const asked = std::getenv("TESSALY_ROUNDS");
    return asked ? std::atoi(asked) : 100;
}

TEST(FileSafety, TwoInstancesLoseAndTearNoRecord) {
    const int lastRound = rounds();
    const TemporaryFolder folder;
    const fs::path path = folder / "puzzles.txt";
    const pid_t one = startChild([&] { return appendAndDelete(path, 0, lastRound); });
    const pid_t two = startChild([&] { return appendAndDelete(path, 100'000, lastRound); });
    EXPECT_TRUE(succeeded(one));
    EXPECT_TRUE(succeeded(two));

    std::vector<std::string> expected;
    for (int round = 0; round < lastRound; round += 2)
        for (int first : {0, 100'000})
            expected.push_back(recordNumbered(first + round));
    std::vector<std::string> found;
    EXPECT_TRUE(forEachRecord(path, [&](const RecordLine& line) {
                    found.emplace_back(line.text);
                    return true;
                }).ok());
    std::sort(expected.begin(), expected.end());
    std::sort(found.begin(), found.end());
    EXPECT_EQ(found, expected);
    EXPECT_EQ(contentOf(path).size(), expected.size() * (RecordLength + 2));
    EXPECT_EQ(folder.names().size(), 1u);
}

} // namespace
} // namespace tessaly
