// What becomes of files when a system call fails, or another program acts between two of them.

#include "core/board/arrangements.h"
#include "core/board/puzzle_file.h"
#include "core/board/record_lines.h"
#include "core/files/file_access.h"
#include "core/files/file_descriptor.h"
#include "core/files/locked_file.h"
#include "core/session/program_folder.h"

#include "faults/scene.h"
#include "support/file_calls.h"
#include "support/sample_records.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <fcntl.h>
#include <future>
#include <sstream>
#include <vector>

namespace tessaly {
namespace {

namespace fs = std::filesystem;
using Names = std::set<std::string>;
using faults::Operation;
using faults::Scene;
using test::contentOf;
using test::failing;
using test::FileCalls;
using test::meanwhile;
using test::put;
using test::recordFile;
using test::recordNumbered;
using test::TemporaryFolder;

std::ptrdiff_t openFiles() {
    return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
}

/// Temporary folders lie in memory while this lives, where that can be: flushing a disk takes long.
class MemoryFolders {
public:
    MemoryFolders()
        : m_before(fs::temp_directory_path()) {
        if (fs::is_directory("/dev/shm"))
            ::setenv("TMPDIR", "/dev/shm", 1);
    }
    MemoryFolders(const MemoryFolders&) = delete;
    MemoryFolders& operator=(const MemoryFolders&) = delete;
    ~MemoryFolders() { ::setenv("TMPDIR", m_before.c_str(), 1); }

private:
    fs::path m_before;
};

/// Tries one operation again and again, each time with another call failing.
class FaultLoop {
public:
    FaultLoop(const Operation& operation, int records)
        : m_operation(operation)
        , m_records(records) {
        EXPECT_EQ(m_before.make(records).problem, "");
        renew(m_after);
        const auto work = operation.prepare(m_after);
        const FileCalls calls([](std::string_view, int) { return 0; });
        m_succeeds = work().ok();
        m_calls = calls.count();
    }

    void run() const {
        for (int number = 0; number < m_calls; ++number) {
            attempt(number, number + 1, EIO);
            attempt(number, m_calls + 1000, ENOSPC);
            attempt(number, number + 1, EINTR);
        }
    }

private:
    void renew(const Scene& scene) const {
        fs::remove_all(scene.folder());
        fs::copy(m_before.folder(), scene.folder(), fs::copy_options::recursive);
    }

    /// The calls from `first` up to `last` fail.
    void attempt(int first, int last, int error) const {
        std::ostringstream where;
        where << m_operation.name << " at " << m_records << " records, error " << error
              << " at call " << first << (last > first + 1 ? " and later, " : ", ");
        renew(m_work);
        const auto work = m_operation.prepare(m_work);
        Outcome outcome;
        bool flushFailed = false;
        {
            const FileCalls calls([&](std::string_view name, int number) {
                const bool fails = number >= first && number < last;
                if (number == first)
                    where << name;
                flushFailed = flushFailed || (fails && error != EINTR && name == "fsync");
                return fails ? error : 0;
            });
            outcome = work();
        }
        EXPECT_FALSE(outcome.ok() && flushFailed) << where.str();
        if (error == EINTR && m_succeeds) {
            EXPECT_EQ(outcome.problem, "") << where.str();
        }
        std::ostringstream left;
        EXPECT_EQ(judge(m_operation, m_before, m_after, m_work, outcome.ok() ? "done\n" : "", left)
                      .problem,
                  "")
            << where.str() << ", left: " << left.str();
    }

    const Operation& m_operation;
    int m_records;
    TemporaryFolder m_folder;
    Scene m_before{m_folder / "before"};
    Scene m_after{m_folder / "after"};
    Scene m_work{m_folder / "work"};
    bool m_succeeds = false;
    int m_calls = 0;
};

TEST(FileFaults, NoFailingCallLosesOrTearsAnything) {
    const MemoryFolders inMemory;
    const std::ptrdiff_t before = openFiles();
    for (const Operation& operation : faults::operations())
        // A batch is several times what "append" is.
        if (operation.name != "batch")
            for (int records : {-1, 136})
                FaultLoop(operation, records).run();
    EXPECT_EQ(openFiles(), before);
}

// ---- between two calls

/// What `work` says while another program acts, or a call fails, as `before` has it.
std::string problemWhile(FileCalls::Before before, const std::function<Outcome()>& work) {
    const FileCalls calls(std::move(before));
    return work().problem;
}

class FileFaultsTest : public testing::Test {
protected:
    fs::path file() const { return m_folder / "a.txt"; }
    fs::path scratch() const { return m_folder / scratchNameOf("a.txt"); }
    Names names() const { return m_folder.names(); }
    const fs::path& folder() const { return m_folder.path(); }

