#include "cli/commands.h"
#include "cli/record_output.h"
#include "core/solver/puzzle_of_day.h"
#include "core/solver/puzzle_series.h"

#include <algorithm>
#include <chrono>
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
    std::optional<std::int64_t> count;
    std::optional<std::uint64_t> seed;
    std::optional<std::int64_t> first;
    std::optional<StarRange> stars;
    std::optional<std::chrono::year_month_day> day;
    int jobs = allProcessors();
    std::filesystem::path output;
};

DifficultyChoice difficultyAt(std::size_t place) {
    return place < Difficulties.size() ? DifficultyChoice(Difficulties[place].difficulty)
                                       : std::nullopt;
}

/// What is asked for twice, or not at all; nothing when it is clear.
std::string confusionIn(const CreateOptions& options) {
    if (options.day && (options.count || options.seed || options.first || options.stars))
        return "--day: a day has one puzzle, so there is no --count, --seed, --first or --stars";
    if (!options.day && !options.count)
        return "--count is required";
    if (options.first && !options.seed)
        return "--first: only the puzzles of a --seed are numbered";
    return {};
}

int createOfDay(const CreateOptions& options, const Console& console) {
    RecordOutput output(console.out, options.output);
    Outcome outcome = output.open();
    output.add(
        puzzleOfDay(*options.day, difficultyAt(options.difficulty), SearchFill(allArrangements())));
    if (outcome.ok())
        outcome = output.flush();
    return outcome.ok() ? exit_status::Done : fail(console, outcome.problem + output.howMuch());
}

int createMany(const CreateOptions& options, const Console& console) {
    RecordOutput output(console.out, options.output);
    Outcome outcome = output.open();
    const std::int64_t count = *options.count;
    const PuzzleSeries series{difficultyAt(options.difficulty),
                              options.seed.value_or(Chance::freshSeed()),
                              options.stars.value_or(StarRange{})};
    const SearchFill fill(allArrangements());
    TerminalProgressBar bar(console, count);
    const auto first = static_cast<std::uint64_t>(options.first.value_or(1) - 1);
    if (outcome.ok())
        makeSeries(series, first, options.jobs, fill, [&](const std::string& record) {
            output.add(record);
            if (output.isDue()) {
                bar.clear();
                outcome = output.flush();
            }
            bar.show(output.count());
            return outcome.ok() && output.count() < count && !console.isInterrupted();
        });
    if (outcome.ok())
        outcome = output.flush();
    bar.clear();
    if (!outcome.ok())
        return fail(console, outcome.problem + output.howMuch());
    tellSeed(console, options.seed, series.seed);
    if (output.count() == count)
        return exit_status::Done;
    fail(console, "interrupted after " + counted(output.count(), "puzzle"));
    return exit_status::Interrupted;
}

int create(const CreateOptions& options, const Console& console) {
    if (const std::string confusion = confusionIn(options); !confusion.empty())
        return refuseUsage(console, confusion);
    return options.day ? createOfDay(options, console) : createMany(options, console);
}

Option dayOption(std::optional<std::chrono::year_month_day>& target) {
    const auto take = [&target](const std::string& given) -> std::string {
        target = readDay(given);
        return target ? "" : given + " is no day like 2026-11-21";
    };
    return {namesIn("--day"), "DAY", "The puzzle of a day, the same for everybody: 2026-11-21",
            take};
}

} // namespace

Subcommand createCommand() {
    const auto options = std::make_shared<CreateOptions>();
    return {
        {.name = "create",
         .description = "Make new puzzles, no two alike",
         .footer = "Example: tessaly-cli create --difficulty easy --count 500 --seed 1 "
                   "--output easy.txt\n\n"
                   "Parts of a series that several machines make, joined in order, are what "
                   "one machine makes: parallel --keep-order -S one,two tessaly-cli create "
                   "--difficulty hard --seed 7 --first {} --count 1000 ::: 1 1001 2001 > "
                   "hard.txt",
         .options =
             {required(choice("--difficulty", "easy|hard|random", "How hard the puzzles are to be",
                              options->difficulty)),
              number("--count,-n", "N",
                     "How many puzzles to make, at most " + std::to_string(MaxCount),
                     options->count, std::int64_t{1}, MaxCount),
              number("--seed,-s", "S",
                     "A whole number; makes the same puzzles whenever it is given", options->seed,
                     std::uint64_t{0}),
              number("--first", "I",
                     "The number of the first puzzle among those of the seed (by "
                     "default 1)",
                     options->first, std::int64_t{1}),
              starsOption("Only puzzles of so many stars, 1 to 5, of their difficulty: 3, or 4-5",
                          options->stars),
              dayOption(options->day),
              number("--jobs,-j", "J", "How many threads to work with (by default all processors)",
                     options->jobs, 1, MaxJobs),
              outputFile("A puzzle file to append to", options->output)}},
        [options](const Console& console) { return create(*options, console); }};
}

} // namespace tessaly
