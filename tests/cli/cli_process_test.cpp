// What a process of its own shows: the program with its real standard output, limits and signals.

#include "core/board/puzzle_record.h"
#include "support/child_process.h"
#include "support/command_line.h"

#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>
#include <thread>

namespace tessaly {
namespace {

using test::contentOf;

constexpr std::size_t LineLength = RecordLength + 2;

class CliProcess : public test::CommandLineTest {
protected:
    std::string err() const { return contentOf(folder / "err.txt"); }

    /// Starts the program; standard output is appended to `outPath`, no file may grow beyond
    /// `sizeLimit` bytes.
    pid_t start(const std::string& line, const std::string& outPath,
                rlim_t sizeLimit = RLIM_INFINITY) const {
        const std::string command = "exec " TESSALY_CLI " " + line + " >>" + outPath + " 2>" +
                                    (folder / "err.txt").string();
        return test::startChild([&] {
            for (const int each : {SIGINT, SIGTERM, SIGHUP}) // whatever the tests ignore
                ::signal(each, SIG_DFL);
            const rlimit limit{sizeLimit, sizeLimit};
            return ::setrlimit(RLIMIT_FSIZE, &limit) == 0 &&
                   ::execl("/bin/sh", "sh", "-c", command.c_str(), nullptr) == 0;
        });
    }
    static int statusOf(pid_t child) {
        int status = 0;
        return ::waitpid(child, &status, 0) == child && WIFEXITED(status) ? WEXITSTATUS(status)
                                                                          : -1;
    }
    const std::string Create = "create --difficulty easy --jobs 2 --seed 1 --count ";
};

TEST_F(CliProcess, NoCommandPassesOverAFullStandardOutput) {
    const std::string many = Create + "700";
    // The output is written in pieces; 700 records are more than a few of them.
    EXPECT_EQ(statusOf(start(many, file, 600 * LineLength + 50)), exit_status::Failed);
    EXPECT_EQ(err(), "tessaly-cli: standard output: cannot be written: File too large\n");
    EXPECT_EQ(contentOf(file).size(), 600 * LineLength) << "whole records";
    for (const std::string& line : {Create + "1", many, "solve " + file, "check " + file,
                                    std::string("bench --seconds 0.001")}) {
        EXPECT_EQ(statusOf(start(line, "/dev/full")), exit_status::Failed) << line;
        EXPECT_EQ(err(),
                  "tessaly-cli: standard output: cannot be written: No space left on device\n");
    }
}

TEST_F(CliProcess, AnInterruptEndsItSoonWithWholeRecordsOnly) {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        std::filesystem::remove(file);
        const pid_t child = start(Create + "10000000", file);
        std::error_code none;
        while (!std::filesystem::exists(file) || std::filesystem::file_size(file, none) == 0)
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        ::kill(child, signal);
        int status = 0;
        EXPECT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == signal) << status;
        const std::size_t records = test::linesOf(contentOf(file), "\r\n").size();
        EXPECT_EQ(contentOf(file).size(), records * LineLength);
        EXPECT_EQ(err(),
                  "tessaly-cli: interrupted after " + std::to_string(records) + " puzzles\n");
    }
}

} // namespace
} // namespace tessaly
