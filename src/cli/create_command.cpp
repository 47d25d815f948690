#include "cli/create_command.h"

#include "cli/console.h"
#include "cli/record_output.h"
#include "core/solver/puzzle_series.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <charconv>
#include <map>
#include <thread>

namespace tessaly {
namespace {

std::string lowerCase(std::string_view name) {
    return CLI::detail::to_lower(std::string(name));
}

/// What --difficulty may say.
std::map<std::string, DifficultyChoice> difficultyNames() {
    std::map<std::string, DifficultyChoice> names{{lowerCase(RandomDifficultyName), std::nullopt}};
    for (const DifficultyEntry& entry : Difficulties)
        names.emplace(lowerCase(entry.name), entry.difficulty);
    return names;
}

std::vector<std::string> namesOf(const std::map<std::string, DifficultyChoice>& choices) {
    std::vector<std::string> names;
    names.reserve(choices.size());
    for (const auto& [name, choice] : choices)
        names.push_back(name);
    return names;
}

/// The command line library takes "-1" and what is too large for the largest number.
std::string problemOfSeed(const std::string& text) {
    std::uint64_t number = 0;
    const char* end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && rest == end ? "" : text + " is no number of 0 to 2^64 - 1";
}

int allProcessors() {
    return static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
}

} // namespace

CLI::App& CreateCommand::addTo(CLI::App& program) {
    CLI::App& command = *program.add_subcommand("create", "Make new puzzles, no two alike");
    command.footer("Example: tessaly-cli create --difficulty easy --count 500 --seed 1 "
                   "--output easy.txt");
    command.add_option("--difficulty", m_difficulty, "How hard the puzzles are to be")
        ->required()
        ->check(CLI::IsMember(namesOf(difficultyNames())).description(""))
        ->type_name("easy|hard|random");
    command
        .add_option("--count", m_count,
                    "How many puzzles to make, at most " + std::to_string(MaxCount))
        ->required()
        ->check(CLI::Range(std::int64_t{1}, MaxCount).description(""))
        ->type_name("N");
    command
        .add_option("--seed", m_seed, "A whole number; makes the same puzzles whenever it is given")
        ->check(CLI::Validator(problemOfSeed, ""))
        ->type_name("S");
    constexpr int MaxJobs = 256;
    command
        .add_option("--jobs", m_jobs, "How many threads to work with (by default all processors)")
        ->check(CLI::Range(1, MaxJobs).description(""))
        ->type_name("J");
    command
        .add_option("--output", m_output, "A puzzle file to append to, instead of standard output")
        ->type_name("FILE");
    return command;
}

int CreateCommand::run(const Console& console) {
    RecordOutput output(console.out, m_output);
    Outcome outcome = output.open();
    const PuzzleSeries series{difficultyNames().at(m_difficulty),
                              m_seed.value_or(Chance::freshSeed())};
    const SearchFill fill(allArrangements());
    ProgressBar bar(console, m_count);
    if (outcome.ok())
        makeSeries(series, m_jobs > 0 ? m_jobs : allProcessors(), fill,
                   [&](const std::string& record) {
                       output.add(record);
                       if (output.isDue()) {
                           bar.clear();
                           outcome = output.flush();
                       }
                       bar.show(output.count());
                       return outcome.ok() && output.count() < m_count && !console.isInterrupted();
                   });
    if (outcome.ok())
        outcome = output.flush();
    bar.clear();
    if (!outcome.ok())
        return fail(console, outcome.problem);
    if (output.count() == m_count)
        return exit_status::Done;
    fail(console, "interrupted after " + std::to_string(output.count()) + " puzzles");
    return exit_status::Interrupted;
}

} // namespace tessaly
