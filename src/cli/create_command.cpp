#include "cli/commands.h"
#include "cli/record_output.h"
#include "core/solver/puzzle_series.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <thread>

namespace tessaly {
namespace {

constexpr std::int64_t MaxCount = 10'000'000;
constexpr int MaxJobs = 256;

int allProcessors() {
    return static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
}

struct CreateOptions {
    /// The place among `Difficulties`; behind them, at random.
    std::size_t difficulty = 0;
    std::int64_t count = 0;
    std::optional<std::uint64_t> seed;
    int jobs = allProcessors();
    std::filesystem::path output;
};

DifficultyChoice difficultyAt(std::size_t place) {
    return place < Difficulties.size() ? DifficultyChoice(Difficulties[place].difficulty)
                                       : std::nullopt;
}

int create(const CreateOptions& options, const Console& console) {
    RecordOutput output(console.out, options.output);
    Outcome outcome = output.open();
    const PuzzleSeries series{difficultyAt(options.difficulty),
                              options.seed.value_or(Chance::freshSeed())};
    const SearchFill fill(allArrangements());
    TerminalProgressBar bar(console, options.count);
    if (outcome.ok())
        makeSeries(series, options.jobs, fill, [&](const std::string& record) {
            output.add(record);
            if (output.isDue()) {
                bar.clear();
                outcome = output.flush();
            }
            bar.show(output.count());
            return outcome.ok() && output.count() < options.count && !console.isInterrupted();
        });
    if (outcome.ok())
        outcome = output.flush();
    bar.clear();
    if (!outcome.ok())
        return fail(console, outcome.problem + output.howMuch());
    tellSeed(console, options.seed, series.seed);
    if (output.count() == options.count)
        return exit_status::Done;
    fail(console, "interrupted after " + counted(output.count(), "puzzle"));
    return exit_status::Interrupted;
}

} // namespace

Subcommand createCommand() {
    const auto options = std::make_shared<CreateOptions>();
    return {{.name = "create",
             .description = "Make new puzzles, no two alike",
             .footer = "Example: tessaly-cli create --difficulty easy --count 500 --seed 1 "
                       "--output easy.txt",
             .options = {required(choice("--difficulty", "easy|hard|random",
                                         "How hard the puzzles are to be", options->difficulty)),
                         required(
                             number("--count,-n", "N",
                                    "How many puzzles to make, at most " + std::to_string(MaxCount),
                                    options->count, std::int64_t{1}, MaxCount)),
                         number("--seed,-s", "S",
                                "A whole number; makes the same puzzles whenever it is given",
                                options->seed, std::uint64_t{0}),
                         number("--jobs,-j", "J",
                                "How many threads to work with (by default all processors)",
                                options->jobs, 1, MaxJobs),
                         outputFile("A puzzle file to append to", options->output)}},
            [options](const Console& console) { return create(*options, console); }};
}

} // namespace tessaly
