#include "cli/commands.h"
#include "core/board/puzzle_record.h"
#include "core/board/puzzle_store.h"
#include "core/solver/deduction.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace tessaly {
namespace {

struct SolveOptions {
    std::vector<std::filesystem::path> files;
    /// The only record to solve; 0 is all of them.
    int number = 0;
    /// 0 is all rules, 1 the basic ones.
    std::size_t rules = 0;
};

/// All four rules from the givens; 0 when they settle every cell, else 1.
int solveWithAllRules(Board& board) {
    board.ResetToGivens();
    return SolveByDeduction(board);
}

/// Rules 1 to 3 with the blank hexagon emptied; the number of cells that stay open.
int solveWithBasicRules(Board& board) {
    board.ResetToGivens();
    if (isHexagon(board.BlankHex))
        board.CellNum[board.BlankHex].fill({});
    board.BlankHex = NoHexagon;
    std::int32_t counter = 0;
    SolveBasic(board, false, counter);
    return countOpenCells(board);
}

std::string report(int number, int result, const Board& board) {
    std::string line = std::to_string(number) + " " + std::to_string(result);
    for (CellId cell : AllCells) {
        const std::string& entry = board.CellNum[cell];
        line += " " + (entry.empty() ? "-" : entry);
    }
    return line + "\n";
}

/// `label` goes before each line.
int solveFile(const std::filesystem::path& path, const SolveOptions& options,
              const std::string& label, const Console& console) {
    int status = exit_status::Done;
    int lastNumber = 0;
    const int number = options.number;
    const auto solveBoard = options.rules == 0 ? solveWithAllRules : solveWithBasicRules;
    const Outcome outcome = forEachRecord(path, [&](RecordLine line) {
        lastNumber = line.number;
        if (number != 0 && line.number != number)
            return true;
        Board board;
        if (const Outcome read = line.read(board); !read.ok()) {
            status = fail(console, lineProblem(path, line.number, read.problem));
        } else {
            const int result = solveBoard(board);
            console.out << label << report(line.number, result, board);
        }
        return line.number != number && !console.isInterrupted() && console.out.good();
    });
    if (!outcome.ok())
        return fail(console, outcome.problem);
    if (number > lastNumber)
        return fail(console, lineProblem(path, number, "there is no such record"));
    if (const Outcome written = flushed(console.out); !written.ok())
        return fail(console, written.problem);
    return console.isInterrupted() ? exit_status::Interrupted : status;
}

/// As far as it goes: a file that cannot be read does not keep the next from being solved.
int solve(const SolveOptions& options, const Console& console) {
    int status = exit_status::Done;
    for (const auto& path : options.files) {
        const std::string label = options.files.size() > 1 ? path.native() + ": " : "";
        status = std::max(status, solveFile(path, options, label, console));
        if (status == exit_status::Interrupted)
            break;
    }
    return status;
}

} // namespace

Subcommand solveCommand() {
    const auto options = std::make_shared<SolveOptions>();
    return {
        {.name = "solve",
         .description = "Solve the puzzles of files: a line for each with its number, the result, "
                        "and the cells in order, \"-\" for an empty one; the file before it when "
                        "there are several",
         .footer = "Example: tessaly-cli solve easy.txt --number 3 --rules basic\n\n"
                   "The result is, with all rules, 0 when every cell was settled and 1 when not; "
                   "with the basic ones, the number of cells with several candidates.",
         .options = {puzzleFiles(options->files),
                     number("--number,-n", "N", "Solve only this puzzle, counted from 1",
                            options->number, 1),
                     choice("--rules", "all|basic",
                            "all (the four rules from the givens) or basic (rules 1 to 3 with the "
                            "blank hexagon emptied)",
                            options->rules)}},
        [options](const Console& console) { return solve(*options, console); }};
}

} // namespace tessaly
