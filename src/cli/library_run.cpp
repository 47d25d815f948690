#include "cli/library_run.h"

#include "cli/console.h"
#include "core/board/puzzle_file.h"

#include <CLI/CLI.hpp>

namespace tessaly {

void addToolFiles(CLI::App& command, ToolFiles& files) {
    command.add_option("FILE", files.input, "The puzzle file")->required()->type_name("");
    command.add_option("--output", files.output, "The puzzle file to write; replaced if it exists")
        ->required()
        ->type_name("OUT");
}

int runLibraryTool(const Console& console, const ToolFiles& files,
                   const std::function<Outcome(const KeepGoing&)>& tool) {
    int count = 0;
    if (const Outcome counted = PuzzleFiles().CountLines(files.input, count); !counted.ok())
        return fail(console, counted.problem);
    ProgressBar bar(console, count);
    const Outcome outcome = tool([&](int records) {
        bar.show(records);
        return !console.isInterrupted();
    });
    bar.clear();
    if (outcome.ok())
        return exit_status::Done;
    fail(console, outcome.problem);
    return console.isInterrupted() ? exit_status::Interrupted : exit_status::Failed;
}

CLI::App& ShuffleCommand::addTo(CLI::App& program) {
    CLI::App& command = *program.add_subcommand(
        "shuffle", "Write the puzzles of a file in random order, each only once");
    command.footer("Example: tessaly-cli shuffle easy.txt --seed 1 --output mixed.txt");
    addToolFiles(command, m_files);
    command.add_option("--seed", m_seed, "Gives the same order whenever it is given")
        ->type_name("S");
    return command;
}

int ShuffleCommand::run(const Console& console) {
    Chance chance(m_seed.value_or(Chance::freshSeed()));
    return runLibraryTool(console, m_files, [&](const KeepGoing& keepGoing) {
        return shufflePuzzles(m_files, chance, keepGoing);
    });
}

CLI::App& VariantsCommand::addTo(CLI::App& program) {
    CLI::App& command = *program.add_subcommand(
        "variants", "Write eight variants of every puzzle: itself, four mirrorings, three turns");
    command.footer("Example: tessaly-cli variants easy.txt --output more.txt");
    addToolFiles(command, m_files);
    return command;
}

int VariantsCommand::run(const Console& console) {
    return runLibraryTool(console, m_files, [this](const KeepGoing& keepGoing) {
        return expandPuzzles(m_files, OutputMode::Replace, TopBottomHeader::Follows, keepGoing);
    });
}

} // namespace tessaly