    /// Puts another file in the place of `file()`, as a program does that replaces files.
    std::function<void()> replacedBy(const std::string& content) const {
        return [this, content] {
            put(m_folder / "new", content);
            fs::rename(m_folder / "new", file());
        };
    }
    std::function<Outcome()> appending(const std::string& line) const {
        return [this, line] { return appendLines(file(), line); };
    }
    std::function<Outcome()> replacing(const std::string& content) const {
        return [this, content] { return replaceFile(file(), content); };
    }

private:
    TemporaryFolder m_folder;
};

TEST_F(FileFaultsTest, WhoeverWaitedForAFileSeesWhatWasDoneMeanwhile) {
    EXPECT_EQ(problemWhile(meanwhile("flock", replacedBy("1\n")), appending("2\n")), "");
    EXPECT_EQ(contentOf(file()), "1\n2\n") << "made by another while its folder was locked";
    EXPECT_EQ(problemWhile(meanwhile("flock", replacedBy("3\n")), appending("4\n")), "");
    EXPECT_EQ(contentOf(file()), "3\n4\n") << "replaced by another between opening and lock";
    EXPECT_EQ(problemWhile(meanwhile("flock", [&] { fs::remove(file()); }), appending("5\n")), "");
    EXPECT_EQ(contentOf(file()), "5\n") << "removed by another between opening and lock";
    EXPECT_EQ(names(), Names{"a.txt"});
}

TEST_F(FileFaultsTest, AScratchFileIsOnlyUsedByWhomItBelongsTo) {
    put(file(), "old");
    // The lock of the file comes first, the one of its scratch file second.
    const auto taken = [&] { fs::remove(scratch()); };
    EXPECT_EQ(problemWhile(meanwhile("flock", taken, 1), replacing("new")), "");
    EXPECT_EQ(contentOf(file()), "new") << "taken for a leftover before it was locked";

    const std::string late = problemWhile(meanwhile("fsync", taken), replacing("newer"));
    EXPECT_NE(late.find("is being written by another program"), std::string::npos) << late;
    EXPECT_EQ(contentOf(file()), "new");

    put(scratch(), "torn");
    const auto begunAnew = [&] {
        fs::remove(scratch());
        put(scratch(), "another one's");
    };
    EXPECT_EQ(problemWhile(meanwhile("flock", begunAnew),
                           [&] {
                               removeLeftoverOf(file());
                               return Outcome::done();
                           }),
              "");
    EXPECT_EQ(contentOf(scratch()), "another one's");
}

TEST_F(FileFaultsTest, ALeftoverThatCannotBeRemovedIsSaid) {
    put(file(), "old");
    put(scratch(), "torn");
    // The first lock and the first look are the file's own, the first two openings its own and the
    // one that finds the leftover.
    for (const FileCalls::Before& stuck : {failing("openat", EIO, 2), failing("flock", EIO, 1),
                                           failing("fstatat", EIO, 1), failing("unlinkat", EIO)}) {
        EXPECT_EQ(problemWhile(stuck, replacing("new")),
                  file().native() + ": no new file can be made beside it: File exists");
        EXPECT_EQ(contentOf(file()) + contentOf(scratch()), "oldtorn");
    }
    EXPECT_EQ(problemWhile(failing("openat", ENOENT, 2), replacing("new")), "") << "gone by itself";
    EXPECT_EQ(names(), Names{"a.txt"});
}

TEST_F(FileFaultsTest, AFileThatAppearsOrGoesWhileItIsWrittenIsNotOverwritten) {
    EXPECT_NE(problemWhile(meanwhile("fsync", replacedBy("foreign")), replacing("ours")), "");
    EXPECT_EQ(contentOf(file()), "foreign");
    EXPECT_NE(problemWhile(meanwhile("fsync", [&] { fs::remove(file()); }), replacing("ours")), "");
    EXPECT_EQ(names(), Names{});
}

TEST_F(FileFaultsTest, WhereNothingCanBeLockedOrAFolderNotFlushedFilesAreStillSaved) {
    for (int error : {ENOLCK, EOPNOTSUPP, ENOSYS})
        EXPECT_EQ(problemWhile(failing("flock", error, 0, 1000), replacing("locked by nobody")),
                  "");
    EXPECT_EQ(problemWhile(failing("fsync", EINVAL, 1), replacing("flushed as a whole")), "");
    EXPECT_EQ(contentOf(file()), "flushed as a whole");
    // A folder that may not be listed can neither be locked nor flushed.
    EXPECT_EQ(problemWhile(failing("open", EACCES), replacing("in a folder without names")), "");
    EXPECT_EQ(contentOf(file()), "in a folder without names");
    const std::string unsure = problemWhile(
        [](std::string_view name, int) { return name == "fsync" || name == "syncfs" ? EINVAL : 0; },
        replacing("x"));
    EXPECT_NE(unsure.find("cannot be flushed to the disk"), std::string::npos) << unsure;
}

TEST_F(FileFaultsTest, PermissionsThatCannotBeKeptLeaveTheOldFile) {
    put(file(), "old");
    fs::permissions(file(), fs::perms(0640));
    EXPECT_EQ(problemWhile(failing("fchmod", EPERM), replacing("new")),
              file().native() + ": its permissions cannot be kept: Operation not permitted");
    EXPECT_EQ(contentOf(file()), "old");
    EXPECT_EQ(names(), Names{"a.txt"});
}

TEST_F(FileFaultsTest, AnAppendedLineThatCannotBeFlushedIsTakenBack) {
    put(file(), "old\n");
    EXPECT_EQ(problemWhile(failing("fsync", EIO), appending("new\n")),
              file().native() + ": cannot be flushed to the disk: Input/output error");
    EXPECT_EQ(contentOf(file()), "old\n");
    const std::string left = problemWhile(
        [](std::string_view name, int) { return name == "fsync" || name == "ftruncate" ? EIO : 0; },
        appending("new\n"));
    EXPECT_TRUE(left.ends_with("; a part of what was written may stand at its end")) << left;
}

TEST_F(FileFaultsTest, AFileThatCannotBeReadToItsEndIsNamedAndStays) {
    const std::string before = recordFile(1000) + "\n"; // two blocks and a blank line
    const auto write = [](const ContentSink& sink) { return sink.write("x"); };
    Board board;
    ArrangementTable table;
    int number = 500;
    const std::string record = recordNumbered(number);
    std::string content = "kept";
    struct Reading {
        int reads;
        std::function<Outcome()> work;
    };
    const std::vector<Reading> readings{
        {2, [&] { return PuzzleFiles().CountLines(file(), number); }},
        {5, [&] { return Outcome{PuzzleFiles().ReadPuzzle(file(), 500, board).reason}; }},
        {7, [&] { return PuzzleFiles().DeletePuzzle(file(), 500, record, folder()); }},
        {3, [&] { return PuzzleFiles().appendPuzzle(file(), recordNumbered(1), number); }},
        {3, [&] { return PuzzleFiles().appendPuzzles(file(), write); }},
        // To these a file that ends early is just a shorter file.
        {1, [&] { return readSmallFile(file(), 1'000'000, content); }},
        {1, [&] { return readRecordLines(file(), [](const RecordLine&) { return true; }); }},
        {1, [&] { return Set6Combos(file(), table); }},
    };
    const auto attempt = [&](std::size_t reading, int error, int first) {
        put(file(), before);
        const FileCalls calls(failing("pread", error, first));
        const std::string problem = readings[reading].work().problem;
        EXPECT_TRUE(problem.starts_with(file().native() + ": ")) << reading << " at " << first;
        EXPECT_TRUE(error != EIO || problem.ends_with("Input/output error")) << problem;
        EXPECT_TRUE(contentOf(file()) == before) << reading << " at " << first;
    };
    for (std::size_t reading = 0; reading < readings.size(); ++reading)
        for (int first = 0; first < readings[reading].reads; ++first) {
            attempt(reading, EIO, first);
            if (readings[reading].reads > 1)
                attempt(reading, FileCalls::Skipped, first);
        }
    EXPECT_EQ(content, "kept");
}

TEST_F(FileFaultsTest, NobodyIsWaitedForLongerThanTenSeconds) {
    const fs::path locked = folder() / "locked.txt";
    const fs::path home = folder() / "home";
    put(file(), "old");
    put(locked, "old");
    put(scratch(), "being written");
    fs::create_directory(home);
    FileDescriptor writing;
    FileDescriptor first;
    LockedFile held;
    ASSERT_TRUE(held.lock(locked).ok() && openForReading(scratch(), writing).ok());
    first = FileDescriptor(::open(home.c_str(), O_RDONLY));
    ASSERT_TRUE(takeLock(writing) == LockAnswer::Taken && takeLock(first) == LockAnswer::Taken);

    const auto start = std::chrono::steady_clock::now();
    const auto inBackground = [](auto work) { return std::async(std::launch::async, work); };
    auto appended = inBackground([&] { return appendLines(locked, "new\n"); });
    auto replaced = inBackground([&] { return replaceFile(file(), "new"); });
    auto installed = inBackground([&] { return installShippedFiles(TESSALY_DATA, home / "game"); });
    EXPECT_EQ(appended.get().problem, locked.native() + ": is being written by another program");
    EXPECT_EQ(replaced.get().problem, file().native() + ": is being written by another program");
    EXPECT_EQ(installed.get().problem,
              (home / "game").native() + ": another program is busy with it");
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
    EXPECT_EQ(contentOf(locked) + contentOf(file()) + contentOf(scratch()), "oldoldbeing written");
}

} // namespace
} // namespace tessaly
