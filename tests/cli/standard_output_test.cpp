// The program's real standard output: a process of its own, full disks and signals.

#include "cli/console.h"
#include "core/board/puzzle_record.h"
#include "core/files/file_descriptor.h"
#include "support/command_line.h"
#include "support/file_calls.h"
#include "support/process.h"

#include <csignal>
#include <fcntl.h>
#include <fstream>
#include <sys/stat.h>

namespace tessaly::standard_output_test {

constexpr std::size_t LineLength = RecordLength + 2;

struct StandardOutputTest : CommandLineTest {
    std::string err() const { return contentOf(folder / "err.txt"); }

    /// Starts the program; standard output is appended to `outPath`, no file may grow beyond
    /// `sizeLimit` bytes.
    pid_t start(const std::string& line, const std::string& outPath,
                rlim_t sizeLimit = RLIM_INFINITY) const {
        const std::string command = "exec " TESSALY_CLI " " + line + " >>" + outPath + " 2>" +
                                    (folder / "err.txt").string();
        return startChild([&] {
            for (const int each : {SIGINT, SIGTERM, SIGHUP}) // whatever the tests ignore
                ::signal(each, SIG_DFL);
            const rlimit limit{sizeLimit, sizeLimit};
            return ::setrlimit(RLIMIT_FSIZE, &limit) == 0 &&
                   ::execl("/bin/sh", "sh", "-c", command.c_str(), nullptr) == 0;
        });
    }
    static int statusOf(pid_t child) {
        int status = 0;
        EXPECT_EQ(::waitpid(child, &status, 0), child);
        return status;
    }
    const std::string Create = "create --difficulty easy --jobs 2 --seed 1 --count ";
};

TEST_F(StandardOutputTest, NoCommandPassesOverAFullOne) {
    const std::string told = "tessaly-cli: standard output: cannot be written: ";
    const std::string many = Create + "700";
    // The output is written in pieces; 700 records are more than a few of them.
    const int status = statusOf(start(many, file, 600 * LineLength + 50));
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == exit_status::Failed) << status;
    EXPECT_EQ(err(), told + "File too large; 600 puzzles written\n");
    EXPECT_EQ(contentOf(file).size(), 600 * LineLength) << "whole records";
    for (const std::string& line : {Create + "1", many, "solve " + file, "check " + file,
                                    std::string("bench --seconds 0.001")}) {
        EXPECT_EQ(statusOf(start(line, "/dev/full")), status) << line;
        const char* const more = line.starts_with(Create) ? "; 0 puzzles written\n" : "\n";
        EXPECT_EQ(err(), told + "No space left on device" + more);
    }
}

TEST_F(StandardOutputTest, AnInterruptEndsTheProgramSoonWithWholeRecordsOnly) {
    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        const pid_t child = start(Create + "10000000", file);
        std::ifstream out(file, std::ios::binary);
        std::string written(1, static_cast<char>(out.get())); // waits for the first record
        ::kill(child, signal);
        std::getline(out, written, '\0');
        const int status = statusOf(child);
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == signal) << status;
        ASSERT_EQ((written.size() + 1) % LineLength, 0U) << "whole records";
        EXPECT_EQ(err(), "tessaly-cli: interrupted after " +
                             std::to_string((written.size() + 1) / LineLength) + " puzzles\n");
    }
}

/// Writes on a disk where no file can be larger than `room` bytes.
/// Whether that went well.
bool writeTo(const FileDescriptor& file, const std::string& text, rlim_t room) {
    const FullDisk disk(room);
    StandardOutput buffer(file.get());
    std::ostream out(&buffer);
    out << text << std::flush;
    const bool ok = out.good();
    out.clear();
    out << "later\n" << std::flush;
    EXPECT_EQ(out.good(), ok) << "a gap in the output is worse than its end";
    return ok;
}

TEST_F(StandardOutputTest, APartOfALineIsTakenBackWhereTheFileEndsWithIt) {
    const auto left = [this](int more, const std::string& before, const std::string& text,
                             rlim_t room) {
        put(file, before);
        const FileDescriptor opened(::open(file.c_str(), O_WRONLY | more));
        EXPECT_EQ(writeTo(opened, text, room), room == RLIM_INFINITY);
        return contentOf(file);
    };
    const std::string x(99, 'x'), line = x + "\n", y = std::string(200'000, 'y') + "\n";
    const std::string older(200, 'o');
    EXPECT_TRUE(left(0, "", line + y + "open", RLIM_INFINITY) == line + y + "openlater\n");
    EXPECT_EQ(left(O_APPEND, "", line + line, 150), line);
    EXPECT_EQ(left(O_APPEND, line, line, 150), line);
    EXPECT_EQ(left(O_APPEND, "", line + line, 100), line);
    EXPECT_EQ(left(O_APPEND, "", line, 0), "");
    EXPECT_EQ(left(O_APPEND, "", line + y, 150'000), line);
    EXPECT_EQ(left(0, older, line + x, 150), line + x.substr(0, 50) + older.substr(0, 50));
    EXPECT_FALSE(writeTo(FileDescriptor(), "x\n", RLIM_INFINITY)) << "closed";
    const FileCalls calls(failing("fstat", EIO));
    EXPECT_EQ(left(O_APPEND, "", "1234\n56", 6), "1234\n5");
}

} // namespace tessaly::standard_output_test
