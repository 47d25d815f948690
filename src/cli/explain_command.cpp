#include "cli/commands.h"
#include "core/board/puzzle_store.h"
#include "core/solver/step_sentence.h"

#include <filesystem>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace tessaly {
namespace {

struct ExplainOptions {
    std::filesystem::path file;
    int number = 1;
};

/// "035"
std::string codeOf(CellId cell) {
    return (cell.hexagon < 10 ? "0" : "") + std::to_string(cell.hexagon) +
           std::to_string(cell.position);
}

/// What keeps the end of a way from being the solution; nothing when it is.
std::string missedSolution(const Way& way) {
    std::vector<CellId> open;
    for (CellId cell : AllCells)
        if (cell.hexagon != way.end.BlankHex && way.end.CellNum[cell] != way.end.SolNum[cell])
            open.push_back(cell);
    return open.empty() ? ""
                        : "the rules end after step " + std::to_string(way.steps.size()) + "; " +
                              counted(static_cast<std::int64_t>(open.size()), "cell") +
                              " not solved, first " + codeOf(open.front());
}

int explain(const ExplainOptions& options, const Console& console) {
    Board board;
    if (const Outcome read = readRecordAt(options.file, options.number, board); !read.ok())
        return fail(console, read.problem);
    const Way way = wayFromGivens(board);
    for (std::size_t i = 0; i < way.steps.size(); ++i) {
        const Step& step = way.steps[i];
        console.out << i + 1 << ' ' << codeOf(step.cell) << ' ' << step.digit << ' '
                    << Reasons[static_cast<std::size_t>(step.reason)].word << ' '
                    << sentenceOf(step, board) << '\n';
    }
    if (const Outcome written = flushed(console.out); !written.ok())
        return fail(console, written.problem);
    const std::string missed = missedSolution(way);
    return missed.empty() ? exit_status::Done
                          : fail(console, lineProblem(options.file, options.number, missed));
}

} // namespace

Subcommand explainCommand() {
    const auto options = std::make_shared<ExplainOptions>();
    return {{.name = "explain",
             .description = "Tell the whole way to a puzzle's solution: a line for each step with "
                            "its number, the cell, the digit, the rule in a word, and why",
             .footer = "Example: tessaly-cli explain easy.txt --number 3\n\n"
                       "A cell is its hexagon in two digits and its position, counted clockwise "
                       "from the upper left one. The status is 1 when the rules do not lead to the "
                       "solution; standard error tells where they end.",
             .options = {puzzleFile(options->file),
                         required(number("--number,-n", "N", "The puzzle", options->number, 1))}},
            [options](const Console& console) { return explain(*options, console); }};
}

} // namespace tessaly
