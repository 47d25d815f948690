// What a process of its own shows: the program with its real standard output, limits and signals.

#include "cli/console.h"
#include "core/board/puzzle_record.h"

#include "support/child_process.h"
#include "support/command_line.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <sys/resource.h>
#include <thread>

namespace tessaly {
namespace {

using test::contentOf;
using test::isOneLine;
using test::linesOf;
using test::put;
using test::TemporaryFolder;

constexpr std::size_t LineLength = RecordLength + 2;

class CliProcessTest : public testing::Test {
protected:
    std::filesystem::path out() const { return m_folder / "out.txt"; }
    std::filesystem::path file() const { return m_folder / "mine.txt"; }
    std::string err() const { return contentOf(m_folder / "err.txt"); }

    /// Starts the program; standard output is appended to `outPath`, no file may grow beyond
    /// `sizeLimit` bytes.
    pid_t start(const std::filesystem::path& outPath, std::vector<std::string> arguments,
                rlim_t sizeLimit = RLIM_INFINITY) const {
        std::string program = TESSALY_CLI;
        std::vector<char*> argv{program.data()};
        for (std::string& argument : arguments)
            argv.push_back(argument.data());
        argv.push_back(nullptr);
        return test::startChild([&] {
            const rlimit limit{sizeLimit, sizeLimit};
            const int toErr =
                ::open((m_folder / "err.txt").c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
            const int toOut = ::open(outPath.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0666);
            return ::dup2(toErr, STDERR_FILENO) >= 0 && ::dup2(toOut, STDOUT_FILENO) >= 0 &&
                   ::setrlimit(RLIMIT_FSIZE, &limit) == 0 &&
                   ::execv(program.c_str(), argv.data()) == 0;
        });
    }

    static int statusOf(pid_t child) {
        int status = 0;
        return ::waitpid(child, &status, 0) == child && WIFEXITED(status) ? WEXITSTATUS(status)
                                                                          : -1;
    }

    static std::vector<std::string> createCommand(int count,
                                                  const std::vector<std::string>& more = {}) {
        std::vector<std::string> arguments{
            "create", "--difficulty", "easy", "--count", std::to_string(count), "--seed",
            "1",      "--jobs",       "2"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return arguments;
    }

    static bool holdsWholeRecords(const std::filesystem::path& path) {
        const std::string content = contentOf(path);
        return content.size() % LineLength == 0 && (content.empty() || content.ends_with("\r\n")) &&
               linesOf(content, "\r\n").size() == content.size() / LineLength;
    }

private:
    TemporaryFolder m_folder;
};

TEST_F(CliProcessTest, AFullDiskInTheMiddleLeavesWholeRecordsAndSaysSo) {
    // The output is written in pieces; 700 records are more than a few of them.
    constexpr rlim_t Limit = 600 * LineLength + 50;
    EXPECT_EQ(statusOf(start(out(), createCommand(700), Limit)), exit_status::Failed);
    EXPECT_EQ(err(), "tessaly-cli: standard output: cannot be written: File too large\n");
    EXPECT_EQ(contentOf(out()).size(), 600 * LineLength);
    EXPECT_TRUE(holdsWholeRecords(out()));

    constexpr int Earlier = 100;
    put(file(), contentOf(out()).substr(0, Earlier * LineLength));
    EXPECT_EQ(statusOf(start(out(), createCommand(700, {"--output", file()}), Limit)),
              exit_status::Failed);
    EXPECT_EQ(err(), "tessaly-cli: " + file().string() + ": cannot be written: File too large\n");
    EXPECT_GE(contentOf(file()).size(), Earlier * LineLength);
    EXPECT_TRUE(holdsWholeRecords(file()));
}

TEST_F(CliProcessTest, NoCommandPassesOverAFullStandardOutput) {
    EXPECT_EQ(statusOf(start(file(), createCommand(700))), exit_status::Done);
    const std::vector<std::vector<std::string>> commands{createCommand(1),
                                                         createCommand(700),
                                                         {"solve", file()},
                                                         {"check", file()},
                                                         {"bench", "--seconds", "0.001"}};
    for (const std::vector<std::string>& command : commands) {
        EXPECT_EQ(statusOf(start("/dev/full", command)), exit_status::Failed) << command.front();
        EXPECT_EQ(err(),
                  "tessaly-cli: standard output: cannot be written: No space left on device\n");
    }
}

TEST_F(CliProcessTest, AnInterruptEndsItSoonWithWholeRecordsOnly) {
    for (const int signal : {SIGINT, SIGTERM})
        for (const bool toFile : {false, true}) {
            const std::filesystem::path grows = toFile ? file() : out();
            std::filesystem::remove(grows);
            const pid_t child =
                start(out(), createCommand(10'000'000,
                                           toFile ? std::vector<std::string>{"--output", file()}
                                                  : std::vector<std::string>{}));
            std::error_code none;
            while (!std::filesystem::exists(grows) || std::filesystem::file_size(grows, none) == 0)
                std::this_thread::sleep_for(std::chrono::milliseconds(5));
            ::kill(child, signal);
            EXPECT_EQ(statusOf(child), exit_status::Interrupted);
            EXPECT_TRUE(isOneLine(err()) && err().starts_with("tessaly-cli: interrupted after "))
                << err();
            EXPECT_TRUE(holdsWholeRecords(grows));
            EXPECT_EQ(err(), "tessaly-cli: interrupted after " +
                                 std::to_string(contentOf(grows).size() / LineLength) +
                                 " puzzles\n");
        }
}

} // namespace
} // namespace tessaly
