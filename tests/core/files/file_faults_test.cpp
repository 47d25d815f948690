// What becomes of files when a system call fails, or another program acts between two of them.

#include "core/board/arrangements.h"
#include "core/files/file_access.h"
#include "core/files/lock_file.h"
#include "core/files/locked_file.h"
#include "core/session/program_folder.h"

#include "faults/scene.h"
#include "support/file_calls.h"
#include "support/process.h"
#include "support/sample_puzzles.h"
#include "support/temporary_folder.h"

#include <array>
#include <cerrno>
#include <ctime>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>

namespace tessaly::file_faults_test {

namespace fs = std::filesystem;
using Names = std::set<std::string>;
using faults::Scene;

/// What `work` says while another program acts, or a call fails, as `before` has it.
std::string problemWhile(FileCalls::Before before, const std::function<Outcome()>& work) {
    const FileCalls calls(std::move(before));
    return work().problem;
}

/// Tries an operation again and again, each time with other calls failing.
void tryFaults(const faults::Operation& operation, int records) {
    const TemporaryFolder folder;
    const Scene before{folder / "before"}, after{folder / "after"}, work{folder / "work"};
    const auto renew = [&](const Scene& scene) {
        fs::remove_all(scene.folder);
        fs::copy(before.folder, scene.folder,
                 fs::copy_options::recursive | fs::copy_options::copy_symlinks);
        return [&] { return operation.work(scene); };
    };
    ASSERT_EQ(before.make(records).problem, "");
    operation.prepare(before);
    int calls = 0;
    const auto count = [&](std::string_view, int) {
        ++calls;
        return 0;
    };
    const bool succeeds = problemWhile(count, renew(after)).empty();
    // The calls from `first` up to `last` fail.
    const auto attempt = [&](int first, int last, int error) {
        std::string said = std::string(operation.name) + " at " + std::to_string(records) + ": ";
        bool flushFailed = false;
        const auto fail = [&](std::string_view name, int number) {
            if (number < first || number >= last)
                return 0;
            flushFailed = flushFailed || (error != EINTR && name == "fsync");
            said.append(name).append(" ");
            return error;
        };
        const std::string problem = problemWhile(fail, renew(work));
        EXPECT_TRUE(problem.empty() ? !flushFailed : error != EINTR || !succeeds) << said;
        std::string left;
        const Outcome judged = judge(operation, before, after, work, problem.empty(), left);
        EXPECT_TRUE(judged.ok()) << said << error << left << problem << judged.problem;
    };
    for (int number = 0; number < calls; ++number) {
        attempt(number, number + 1, EIO);
        attempt(number, calls + 1000, ENOSPC);
        attempt(number, number + 1, EINTR);
    }
}

TEST(FileFaults, NoFailingCallLosesOrTearsAnything) {
    const fs::path open = "/proc/self/fd";
    const auto before = std::distance(fs::directory_iterator(open), {});
    for (const faults::Operation& operation : faults::operations())
        for (int records : {-1, 300})
            if (!operation.isSlow)
                tryFaults(operation, records);
    EXPECT_EQ(std::distance(fs::directory_iterator(open), {}), before);
}

struct FileFaultsTest : testing::Test {
    /// The one hidden file beside those of the user.
    fs::path scratch() const {
        for (const std::string& name : m_folder.names())
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
    const fs::path file = m_folder / "a.txt";
    const std::function<void()> removed = [this] { fs::remove(file); };
};

TEST_F(FileFaultsTest, AnAppendedLineStandsInTheFileThatTheNameMeans) {
    const auto replaced = replacedBy("other\n");
    for (const auto& [call, work, left] :
         {std::tuple("flock", replaced, "other\nnew\n"), // made while its folder was locked
          {"flock", replaced, "other\nnew\n"},           // replaced between opening and lock
          {"flock", removed, "new\n"},
          {"write", replaced, "other\nnew\n"},
          {"fsync", replaced, "other\nnew\n"},
          {"fsync", removed, "new\n"}}) {
        EXPECT_EQ(problemWhile(meanwhile(call, work), appending("new\n")), "") << call;
        EXPECT_EQ(contentOf(file), left) << call;
    }
    EXPECT_EQ(m_folder.names(), Names{"a.txt"});
}

TEST_F(FileFaultsTest, OnlyWhatIsOnesOwnIsTakenBack) {
    put(file, "old\n");
    std::string foreign;
    std::string_view alsoFails;
    const auto fail = [&](std::string_view name, int) {
        if (name == "fsync")
            std::ofstream(file, std::ios::app) << foreign;
        return name == "fsync" || name == alsoFails ? EIO : 0;
    };
    const std::string problem = told("cannot be flushed to the disk: Input/output error");
    EXPECT_EQ(problemWhile(fail, appending("new\n")), problem);
    EXPECT_EQ(contentOf(file), "old\n");
    const std::string partly = problem + "; a part of what was written may stand at its end";
    alsoFails = "ftruncate";
    EXPECT_EQ(problemWhile(fail, appending("new\n")), partly);
    EXPECT_EQ(contentOf(file), "old\nnew\n");
    alsoFails = {};
    foreign = "foreign\n";
    EXPECT_EQ(problemWhile(fail, appending("newer\n")), partly);
    EXPECT_EQ(contentOf(file), "old\nnew\nnewer\nforeign\n");
}

TEST_F(FileFaultsTest, TwoThatMakeOneFileWithoutLocksBothStandInIt) {
    const auto first = meanwhile("linkat", [this] { put(file, recordFile(1)); });
    const auto before = [&, noLocks = failing("flock", ENOLCK, 0, 1000)](auto name,
                                                                         int at) mutable {
        return first(name, at) + noLocks(name, at);
    };
    int number = 0;
    const auto append = [&] { return PuzzleStore().appendPuzzle(file, recordNumbered(2), number); };
    EXPECT_EQ(problemWhile(before, append), "");
    EXPECT_EQ(contentOf(file), recordFile(2));
    EXPECT_EQ(number, 2);
    fs::remove(file);
    EXPECT_EQ(problemWhile(failing("unlinkat", EIO), append), "");
    EXPECT_EQ(m_folder.names().size(), 2u) << "the new file has its scratch name too";
    EXPECT_EQ(append().problem, "");
    EXPECT_EQ(m_folder.names().size(), 1u);
}

TEST_F(FileFaultsTest, WithoutLocksWhoHasDiedKeepsNobodyOut) {
    const auto noLocks = failing("flock", ENOLCK, 0, 1000);
    put(file, "old");
    const pid_t child = startChild([&] {
        const FileCalls calls(noLocks);
        LockedFile locked;
        ::_exit(locked.lock(file).ok() ? 0 : 1);
        return false;
    });
    ASSERT_TRUE(succeeded(child));
    EXPECT_EQ(m_folder.names().size(), 2u);
    EXPECT_EQ(problemWhile(noLocks, replacing("next")), "");
    EXPECT_EQ(m_folder.names().size(), 1u);
}

TEST_F(FileFaultsTest, ALockLinkOfAnotherMachineCountsUntilItIsOld) {
    const FileDescriptor home(::open(m_folder.path().c_str(), O_RDONLY));
    LockFile lock;
    ASSERT_EQ(lock.take(home, "a.txt"), LockAnswer::Taken);
    const fs::path link = m_folder / *m_folder.names().begin();
    const std::string self = fs::read_symlink(link);
    const std::string host = self.substr(0, self.find(':') + 1);
    lock.release();
    const auto another = [&] {
        fs::remove(link);
        fs::create_symlink("another:2", link);
    };
    const std::tuple<std::string, std::time_t, FileCalls::Before, bool> rows[] = {
        {"elsewhere:1", 0, failing("", 0), true},
        {"elsewhere:1", 1000, failing("", 0), false},
        {"elsewhere:1", 1000, failing("fstatat", EIO), true},
        {"elsewhere:1", 1000, failing("readlinkat", EIO), true},
        {"elsewhere:1", 1000, failing("symlinkat", EIO, 1), true},
        {"elsewhere:1", 1000, meanwhile("readlinkat", another, 1), true},
        {host + "x", 0, failing("", 0), true},
        {host + "0", 0, failing("", 0), true},
    };
    for (const auto& [writer, age, before, stays] : rows) {
        fs::remove(link);
        fs::create_symlink(writer, link);
        const timespec then{std::time(nullptr) - age, 0};
        const std::array times{then, then};
        ASSERT_EQ(::utimensat(AT_FDCWD, link.c_str(), times.data(), AT_SYMLINK_NOFOLLOW), 0);
        const FileCalls calls(before);
        EXPECT_EQ(lock.take(home, "a.txt"), LockAnswer::Busy) << writer << age;
        EXPECT_EQ(fs::is_symlink(link), stays) << writer << age;
    }
    fs::remove(link);
    const FileCalls calls(failing("symlinkat", EPERM));
    EXPECT_EQ(lock.take(home, "a.txt"), LockAnswer::Unknown);
}

TEST_F(FileFaultsTest, OnlyLeftoversOfDeadProcessesAreCleared) {
    const Names own{"a.txt", ".tessaly-notes.tmp", ".tessaly-0123456789abcdef.txt",
                    "my-notes-0123456789abcdef.tmp"};
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
    EXPECT_EQ(problemWhile(failing("openat", EACCES), appending("x\n")), "");
    EXPECT_TRUE(fs::exists(torn)) << "nor whose it is";
    for (const auto& work : {appending("x\n"), replacing("new")}) {
        put(torn, "torn");
        EXPECT_EQ(work().problem, "");
        EXPECT_EQ(m_folder.names(), own);
    }

    const auto taken = [&] { fs::remove(scratch()); };
    EXPECT_EQ(problemWhile(meanwhile("flock", taken, 1), replacing("newer")), "");
    EXPECT_EQ(contentOf(file), "newer") << "taken for a leftover before it was locked";
    EXPECT_EQ(problemWhile(meanwhile("fsync", taken), replacing("newest")),
              told("is being written by another program"));
    const auto write = [&](const ContentSink& sink) {
        removeLeftovers(m_folder.path());
        EXPECT_TRUE(fs::exists(scratch())) << "its writer is alive";
        return sink.write("newest");
    };
    EXPECT_EQ(replaceFile(file, write).problem, "");
    EXPECT_EQ(m_folder.names(), own);
}

TEST_F(FileFaultsTest, AReplacementIsDoneAsFarAsTheSystemAllows) {
    const std::string changed = "was changed by another program at the same moment";
    const struct {
        std::string before;
        FileCalls::Before calls;
        std::string problem;
        std::string left;
    } rows[] = {
        {"", meanwhile("fsync", replacedBy("foreign")), changed, "foreign"},
        {"old", meanwhile("fsync", replacedBy("foreign")), changed, "foreign"},
        {"old", meanwhile("fsync", removed), changed, ""},
        {"", failing("flock", ENOLCK, 0, 1000), "", "ours"},
        {"", failing("flock", EOPNOTSUPP, 0, 1000), "", "ours"},
        {"old", failing("flock", ENOSYS, 0, 1000), "", "ours"},
        {"old", failing("flock", EBADF, 0, 1000), "", "ours"},
        {"old", failing("flock", EWOULDBLOCK, 1), "", "ours"},
        {"old", failing("flock", EIO), "cannot be locked: Input/output error", "old"},
        // The system says which links may be followed.
        {"old", failing("open", EACCES), "cannot be written: Permission denied", "old"},
        // A folder that may not be listed can neither be locked nor flushed. The file itself and
        // what is left in the folder are opened before it.
        {"old", failing("open", EACCES, 1), "", "ours"},
        {"old", failing("fsync", EINVAL, 1), "", "ours"},
        {"old", failing("fsync", EIO, 1),
         "was saved, but its folder cannot be flushed to the disk: Input/output error", "ours"},
        {"old",
         [flushes = 0](std::string_view name, int) mutable {
             return name == "syncfs" || (name == "fsync" && flushes++ == 1) ? EINVAL : 0;
         },
         "was saved, but its folder cannot be flushed to the disk: Invalid argument", "ours"},
        // A file system without links, and a name that is taken.
        {"", failing("linkat", EPERM), "", "ours"},
        {"", failing("linkat", ENOSYS), "", "ours"},
        {"", failing("linkat", EIO), "cannot be replaced: Input/output error", ""},
        {"old", failing("openat", EEXIST), "", "ours"},
        {"old", failing("openat", EEXIST, 0, 1000),
         "no new file can be made beside it: File exists", "old"},
        {"old", failing("fchmod", EINTR, 0, 1000),
         "its permissions cannot be kept: Interrupted system call", "old"},
        // A name that begins to lead to itself.
        {"old", meanwhile("readlink", [this] { removed(), fs::create_symlink(file, file); }),
         "cannot be written: Too many levels of symbolic links", ""},
        {"old", failing("fchmod", EPERM), "its permissions cannot be kept: Operation not permitted",
         "old"},
    };
    for (const auto& row : rows) {
        removed();
        if (!row.before.empty())
            put(file, row.before);
        EXPECT_EQ(problemWhile(row.calls, replacing("ours")),
                  row.problem.empty() ? "" : told(row.problem));
        EXPECT_EQ(contentOf(file), row.left) << row.problem;
    }
    if (::geteuid() != 0)
        return;
    // What a group may do that cannot be kept is given to nobody.
    for (const auto& [failures, mode] : {std::pair(2, 0604), {1, 0645}}) {
        ASSERT_EQ(::chown(file.c_str(), 65534, 65534), 0);
        fs::permissions(file, fs::perms(0645));
        EXPECT_EQ(problemWhile(failing("fchown", EPERM, 0, failures), replacing("new")), "");
        EXPECT_EQ(fs::status(file).permissions(), fs::perms(mode));
    }
    // Nor has the group what somebody on a list had, when the list cannot be kept.
    constexpr std::array<std::uint16_t, 22> List{2,      0,      1,  6, 0xFFFF, 0xFFFF, 2,  4,
                                                 65534,  0,      4,  0, 0xFFFF, 0xFFFF, 16, 4,
                                                 0xFFFF, 0xFFFF, 32, 4, 0xFFFF, 0xFFFF};
    if (::setxattr(file.c_str(), "system.posix_acl_access", List.data(), sizeof(List), 0) != 0)
        return;
    ASSERT_EQ(fs::status(file).permissions(), fs::perms(0644));
    EXPECT_EQ(problemWhile(failing("fsetxattr", ENOTSUP, 0, 9), replacing("new")), "");
    EXPECT_EQ(fs::status(file).permissions(), fs::perms(0604));
}

TEST_F(FileFaultsTest, AFileThatCannotBeReadToItsEndIsNamedAndStays) {
    const std::string before = recordFile(1000) + "\n"; // two blocks and a blank line
    Board board;
    ArrangementTable table;
    int number = 500;
    const std::string record = recordNumbered(number);
    std::string content = "kept";
    const ContentWriter write = [](const ContentSink& sink) { return sink.write("x"); };
    // Each with the number of its reads.
    const std::pair<int, std::function<Outcome()>> readings[] = {
        {2, [&] { return PuzzleStore().CountLines(file, number); }},
        {5, [&] { return Outcome{PuzzleStore().ReadPuzzle(file, 500, board).reason}; }},
        {7, [&] { return PuzzleStore().DeletePuzzle(file, 500, record); }},
        {3, appending(record + "\n")},
        {3, [&] { return PuzzleStore().appendPuzzles(file, write); }},
        // To these a file that ends early is just a shorter file.
        {1, [&] { return readSmallFile(file, 1'000'000, content); }},
        {1, [&] { return forEachRecord(file, [](const RecordLine&) { return true; }); }},
        {1, [&] { return Set6Combos(file, table); }},
    };
    for (const auto& [reads, work] : readings)
        for (int call = 0; call < (reads > 1 ? 2 * reads : 1); ++call) {
            put(file, before);
            const int error = call < reads ? EIO : FileCalls::Skipped;
            const std::string problem = problemWhile(failing("pread", error, call % reads), work);
            EXPECT_TRUE(problem.starts_with(told(""))) << problem << " at " << call;
            EXPECT_TRUE(error != EIO || problem.ends_with("Input/output error")) << problem;
            EXPECT_TRUE(contentOf(file) == before) << problem << " at " << call;
        }
    EXPECT_EQ(content, "kept");
    LockedFile locked;
    ASSERT_TRUE(locked.lock(file).ok());
    const auto append = [&] { return locked.append("x\n"); };
    EXPECT_EQ(problemWhile(failing("pread", FileCalls::Skipped), append),
              told("cannot be read: Input/output error"));
}

TEST_F(FileFaultsTest, AFolderThatIsMadeMeanwhileIsNoFile) {
    const fs::path name = m_folder / "made/";
    const auto made = meanwhile("readlink", [&] { fs::create_directory(name); });
    EXPECT_EQ(problemWhile(made, [&] { return replaceFile(name, "x"); }),
              name.native() + ": cannot be written: Is a directory");
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
    const fs::path game = m_folder / "game";
    EXPECT_EQ(problemWhile(pausing, [&] { return installShippedFiles(TESSALY_DATA, game); }),
              game.native() + ": another program is busy with it");
    EXPECT_NEAR(pauses, 3 * 10'000, 100) << "of 1 ms, but for the first ones";
    EXPECT_EQ(contentOf(file), "old");
}

} // namespace tessaly::file_faults_test
