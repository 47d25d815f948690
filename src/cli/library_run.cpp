#include "cli/library_run.h"

#include "cli/progress_bar.h"
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

} // namespace tessaly
