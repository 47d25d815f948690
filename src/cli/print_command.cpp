#include "cli/commands.h"
#include "cli/offscreen.h"
#include "core/output/paper.h"
#include "core/output/print_job.h"
#include "ui/drawing/numerals.h"
#include "ui/drawing/pdf_file.h"

#include <QFontDatabase>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <optional>
#include <strings.h>

namespace tessaly {
namespace {

/// As `--solutions` names them, in the order of `SolutionsAt`.
constexpr const char* SolutionNames = "none|end|after|foot|only|file";

/// The place of a usual value among those to choose from.
template <class Choices>
constexpr std::size_t placeOf(const Choices& choices, int usual) {
    return static_cast<std::size_t>(std::find(choices.begin(), choices.end(), usual) -
                                    choices.begin());
}

/// Where the target is a place, it is one among the choices.
struct PrintOptions {
    std::vector<std::filesystem::path> files;
    int from = 1;
    /// The file's last when it is not given.
    std::optional<int> to;
    std::optional<NumberList> puzzles;
    std::size_t difficulty = Difficulties.size();
    std::optional<StarRange> stars;
    std::size_t order = 0;
    std::size_t perPage = placeOf(PuzzlesPerPage, PageDesign::UsualPuzzlesPerPage);
    std::size_t solutions = static_cast<std::size_t>(SolutionsAt::End);
    std::size_t solutionsPerPage = placeOf(SolutionsPerPage, PageDesign::UsualSolutionsPerPage);
    bool noSolutions = false;
    std::size_t paper = 0;
    bool landscape = false;
    PageDesign design;
    Appearance appearance;
    std::string font;
    std::filesystem::path output;
};

bool isPdfName(const std::filesystem::path& path) {
    return ::strcasecmp(path.extension().c_str(), ".pdf") == 0;
}

/// What cannot be meant; nothing when all is clear.
std::string confusionIn(const PrintOptions& options) {
    if (!isPdfName(options.output))
        return "--output: " + options.output.native() + " does not end in .pdf";
    for (const auto& file : options.files)
        if (isSameFile(file, options.output))
            return "--output: " + options.output.native() + " is the puzzle file";
    if (options.puzzles && (options.from != 1 || options.to))
        return "--puzzles: the list says it all, so there is no --from or --to";
    if (options.to && options.from > *options.to)
        return "--from: puzzle " + std::to_string(options.from) + " comes after puzzle " +
               std::to_string(*options.to);
    if (const Outcome title = checkTitle(options.design.title); !title.ok())
        return "--title: " + title.problem;
    return {};
}

PrintRequest requestOf(const PrintOptions& options) {
    PrintRequest request{.files = options.files, .design = options.design};
    request.selection.numbers = options.puzzles.value_or(
        NumberList({options.from, options.to.value_or(NumberRange::OpenEnd)}));
    if (options.difficulty < Difficulties.size())
        request.selection.difficulty = Difficulties[options.difficulty].difficulty;
    request.selection.stars = options.stars.value_or(StarRange{});
    request.selection.byStars = options.order == 1;
    request.design.puzzlesPerPage = PuzzlesPerPage[options.perPage];
    request.design.solutionsPerPage = SolutionsPerPage[options.solutionsPerPage];
    request.design.solutions =
        options.noSolutions ? SolutionsAt::None : static_cast<SolutionsAt>(options.solutions);
    return request;
}

int interrupted(const Console& console) {
    fail(console, "interrupted; nothing was printed");
    return exit_status::Interrupted;
}

int printJob(const PrintJob& job, const std::filesystem::path& path, const PrintOptions& options,
             const Console& console) {
    std::optional<TerminalProgressBar> bar;
    const PaperSize paper = NamedPapers[options.paper].size.oriented(options.landscape);
    const PrintResult result =
        writePdf(path, paper, job, options.appearance, [&](int page, int pageCount) {
            if (!bar)
                bar.emplace(console, pageCount);
            bar->show(page);
            return !console.isInterrupted();
        });
    if (bar)
        bar->clear();
    if (result.stopped)
        return interrupted(console);
    return result.outcome.ok() ? exit_status::Done : fail(console, result.outcome.problem);
}

int print(const PrintOptions& options, const Console& console) {
    if (const std::string confusion = confusionIn(options); !confusion.empty())
        return refuseUsage(console, confusion);
    std::vector<PrintJob> jobs;
    const Outcome made =
        makeJobs(requestOf(options), jobs, [&console] { return !console.isInterrupted(); });
    if (console.isInterrupted())
        return interrupted(console);
    if (!made.ok())
        return fail(console, made.problem);
    const Offscreen offscreen;
    PrintOptions chosen = options;
    if (const QString font = QString::fromStdString(options.font);
        !font.isEmpty() && !(QFontDatabase::hasFamily(font) && hasDigits(font)))
        return fail(console, "--font: there is no font " + options.font + " with digits");
    if (!options.font.empty())
        chosen.appearance.NumberFont = options.font;
    int status = exit_status::Done;
    for (std::size_t i = 0; i < jobs.size() && status == exit_status::Done; ++i)
        status = printJob(jobs[i], i == 0 ? options.output : solutionsFileOf(options.output),
                          chosen, console);
    return status;
}

std::vector<Option> optionsOf(PrintOptions& options) {
    constexpr int WidestLine = 10;
    PageDesign& design = options.design;
    return {
        puzzleFiles(options.files),
        number("--from", "A", "The first puzzle (by default 1)", options.from, 1),
        number("--to", "B", "The last puzzle (by default the file's last)", options.to, 1),
        numberList("--puzzles", "LIST",
                   "Only these puzzles of each file: \"3, 7, 20-24\"; \"90-\" goes on to the last",
                   options.puzzles),
        choice("--difficulty", "easy|hard", "Only puzzles of that difficulty", options.difficulty),
        starsOption("Only puzzles of so many stars, 1 to 5: 3, or 4-5", options.stars),
        choice("--order", "file|stars",
               "As they stand in the file, or by difficulty and stars (by default file)",
               options.order),
        choice("--per-page", "1|2|4|6",
               "How many puzzles a page holds (by default 4); fewer where the paper is too small",
               options.perPage),
        choice("--solutions", SolutionNames,
               "Where the solutions stand: nowhere, at the end, on the page after their puzzles, "
               "upside down at its foot, alone without puzzles, or in a file of their own, "
               "OUT-solutions.pdf (by default end)",
               options.solutions),
        choice("--solutions-per-page", "2|4|6|12", "How many a page holds (by default 12)",
               options.solutionsPerPage),
        flag("--no-solutions", "The same as --solutions none", options.noSolutions),
        choice("--paper", "a4|letter|a5|legal", "The paper (by default a4)", options.paper),
        flag("--landscape", "Turn the paper on its side", options.landscape),
        text("--title", "TEXT", "A line above every page, and what the document is called",
             design.title),
        flag("--name-line", "A line for name and date on every page with puzzles",
             design.nameAndDate),
        flag("--large", "Large print: one puzzle a page, large numbers, wide lines", design.large),
        flag("--show-stars", "Show beside each puzzle how many stars it has", design.stars),
        flag("--hexagon-numbers", "Number the hexagons", design.hexagonNumbers),
        flag("--mark-grid", "A corner with six small circles for marks in every open cell",
             design.markGrid),
        text("--font", "FONT", "The font of the numbers (by default Arial or what stands for it)",
             options.font),
        number("--line-width", "W", "How wide the borders are, 1 to 10 (by default 2)",
               options.appearance.PrintLineWidth, 1, WidestLine),
        required(text("--output,-o", "OUT.pdf", "The PDF file", options.output))};
}

} // namespace

Subcommand printCommand() {
    const auto options = std::make_shared<PrintOptions>();
    return {{.name = "print",
             .description = "Print puzzles and their solutions into a PDF file",
             .footer = "Example: tessaly-cli print easy.txt --puzzles 1-24 --per-page 6 "
                       "--solutions after --title \"Monday\" --output booklet.pdf\n\n"
                       "Several files make one booklet. Where the environment has "
                       "SOURCE_DATE_EPOCH, the same puzzles make the same file, byte for byte.",
             .options = optionsOf(*options)},
            [options](const Console& console) { return print(*options, console); }};
}

} // namespace tessaly
