// What makes one puzzle file out of another.

#include "cli/commands.h"
#include "core/board/puzzle_store.h"
#include "core/files/file_access.h"
#include "core/solver/library_tools.h"

#include <memory>
#include <optional>
#include <string>

namespace tessaly {
namespace {

struct ShuffleOptions {
    ToolFiles files;
    std::optional<std::uint64_t> seed;
};

std::vector<Option> fileOptions(ToolFiles& files) {
    return {puzzleFile(files.input),
            outputFile("The puzzle file to write, replaced if it exists", files.output)};
}

/// What makes one content out of the puzzles of a file.
using Tool = std::function<Outcome(const ContentSink&, const KeepGoing&)>;

Outcome writeOutput(const Console& console, const std::filesystem::path& path,
                    const ContentWriter& writer) {
    if (!path.empty())
        return replaceFile(path, writer);
    // A stream cannot be taken back, so nothing goes there before all is well.
    std::string content;
    const ContentSink sink([&content](std::string_view piece) {
        content += piece;
        return Outcome::done();
    });
    if (Outcome made = writer(sink); !made.ok())
        return made;
    console.out << content;
    return flushed(console.out);
}

/// Runs a tool, with a progress bar where it can be known how much there is; the exit status.
int run(const Console& console, const ToolFiles& files, const Tool& tool) {
    int count = 0;
    const bool isCounted = PuzzleStore().CountLines(files.input, count).ok();
    TerminalProgressBar bar(console, count);
    const KeepGoing keepGoing = [&](int records) {
        if (isCounted)
            bar.show(records);
        return !console.isInterrupted();
    };
    const Outcome outcome = writeOutput(
        console, files.output, [&](const ContentSink& sink) { return tool(sink, keepGoing); });
    bar.clear();
    if (outcome.ok())
        return exit_status::Done;
    fail(console, outcome.problem);
    return console.isInterrupted() ? exit_status::Interrupted : exit_status::Failed;
}

int shuffle(const ShuffleOptions& options, const Console& console) {
    const std::uint64_t seed = options.seed.value_or(Chance::freshSeed());
    Chance chance(seed);
    const int status =
        run(console, options.files, [&](const ContentSink& sink, const KeepGoing& keepGoing) {
            return writeShuffled(options.files.input, chance, sink, keepGoing);
        });
    if (status == exit_status::Done)
        tellSeed(console, options.seed, seed);
    return status;
}

int makeVariants(const ToolFiles& files, const Console& console) {
    return run(console, files, [&files](const ContentSink& sink, const KeepGoing& keepGoing) {
        return writeVariants(files.input, TopBottomHeader::Follows, sink, keepGoing);
    });
}

} // namespace

Subcommand shuffleCommand() {
    const auto options = std::make_shared<ShuffleOptions>();
    CommandSyntax syntax{
        .name = "shuffle",
        .description = "Write the puzzles of a file in random order, each only once",
        .footer = "Example: tessaly-cli shuffle easy.txt --seed 1 --output mixed.txt",
        .options = fileOptions(options->files)};
    syntax.options.push_back(number("--seed,-s", "S", "Gives the same order whenever it is given",
                                    options->seed, std::uint64_t{0}));
    return {std::move(syntax),
            [options](const Console& console) { return shuffle(*options, console); }};
}

Subcommand variantsCommand() {
    const auto files = std::make_shared<ToolFiles>();
    return {{.name = "variants",
             .description =
                 "Write eight variants of every puzzle: itself, four mirrorings, three turns",
             .footer = "Example: tessaly-cli variants easy.txt --output more.txt",
             .options = fileOptions(*files)},
            [files](const Console& console) { return makeVariants(*files, console); }};
}

} // namespace tessaly
