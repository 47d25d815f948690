// The tools for puzzle libraries on 100,000 different records, files flushed to the disk included.
// TMPDIR says on which disk the files are made.

#include "core/files/file_access.h"
#include "core/solver/library_tools.h"

#include "support/sample_puzzles.h"
#include "support/temporary_folder.h"

#include <benchmark/benchmark.h>

#include <iostream>

namespace tessaly {
namespace {

constexpr int RecordCount = 100'000;

/// A different puzzle for each seed: the digits of the sample are dealt out anew and cells are
/// given by the bits of the seed.
std::string recordOf(const std::string& sample, int seed) {
    constexpr std::size_t Header = 5;
    std::string record = sample;
    for (int bit = 0; bit < 17; ++bit) {
        char& cell = record[Header + 6 * static_cast<std::size_t>(bit)];
        const char digit = cell < 'Q' ? cell : static_cast<char>(cell - 32);
        cell = (seed >> bit) % 2 == 0 ? digit : static_cast<char>(digit + 32);
    }
    return record;
}

/// A folder with the library in it.
struct Library {
    Library() {
        const std::string sample = sampleRecords("hard.txt").front();
        std::string content;
        for (int seed = 0; seed < RecordCount; ++seed)
            content += recordOf(sample, seed) + "\r\n";
        if (const Outcome written = replaceFile(files.input, content); !written.ok())
            std::cerr << written.problem << '\n';
    }

    TemporaryFolder folder;
    ToolFiles files{folder / "library.txt", folder / "output.txt"};
};

const ToolFiles& library() {
    static const Library library;
    return library.files;
}

void expand(benchmark::State& state) {
    while (state.KeepRunning()) {
        std::filesystem::remove(library().output);
        if (!expandPuzzles(library(), TopBottomHeader::Follows).ok())
            state.SkipWithError("the library was not expanded");
    }
}
BENCHMARK(expand)->Unit(benchmark::kMillisecond)->UseRealTime()->MeasureProcessCPUTime();

void shuffle(benchmark::State& state) {
    Chance chance(1);
    while (state.KeepRunning())
        if (!shufflePuzzles(library(), chance).ok())
            state.SkipWithError("the library was not shuffled");
}
BENCHMARK(shuffle)->Unit(benchmark::kMillisecond)->UseRealTime()->MeasureProcessCPUTime();

} // namespace
} // namespace tessaly

BENCHMARK_MAIN();
