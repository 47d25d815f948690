#include "cli/commands.h"
#include "cli/offscreen.h"
#include "core/board/puzzle_store.h"
#include "core/output/booklet.h"
#include "core/output/page_layout.h"
#include "ui/drawing/pdf_file.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <strings.h>

namespace tessaly {
namespace {

constexpr std::size_t UsualPerPage = 2;
static_assert(PuzzlesPerPage[UsualPerPage] == PrintRange::UsualPuzzlesPerPage);

struct PrintOptions {
    std::filesystem::path file;
    int from = 1;
    /// The file's last when it is not given.
    std::optional<int> to;
    /// The place among `PuzzlesPerPage`.
    std::size_t perPage = UsualPerPage;
    bool noSolutions = false;
    /// The place among `NamedPapers`.
    std::size_t paper = 0;
    std::filesystem::path output;
};
bool isPdfName(const std::filesystem::path& path) {
    return ::strcasecmp(path.extension().c_str(), ".pdf") == 0;
}

/// Whether the file has the puzzles that are asked for.
Outcome checkRange(const PrintRange& range, int count) {
    const auto missing = [&](int number) {
        return Outcome::failed(range.path.native() + ": there is no puzzle " +
                               std::to_string(number) + " among its " + std::to_string(count));
    };
    if (range.from > count)
        return missing(range.from);
    if (range.to > count)
        return missing(range.to);
    if (range.from > range.to)
        return Outcome::failed(range.path.native() + ": puzzle " + std::to_string(range.from) +
                               " comes after puzzle " + std::to_string(range.to));
    return Outcome::done();
}

int print(const PrintOptions& options, const Console& console) {
    if (!isPdfName(options.output))
        return refuseUsage(console,
                           "--output: " + options.output.native() + " does not end in .pdf");
    if (isSameFile(options.file, options.output))
        return refuseUsage(console, "--output: " + options.output.native() + " is the puzzle file");
    PuzzleStore files;
    int count = 0;
    if (const Outcome counted = files.CountLines(options.file, count); !counted.ok())
        return fail(console, counted.problem);
    const PrintRange range{options.file, options.from, options.to.value_or(count),
                           PuzzlesPerPage[options.perPage], !options.noSolutions};
    if (const Outcome checked = checkRange(range, count); !checked.ok())
        return fail(console, checked.problem);

    const Offscreen offscreen;
    const PrintJob job = jobOf(range, files);
    TerminalProgressBar bar(console, job.booklet.pageCount());
    const PrintResult result =
        writePdf(options.output, NamedPapers[options.paper].size, job, Appearance(), [&](int page) {
            bar.show(page);
            return !console.isInterrupted();
        });
    bar.clear();
    if (result.stopped) {
        fail(console, "interrupted; nothing was printed");
        return exit_status::Interrupted;
    }
    return result.outcome.ok() ? exit_status::Done : fail(console, result.outcome.problem);
}

} // namespace

Subcommand printCommand() {
    const auto options = std::make_shared<PrintOptions>();
    return {
        {.name = "print",
         .description = "Print puzzles and their solutions into a PDF file",
         .footer = "Example: tessaly-cli print easy.txt --from 1 --to 24 --per-page 6 "
                   "--output booklet.pdf",
         .options = {required(positional("FILE", "The puzzle file", options->file)),
                     number("--from", "A", "The first puzzle (by default 1)", options->from, 1),
                     number("--to", "B", "The last puzzle (by default the file's last)",
                            options->to, 1),
                     choice("--per-page", "1|2|4|6", "How many puzzles a page holds (by default 4)",
                            options->perPage),
                     flag("--no-solutions", "Leave the solutions out", options->noSolutions),
                     choice("--paper", "a4|letter", "The paper (by default a4)", options->paper),
                     required(text("--output,-o", "OUT.pdf", "The PDF file", options->output))}},
        [options](const Console& console) { return print(*options, console); }};
}

} // namespace tessaly
