#include "cli/program.h"

#include <iterator>
#include <utility>

namespace tessaly {

std::vector<Subcommand> allCommands(std::vector<Subcommand> more) {
    std::vector<Subcommand> commands{createCommand(),  solveCommand(), explainCommand(),
                                     checkCommand(),   rateCommand(),  variantsCommand(),
                                     shuffleCommand(), benchCommand()};
    std::move(more.begin(), more.end(), std::back_inserter(commands));
    return commands;
}

CommandSyntax programSyntax(const std::vector<Subcommand>& commands) {
    CommandSyntax program{
        .name = ProgramName,
        .description = "Makes, solves and checks puzzles of nineteen hexagons.",
        .footer = "Example: tessaly-cli create --difficulty hard --count 100 > hard.txt"};
    for (const Subcommand& command : commands)
        program.subcommands.push_back(command.syntax);
    return program;
}

int runProgram(int argc, const char* const* argv, const Console& console,
               const std::vector<Subcommand>& commands) {
    const CommandLine line =
        parseCommandLine(programSyntax(commands), argc, argv, console.out, console.err);
    return line.exitStatus ? *line.exitStatus : commands[line.subcommand].run(console);
}

} // namespace tessaly
