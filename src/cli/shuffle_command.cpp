#include "cli/shuffle_command.h"

#include "cli/library_run.h"

#include <CLI/CLI.hpp>

namespace tessaly {

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

} // namespace tessaly
