// The engine beside two yardsticks: the plain reading of the rules, and a plain search with bit
// masks. Both sides do their work by turns in one run, so that a busy machine is busy for both;
// told is the best time of each ("ours", "plain", in microseconds of processor time) and how many
// times faster ours is ("times").

#include "bitmask_search.h"

#include "core/solver/deduction.h"
#include "core/solver/generator.h"
#include "core/solver/puzzle_series.h"
#include "core/solver/solution_counter.h"

#include "support/plain_rules.h"
#include "support/sample_boards.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <ctime>
#include <functional>
#include <limits>
#include <vector>

namespace tessaly {
namespace {

constexpr std::uint64_t Seed = 1;

/// The processor time of this thread.
double processorSeconds() {
    timespec now{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

double wallSeconds() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double>(now).count();
}

/// The shortest of several times of the same work.
class Best {
public:
    void add(double seconds) { m_seconds = std::min(m_seconds, seconds); }
    double seconds() const { return m_seconds; }

private:
    double m_seconds = std::numeric_limits<double>::infinity();
};

template <class Work>
double timeOf(double (*clock)(), const Work& work) {
    const double start = clock();
    work();
    return clock() - start;
}

/// Times two ways of doing the same `units` of work by turns, `rounds` times each in a turn, so
/// that one does not always find the caches full of the other. `prepare` comes before each round.
struct Comparison {
    std::size_t units = 1;
    std::function<void()> ours;
    std::function<void()> plainly;
    int rounds = 1;
    std::function<void()> prepare = [] {};

    double turn(const std::function<void()>& work, Best& best) const {
        double seconds = 0;
        for (int round = 0; round < rounds; ++round) {
            prepare();
            seconds = timeOf(processorSeconds, work);
            best.add(seconds);
        }
        return seconds;
    }

    void run(benchmark::State& state) const {
        Best best;
        Best bestPlain;
        while (state.KeepRunning()) {
            state.SetIterationTime(turn(ours, best));
            turn(plainly, bestPlain);
        }
        const double perUnit = 1e6 / static_cast<double>(units);
        state.counters["ours"] = best.seconds() * perUnit;
        state.counters["plain"] = bestPlain.seconds() * perUnit;
        state.counters["times"] = bestPlain.seconds() / best.seconds();
    }
};

std::vector<Board> createdPuzzles(std::size_t count) {
    std::vector<Board> boards(count);
    for (std::size_t i = 0; i < count; ++i) {
        Chance chance(Seed, i);
        CreatePuzzle(boards[i], Difficulties[i % Difficulties.size()].difficulty, chance,
                     completeFill());
    }
    return boards;
}

void randomFilling(benchmark::State& state) {
    constexpr std::size_t Fillings = 1000;
    Chance chance(Seed);
    Chance plainChance(Seed);
    HexagonWords cells{};
    const auto ours = [&] {
        for (std::size_t i = 0; i < Fillings; ++i) {
            completeFill().fill(cells, chance);
            benchmark::DoNotOptimize(cells);
        }
    };
    const auto plainly = [&] {
        for (std::size_t i = 0; i < Fillings; ++i) {
            plain::BitmaskSearch search;
            if (!search.fill(plainChance))
                state.SkipWithError("no filling was found");
            benchmark::DoNotOptimize(search.digitAt({1, 1}));
        }
    };
    Comparison{Fillings, ours, plainly}.run(state);
}
BENCHMARK(randomFilling)->Unit(benchmark::kMicrosecond)->UseManualTime()->Iterations(200);

void exactlyOneSolution(benchmark::State& state) {
    const std::vector<Board> puzzles = createdPuzzles(100);
    const auto countAll = [&](const auto& count) {
        return [&, count] {
            for (const Board& puzzle : puzzles)
                if (count(puzzle) != 1)
                    state.SkipWithError("not exactly one solution");
        };
    };
    const auto ours = countAll([](const Board& puzzle) { return countSolutions(puzzle).found; });
    const auto plainly =
        countAll([](const Board& puzzle) { return plain::BitmaskSearch(puzzle).count(2); });
    Comparison{puzzles.size(), ours, plainly, 10}.run(state);
}
BENCHMARK(exactlyOneSolution)->Unit(benchmark::kMicrosecond)->UseManualTime()->Iterations(100);

void solveByDeduction(benchmark::State& state) {
    const std::vector<Board> puzzles = createdPuzzles(20);
    std::vector<Board> boards;
    const auto solveAll = [&](const auto& solve) {
        return [&, solve] {
            for (Board& board : boards)
                if (solve(board) != 0)
                    state.SkipWithError("not solved");
        };
    };
    const auto ours = solveAll([](Board& board) { return SolveByDeduction(board); });
    const auto plainly = solveAll([](Board& board) { return plain::SolveByDeduction(board); });
    Comparison{puzzles.size(), ours, plainly, 10, [&] { boards = puzzles; }}.run(state);
}
BENCHMARK(solveByDeduction)->Unit(benchmark::kMicrosecond)->UseManualTime()->Iterations(100);

/// Making a puzzle beside solving one by the plain rules.
void createdPuzzle(benchmark::State& state, Difficulty difficulty) {
    const std::vector<Board> puzzles = createdPuzzles(20);
    const auto ours = [&] {
        for (std::size_t i = 0; i < puzzles.size(); ++i) {
            Board board;
            Chance chance(Seed, i);
            CreatePuzzle(board, difficulty, chance, completeFill());
            benchmark::DoNotOptimize(board);
        }
    };
    const auto plainly = [&] {
        for (Board board : puzzles)
            if (plain::SolveByDeduction(board) != 0)
                state.SkipWithError("not solved");
    };
    Comparison{puzzles.size(), ours, plainly}.run(state);
}
BENCHMARK_CAPTURE(createdPuzzle, easy, Difficulty::Easy)
    ->Unit(benchmark::kMicrosecond)
    ->UseManualTime()
    ->Iterations(12);
BENCHMARK_CAPTURE(createdPuzzle, hard, Difficulty::Hard)
    ->Unit(benchmark::kMicrosecond)
    ->UseManualTime()
    ->Iterations(12);

/// How much sooner two threads are done than one, by the clock on the wall: of any use only where
/// two processors are free.
void secondThread(benchmark::State& state) {
    constexpr int Puzzles = 1024;
    const auto secondsWith = [](int jobs) {
        int made = 0;
        return timeOf(wallSeconds, [&] {
            makeSeries({std::nullopt, Seed}, 0, jobs, completeFill(),
                       [&made](const std::string&) { return ++made < Puzzles; });
        });
    };
    Best one;
    Best two;
    while (state.KeepRunning()) {
        one.add(secondsWith(1));
        const double seconds = secondsWith(2);
        two.add(seconds);
        state.SetIterationTime(seconds);
    }
    state.counters["times"] = one.seconds() / two.seconds();
}
BENCHMARK(secondThread)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(15);

} // namespace
} // namespace tessaly

BENCHMARK_MAIN();
