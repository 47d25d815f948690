// What becomes of files when a system call fails, or another program acts between two of them.

#include "core/board/arrangements.h"
#include "core/board/puzzle_store.h"
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
#include <cstdlib>
#include <fcntl.h>
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
    Names names() const { return m_folder.names(); }
    /// The one hidden file beside those of the user.
    fs::path scratch() const {
        for (const std::string& name : names())
            if (name.starts_with(".tessaly-") && name.ends_with(".tmp") && name.size() > 20)
                return m_folder / name;
        return {};
    }
    /// "FILE: " and `what`.
    std::string told(const std::string& what) const { return file.native() + ": " + what; }

    /// Puts another file in the place of `file`, as a program does that replaces files.
    std::function<void()> replacedBy(const std::string& content) const {
        return [this, content] {
            put(m_folder / "new", content);
            fs::rename(m_folder / "new", file);
        };
    }
    std::function<Outcome()> appending(const std::string& line) const {
        return [this, line] { return PuzzleStore().appendPuzzles(file, line); };
    }
    std::function<Outcome()> replacing(const std::string& content) const {
        return [this, content] { return replaceFile(file, content); };
    }

    TemporaryFolder m_folder;
    fs::path file = m_folder / "a.txt";
};

TEST_F(FileFaultsTest, AnAppendedLineStandsInTheFileThatTheNameMeans) {
    const auto removed = [&] { fs::remove(file); };
    const struct {
        const char* call;
        std::function<void()> work;
        const char* line;
        const char* left;
        const char* when;
    } rows[] = {
        {"flock", replacedBy("1\n"), "2\n", "1\n2\n", "made while its folder was locked"},
        {"flock", replacedBy("3\n"), "4\n", "3\n4\n", "replaced between opening and lock"},
        {"flock", removed, "5\n", "5\n", "removed between opening and lock"},
        {"write", replacedBy("6\n"), "7\n", "6\n7\n", "replaced before the line was written"},
        {"fsync", replacedBy("8\n"), "9\n", "8\n9\n", "replaced before it was flushed"},
        {"fsync", removed, "10\n", "10\n", "removed before it was flushed"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(problemWhile(meanwhile(row.call, row.work), appending(row.line)), "") << row.when;
        EXPECT_EQ(contentOf(file), row.left) << row.when;
    }
    EXPECT_EQ(names(), Names{"a.txt"});
}

TEST_F(FileFaultsTest, OnlyWhatIsOnesOwnIsTakenBack) {
    put(file, "old\n");
    const auto foreign = [&] { std::ofstream(file, std::ios::app) << "foreign\n"; };
    EXPECT_EQ(problemWhile(failing("fsync", EIO), appending("new\n")),
              told("cannot be flushed to the disk: Input/output error"));
    EXPECT_EQ(contentOf(file), "old\n");
    const std::string left = problemWhile(
        [&](std::string_view name, int) {
            if (name == "fsync")
                foreign();
            return name == "fsync" ? EIO : 0;
        },
        appending("new\n"));
    EXPECT_TRUE(left.ends_with("; a part of what was written may stand at its end")) << left;
    EXPECT_EQ(contentOf(file), "old\nnew\nforeign\n");
}

TEST_F(FileFaultsTest, OnlyLeftoversOfDeadProcessesAreCleared) {
    const Names own{"a.txt", ".tessaly-notes.tmp", ".tessaly-0123456789abcdef.txt"};
    const fs::path torn = m_folder / ".tessaly-0123456789abcdef.tmp";
    const auto begunAnew = [&] {
        fs::remove(torn);
        put(torn, "another one's");
    };
    for (const std::string& name : own)
        put(m_folder / name, "the user's own");
    put(torn, "torn");
    Board board;
    PuzzleStore().ReadPuzzle(file, 1, board);
    EXPECT_TRUE(fs::exists(torn)) << "a reader removes nothing";
    EXPECT_EQ(problemWhile(meanwhile("flock", begunAnew, 1), replacing("new")), "");
    EXPECT_EQ(contentOf(torn), "another one's") << "begun between the opening and the lock";
    EXPECT_EQ(problemWhile(failing("flock", ENOLCK, 0, 1000), replacing("new")), "");
    EXPECT_TRUE(fs::exists(torn)) << "nobody knows whether its writer lives";
    for (const auto& work : {appending("x\n"), replacing("new")}) {
        EXPECT_EQ(work().problem, "");
        EXPECT_EQ(names(), own);
        put(torn, "torn");
    }
    fs::remove(torn);

    const auto taken = [&] { fs::remove(scratch()); };
    EXPECT_EQ(problemWhile(meanwhile("flock", taken, 1), replacing("newer")), "");
    EXPECT_EQ(contentOf(file), "newer") << "taken for a leftover before it was locked";
    EXPECT_EQ(problemWhile(meanwhile("fsync", taken), replacing("newest")),
              told("is being written by another program"));
    EXPECT_EQ(contentOf(file), "newer");
    const auto write = [&](const ContentSink& sink) {
        removeLeftovers(m_folder.path());
        EXPECT_TRUE(fs::exists(scratch())) << "its writer is alive";
        return sink.write("newest");
    };
    EXPECT_EQ(replaceFile(file, write).problem, "");
    EXPECT_EQ(names(), own);
}

TEST_F(FileFaultsTest, AFileThatAppearsOrGoesWhileItIsWrittenIsNotOverwritten) {
    EXPECT_NE(problemWhile(meanwhile("fsync", replacedBy("foreign")), replacing("ours")), "");
    EXPECT_EQ(contentOf(file), "foreign");
    EXPECT_NE(problemWhile(meanwhile("fsync", [&] { fs::remove(file); }), replacing("ours")), "");
    EXPECT_EQ(names(), Names{});
}

TEST_F(FileFaultsTest, WhereNothingCanBeLockedOrAFolderNotFlushedFilesAreStillSaved) {
    for (int error : {ENOLCK, EOPNOTSUPP, ENOSYS})
        EXPECT_EQ(problemWhile(failing("flock", error, 0, 1000), replacing("locked by nobody")),
                  "");
    EXPECT_EQ(problemWhile(failing("fsync", EINVAL, 1), replacing("flushed as a whole")), "");
    EXPECT_EQ(contentOf(file), "flushed as a whole");
    EXPECT_EQ(problemWhile(failing("open", EACCES), replacing("x")),
              told("cannot be written: Permission denied"))
        << "the system says which links may be followed";
    // A folder that may not be listed can neither be locked nor flushed. The file itself and what
    // is left in the folder are opened before it.
    EXPECT_EQ(problemWhile(failing("open", EACCES, 1), replacing("in a folder without names")), "");
    EXPECT_EQ(contentOf(file), "in a folder without names");
    EXPECT_EQ(problemWhile(failing("fsync", EIO, 1), replacing("not yet on the disk")),
              told("was saved, but its folder cannot be flushed to the disk: Input/output error"));
    EXPECT_EQ(contentOf(file), "not yet on the disk");
}

TEST_F(FileFaultsTest, RightsThatCannotBeKeptAreNeverGivenToOthers) {
    put(file, "old");
    fs::permissions(file, fs::perms(0640));
    EXPECT_EQ(problemWhile(failing("fchmod", EPERM), replacing("new")),
              told("its permissions cannot be kept: Operation not permitted"));
    EXPECT_EQ(contentOf(file), "old");
    if (::geteuid() != 0)
        return;
    constexpr gid_t Other = 65534;
    ASSERT_EQ(::chown(file.c_str(), static_cast<uid_t>(-1), Other), 0);
    fs::permissions(file, fs::perms(0645));
    EXPECT_EQ(problemWhile(failing("fchown", EPERM, 0, 2), replacing("new")), "");
    EXPECT_EQ(fs::status(file).permissions(), fs::perms(0604));
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
        {2, [&] { return PuzzleStore().CountLines(file, number); }},
        {5, [&] { return Outcome{PuzzleStore().ReadPuzzle(file, 500, board).reason}; }},
        {7, [&] { return PuzzleStore().DeletePuzzle(file, 500, record); }},
        {3, [&] { return PuzzleStore().appendPuzzle(file, recordNumbered(1), number); }},
        {3, [&] { return PuzzleStore().appendPuzzles(file, write); }},
        // To these a file that ends early is just a shorter file.
        {1, [&] { return readSmallFile(file, 1'000'000, content); }},
        {1, [&] { return forEachRecord(file, [](const RecordLine&) { return true; }); }},
        {1, [&] { return Set6Combos(file, table); }},
    };
    const auto attempt = [&](std::size_t reading, int error, int first) {
        put(file, before);
        const FileCalls calls(failing("pread", error, first));
        const std::string problem = readings[reading].work().problem;
        EXPECT_TRUE(problem.starts_with(told(""))) << reading << " at " << first;
        EXPECT_TRUE(error != EIO || problem.ends_with("Input/output error")) << problem;
        EXPECT_TRUE(contentOf(file) == before) << reading << " at " << first;
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
    put(file, "old");
    LockedFile held;
    ASSERT_TRUE(held.lock(file).ok());
    const FileDescriptor home(::open(m_folder.path().c_str(), O_RDONLY));
    ASSERT_EQ(takeLock(home), LockAnswer::Taken);
    int pauses = 0;
    const auto pausing = [&](std::string_view name, int) {
        const bool isPause = name == "nanosleep";
        pauses += isPause ? 1 : 0;
        return isPause ? FileCalls::Skipped : 0;
    };
    for (const auto& work : {appending("new\n"), replacing("new")})
        EXPECT_EQ(problemWhile(pausing, work), told("is being written by another program"));
    EXPECT_EQ(
        problemWhile(pausing, [&] { return installShippedFiles(TESSALY_DATA, m_folder / "game"); }),
        (m_folder / "game").native() + ": another program is busy with it");
    EXPECT_NEAR(pauses, 3 * 2000, 100) << "of 5 ms, but for the first ones";
    EXPECT_EQ(contentOf(file), "old");
}

} // namespace
} // namespace tessaly
