// Puzzle files of a million records, beside what the system's own tools need for the same bytes.
// The page cache is warm in all of them. TMPDIR says on which disk the files are made.

#include "core/board/puzzle_store.h"
#include "core/files/file_access.h"

#include "support/temporary_folder.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <fcntl.h>
#include <functional>
#include <iostream>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace tessaly {
namespace {

namespace fs = std::filesystem;

constexpr int MillionRecords = 1'000'000;
constexpr std::size_t PieceSize = std::size_t{256} * 1024;

/// A folder with a puzzle file of a million records.
class HugeFile {
public:
    HugeFile() {
        const std::string records = contentOf(fs::path(TESSALY_DATA) / "puzzles/easy.txt");
        const auto lines = std::count(records.begin(), records.end(), '\n');
        const Outcome written = replaceFile(path(), [&](const ContentSink& sink) {
            Outcome outcome;
            for (long made = 0; made < MillionRecords && outcome.ok(); made += lines)
                outcome = sink.write(records);
            return outcome;
        });
        if (!written.ok())
            std::cerr << written.problem << '\n';
    }

    fs::path path() const { return m_folder / "million.txt"; }
    const TemporaryFolder& folder() const { return m_folder; }

private:
    TemporaryFolder m_folder;
};

const HugeFile& hugeFile() {
    static const HugeFile file;
    return file;
}

void countAndIndex(benchmark::State& state) {
    int count = 0;
    while (state.KeepRunning()) {
        PuzzleStore files;
        if (!files.CountLines(hugeFile().path(), count).ok() || count != MillionRecords)
            state.SkipWithError("the file was not counted");
    }
}
BENCHMARK(countAndIndex)->Unit(benchmark::kMillisecond)->UseRealTime()->MeasureProcessCPUTime();

/// Reading alone, without looking at a byte.
void readEveryByte(benchmark::State& state) {
    std::vector<char> bytes(PieceSize);
    while (state.KeepRunning()) {
        FileDescriptor file;
        if (!openForReading(hugeFile().path(), file).ok())
            state.SkipWithError("the file was not opened");
        while (::read(file.get(), bytes.data(), bytes.size()) > 0)
            benchmark::DoNotOptimize(bytes.data());
    }
}
BENCHMARK(readEveryByte)->Unit(benchmark::kMillisecond)->UseRealTime()->MeasureProcessCPUTime();

double secondsOfChildren() {
    rusage usage{};
    ::getrusage(RUSAGE_CHILDREN, &usage);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// The processor time of `wc -l`, its start included.
void wordCountTool(benchmark::State& state) {
    const std::string command = "wc -l '" + hugeFile().path().native() + "' >/dev/null";
    while (state.KeepRunning()) {
        const double before = secondsOfChildren();
        if (std::system(command.c_str()) != 0) // NOLINT: this is what is measured
            state.SkipWithError("wc failed");
        state.SetIterationTime(secondsOfChildren() - before);
    }
}
BENCHMARK(wordCountTool)->Unit(benchmark::kMillisecond)->UseManualTime();

/// Any puzzle of the file onto the board, once the file is indexed.
void readAnyPuzzle(benchmark::State& state) {
    PuzzleStore files;
    Board board;
    int number = 1;
    if (!files.ReadPuzzle(hugeFile().path(), number, board).ok())
        state.SkipWithError("the first puzzle was not read");
    while (state.KeepRunning()) {
        number = (number + 617'723) % MillionRecords + 1;
        if (!files.ReadPuzzle(hugeFile().path(), number, board).ok())
            state.SkipWithError("a puzzle was not read");
    }
}
BENCHMARK(readAnyPuzzle)->Unit(benchmark::kMicrosecond);

void appendOne(benchmark::State& state) {
    PuzzleStore files;
    Board board;
    const fs::path path = hugeFile().folder() / "grows.txt";
    fs::copy_file(hugeFile().path(), path, fs::copy_options::overwrite_existing);
    const PuzzleRead first = files.ReadPuzzle(path, 1, board);
    int number = 0;
    while (state.KeepRunning()) {
        if (!files.appendPuzzle(path, first.record, number).ok())
            state.SkipWithError("the puzzle was not appended");
        // As at a player's pace: a file that has changed this very moment would be read once more.
        state.PauseTiming();
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        int count = 0;
        static_cast<void>(files.CountLines(path, count).ok());
        state.ResumeTiming();
    }
}
BENCHMARK(appendOne)->Unit(benchmark::kMicrosecond)->UseRealTime()->Iterations(50);

double secondsOf(const std::function<void()>& work) {
    ::sync();
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// A copy of the whole file, flushed to the disk, as plainly as it can be made.
bool copyAndFlush(const fs::path& copy) {
    std::vector<char> bytes(PieceSize);
    FileDescriptor from;
    const bool opened = openForReading(hugeFile().path(), from).ok();
    const FileDescriptor to(::open(copy.c_str(), O_WRONLY | O_CREAT | O_EXCL, 0666));
    for (ssize_t got = 0; (got = ::read(from.get(), bytes.data(), bytes.size())) > 0;)
        if (::write(to.get(), bytes.data(), static_cast<std::size_t>(got)) != got)
            return false;
    return opened && ::fsync(to.get()) == 0;
}

/// Deleting takes turns with plain copying, for a busy disk is not the same from one second to the
/// next; the times told are medians.
void deleteOneBesidePlainCopy(benchmark::State& state) {
    PuzzleStore files;
    Board board;
    const fs::path copy = hugeFile().folder() / "copy.txt";
    const fs::path path = hugeFile().folder() / "shrinks.txt";
    fs::copy_file(hugeFile().path(), path, fs::copy_options::overwrite_existing);
    std::vector<double> copying;
    std::vector<double> deleting;
    while (state.KeepRunning()) {
        bool copied = false;
        copying.push_back(secondsOf([&] { copied = copyAndFlush(copy); }));
        fs::remove(copy);
        constexpr int Number = MillionRecords / 2;
        const PuzzleRead read = files.ReadPuzzle(path, Number, board);
        Outcome deleted;
        deleting.push_back(
            secondsOf([&] { deleted = files.DeletePuzzle(path, Number, read.record); }));
        if (!copied || !deleted.ok())
            state.SkipWithError("a copy or a deletion failed");
        state.SetIterationTime(deleting.back());
    }
    state.counters["copy_ms"] = 1000 * median(copying);
    state.counters["delete_ms"] = 1000 * median(deleting);
    state.counters["ratio"] = median(deleting) / median(copying);
}
BENCHMARK(deleteOneBesidePlainCopy)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(15);

} // namespace
} // namespace tessaly

BENCHMARK_MAIN();
