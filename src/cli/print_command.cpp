#include "cli/print_command.h"

#include "cli/console.h"
#include "cli/offscreen.h"
#include "core/board/puzzle_file.h"
#include "core/output/page_layout.h"
#include "ui/drawing/pdf_file.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <limits>
#include <vector>

namespace tessaly {
namespace {

std::vector<std::string> paperNames() {
    std::vector<std::string> names;
    names.reserve(NamedPapers.size());
    for (const NamedPaper& paper : NamedPapers)
        names.emplace_back(paper.name);
    return names;
}

PaperSize paperCalled(const std::string& name) {
    return std::find_if(NamedPapers.begin(), NamedPapers.end(),
                        [&](const NamedPaper& paper) { return paper.name == name; })
        ->size;
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

} // namespace

CLI::App& PrintCommand::addTo(CLI::App& program) {
    constexpr int Most = std::numeric_limits<int>::max();
    CLI::App& command =
        *program.add_subcommand("print", "Print puzzles and their solutions into a PDF file");
    command.footer("Example: tessaly-cli print easy.txt --from 1 --to 24 --per-page 6 "
                   "--output booklet.pdf");
    command.add_option("FILE", m_file, "The puzzle file")->required()->type_name("");
    command.add_option("--from", m_from, "The first puzzle (by default 1)")
        ->check(CLI::Range(1, Most).description(""))
        ->type_name("A");
    command.add_option("--to", m_to, "The last puzzle (by default the file's last)")
        ->check(CLI::Range(1, Most).description(""))
        ->type_name("B");
    command.add_option("--per-page", m_perPage, "How many puzzles a page holds (by default 4)")
        ->check(CLI::IsMember(std::vector<int>(PuzzlesPerPage.begin(), PuzzlesPerPage.end()))
                    .description(""))
        ->type_name("1|2|4|6");
    command.add_flag("--no-solutions", m_noSolutions, "Leave the solutions out");
    command.add_option("--paper", m_paper, "The paper (by default a4)")
        ->check(CLI::IsMember(paperNames()).description(""))
        ->type_name("a4|letter");
    command.add_option("--output", m_output, "The PDF file")->required()->type_name("OUT.pdf");
    return command;
}

int PrintCommand::run(const Console& console) {
    PuzzleFiles files;
    int count = 0;
    if (const Outcome counted = files.CountLines(m_file, count); !counted.ok())
        return fail(console, counted.problem);
    const PrintRange range{m_file, m_from, m_to.value_or(count), m_perPage, !m_noSolutions};
    if (const Outcome checked = checkRange(range, count); !checked.ok())
        return fail(console, checked.problem);

    const Offscreen offscreen;
    const PrintJob job = jobOf(range, files);
    ProgressBar bar(console, job.booklet.pageCount());
    const PrintResult result =
        writePdf(m_output, paperCalled(m_paper), job, Appearance(), [&](int page) {
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

} // namespace tessaly
