#include "cli/variants_command.h"

#include "cli/library_run.h"

#include <CLI/CLI.hpp>

namespace tessaly {

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
