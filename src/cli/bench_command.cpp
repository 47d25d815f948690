#include "cli/commands.h"

#include "core/board/puzzle_record.h"
#include "core/solver/deduction.h"
#include "core/solver/engine_signature.h"
#include "core/solver/generator.h"
#include "core/solver/next_step.h"
#include "core/solver/puzzle_series.h"
#include "core/solver/solution_counter.h"

#include <chrono>
#include <cmath>
#include <memory>
#include <ostream>
#include <vector>

namespace tessaly {
namespace {

constexpr std::uint64_t Seed = 1;
constexpr std::size_t PuzzleCount = 200;

using Clock = std::chrono::steady_clock;

/// How often a second `work` can be done; it gets the number of its turn. Ends early when the user
/// asks for it.
template <class Work>
double rateOf(double seconds, const Console& console, const Work& work) {
    const auto start = Clock::now();
    std::chrono::duration<double> passed{0};
    std::size_t turns = 0;
    while (passed.count() < seconds && !console.isInterrupted()) {
        for (int i = 0; i < 10; ++i)
            work(turns++);
        passed = Clock::now() - start;
    }
    return static_cast<double>(turns) / passed.count();
}

/// Puzzles of both difficulties by turns.
std::vector<Board> puzzles(const SearchFill& fill) {
    std::vector<Board> boards(PuzzleCount);
    for (std::size_t i = 0; i < boards.size(); ++i) {
        Chance chance(Seed, i);
        CreatePuzzle(boards[i], Difficulties[i % Difficulties.size()].difficulty, chance, fill);
    }
    return boards;
}

/// Measures each rate for so long.
int bench(double seconds, const Console& console) {
    const SearchFill fill(allArrangements());
    console.out << "signature " << engineSignature(fill) << std::endl;

    const auto show = [&](const char* what, auto work) {
        const double rate = rateOf(seconds, console, work);
        if (!console.isInterrupted())
            console.out << what << ' ' << std::llround(rate) << " a second" << std::endl;
    };
    Chance chance(Seed);
    HexagonWords cells{};
    show("fillings", [&](std::size_t) { fill.fill(cells, chance); });

    const std::vector<Board> boards = puzzles(fill);
    const auto boardAt = [&boards](std::size_t turn) -> const Board& {
        return boards[turn % boards.size()];
    };
    Board board;
    show("deductions", [&](std::size_t turn) {
        board.CellNum = boardAt(turn).CellNum;
        SolveByDeduction(board);
    });
    std::size_t puzzle = 0;
    WithheldDigits withheld{};
    show("next steps", [&](std::size_t) {
        if (const auto step = nextStep(board, withheld)) {
            take(*step, board, withheld);
            return;
        }
        board = boardAt(puzzle++);
        board.ResetToGivens();
        withheld = {};
    });
    show("counts of solutions", [&](std::size_t turn) { countSolutions(boardAt(turn)); });
    for (const DifficultyEntry& entry : Difficulties)
        show((std::string(entry.name) + " puzzles").c_str(), [&](std::size_t turn) {
            PuzzleSeries{entry.difficulty, Seed}.record(turn, fill);
        });
    if (const Outcome written = flushed(console.out); !written.ok())
        return fail(console, written.problem);
    return console.isInterrupted() ? exit_status::Interrupted : exit_status::Done;
}

} // namespace

Subcommand benchCommand() {
    const auto seconds = std::make_shared<double>(1);
    return {{.name = "bench",
             .description = "Show the engine's signature, the same on every machine, and its rates",
             .footer = "Example: tessaly-cli bench --seconds 5",
             .options = {number("--seconds", "S", "How long to measure each rate", *seconds, 0.001,
                                3600.0)}},
            [seconds](const Console& console) { return bench(*seconds, console); }};
}

} // namespace tessaly
