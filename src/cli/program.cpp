#include "cli/program.h"

#include "cli/bench_command.h"
#include "cli/check_command.h"
#include "cli/create_command.h"
#include "cli/library_run.h"
#include "cli/solve_command.h"
#include "core/base/product.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iterator>
#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace tessaly {
namespace {

int tell(const CLI::App& program, const CLI::ParseError& said, const Console& console) {
    if (said.get_exit_code() == 0)
        return program.exit(said, console.out, console.err);
    const std::vector<std::string> unknown = program.remaining();
    const std::string problem = program.get_subcommands().empty() && !unknown.empty()
                                    ? "there is no subcommand " + unknown.front()
                                    : said.what();
    fail(console, problem + " (try --help)");
    return exit_status::WrongUsage;
}

} // namespace

Commands allCommands() {
    Commands commands;
    commands.push_back(std::make_unique<CreateCommand>());
    commands.push_back(std::make_unique<SolveCommand>());
    commands.push_back(std::make_unique<CheckCommand>());
    commands.push_back(std::make_unique<VariantsCommand>());
    commands.push_back(std::make_unique<ShuffleCommand>());
    commands.push_back(std::make_unique<BenchCommand>());
    return commands;
}

void describeProgram(CLI::App& program) {
    program.name("tessaly-cli");
    program.description("Makes, solves and checks puzzles of nineteen hexagons.");
    program.set_version_flag("--version", std::string(Product::Name) + " " + Product::Version);
    program.require_subcommand(1);
    program.footer("Example: tessaly-cli create --difficulty hard --count 100 > hard.txt");
}

int runProgram(int argc, const char* const* argv, const Console& console, Commands more) {
    CLI::App program;
    describeProgram(program);
    Commands commands = allCommands();
    std::move(more.begin(), more.end(), std::back_inserter(commands));
    std::vector<std::pair<CLI::App*, Command*>> entries;
    entries.reserve(commands.size());
    for (const auto& command : commands)
        entries.emplace_back(&command->addTo(program), command.get());
    try {
        program.parse(argc, argv);
    } catch (const CLI::ParseError& said) {
        return tell(program, said, console);
    }
    for (const auto& [entry, command] : entries)
        if (entry->parsed())
            return command->run(console);
    return exit_status::WrongUsage;
}

} // namespace tessaly
