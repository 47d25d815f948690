// The play book: what keeping a change costs, and what opening the book and a puzzle costs when it
// holds few puzzles and when it holds many. TMPDIR says on which disk the books are made.

#include "core/board/puzzle_record.h"
#include "core/play/game.h"
#include "core/session/play_book.h"
#include "support/sample_puzzles.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <vector>

namespace tessaly {
namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr int ManyPuzzles = 100'000;

/// A book in which so many puzzles were begun, each with ten steps.
class FilledBook {
public:
    explicit FilledBook(int puzzles) {
        Database database;
        PlayBook book(path());
        static_cast<void>(book.open().ok());
        database.open(path(), DatabaseUse::ReadWrite);
        database.begin(Transaction::Write);
        Statement puzzle(database, "INSERT INTO puzzle (record, version, position, seconds, hints,"
                                   " finished, solved, begun, played)"
                                   " VALUES (?, 1, ?, 600, 0, ?, ?, 1, 1)");
        Statement step(database, "INSERT INTO step VALUES (?, 0, ?, '07033')");
        for (int i = 1; i <= puzzles; ++i) {
            Play play;
            play.board = boardOf(recordNumbered(i));
            puzzle.with(recordNumbered(i), positionText(play), i % 2, i % 2).run();
            for (int number = 0; number < 10; ++number)
                step.with(i, number).run();
        }
        if (!database.commit().ok())
            throw std::runtime_error("the book was not filled");
    }
    fs::path path() const { return m_folder / PlayBook::FileName; }

private:
    TemporaryFolder m_folder;
};

const FilledBook& filledBook(int puzzles) {
    static const FilledBook few(100);
    static const FilledBook many(ManyPuzzles);
    return puzzles == ManyPuzzles ? many : few;
}

double microseconds(Clock::duration time) {
    return std::chrono::duration<double, std::micro>(time).count();
}

/// Every change of a long play: numbers, marks, undo and redo.
void keepOneChange(benchmark::State& state) {
    PlayBook book(filledBook(static_cast<int>(state.range(0))).path());
    static_cast<void>(book.open().ok());
    Game game;
    game.board = boardOf(recordNumbered(static_cast<int>(state.range(0)) / 2));
    static_cast<void>(book.resume(game).ok());
    std::vector<double> times;
    game.changed = [&] {
        const auto start = Clock::now();
        if (!book.keep(game).ok())
            state.SkipWithError("a change was not kept");
        const auto time = Clock::now() - start;
        times.push_back(microseconds(time));
        state.SetIterationTime(times.back() / 1e6);
    };
    for (std::size_t turn = 0; state.KeepRunning(); ++turn) {
        const CellId cell = AllCells[turn * 17 % AllCells.size()];
        if (turn % 5 == 3)
            game.undo();
        else if (turn % 5 == 4 && game.canRedo())
            game.redo();
        else
            game.place(cell, std::to_string(turn % 6 + 1));
    }
    std::sort(times.begin(), times.end());
    state.counters["p50_us"] = times[times.size() / 2];
    state.counters["p99_us"] = times[times.size() * 99 / 100];
    state.counters["most_us"] = times.back();
}
BENCHMARK(keepOneChange)
    ->Arg(100)
    ->Arg(ManyPuzzles)
    ->Unit(benchmark::kMicrosecond)
    ->UseManualTime()
    ->Iterations(20'000);

/// From nothing to a puzzle with its play, as at a start. The book is looked through beside that.
void openAndResume(benchmark::State& state) {
    const FilledBook& filled = filledBook(static_cast<int>(state.range(0)));
    while (state.KeepRunning()) {
        const auto start = Clock::now();
        PlayBook book(filled.path());
        Play play;
        play.board = boardOf(recordNumbered(7));
        if (!book.open().ok() || !book.resume(play).ok() || play.undoList.empty())
            state.SkipWithError("the play was not found");
        state.SetIterationTime(microseconds(Clock::now() - start) / 1e6);
    }
}
BENCHMARK(openAndResume)
    ->Arg(100)
    ->Arg(ManyPuzzles)
    ->Unit(benchmark::kMicrosecond)
    ->UseManualTime()
    ->Iterations(200);

} // namespace
} // namespace tessaly

BENCHMARK_MAIN();
