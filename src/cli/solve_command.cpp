#include "cli/solve_command.h"

#include "core/board/puzzle_record.h"
#include "core/board/record_lines.h"
#include "core/solver/deduction.h"

#include <CLI/CLI.hpp>

#include <limits>
#include <ostream>

namespace tessaly {
namespace {

constexpr const char* AllRules = "all";
constexpr const char* BasicRules = "basic";

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

Outcome readLine(const RecordLine& line, Board& board) {
    return line.isOverLong ? Outcome::failed(std::string(OverLongProblem))
                           : readRecord(line.text, board);
}

} // namespace

CLI::App& SolveCommand::addTo(CLI::App& program) {
    CLI::App& command = *program.add_subcommand(
        "solve", "Solve the puzzles of a file: a line for each with its number, the result, and "
                 "the cells in order, \"-\" for an empty one");
    command.footer("Example: tessaly-cli solve easy.txt --number 3 --rules basic\n\n"
                   "The result is, with all rules, 0 when every cell was settled and 1 when not; "
                   "with the basic ones, the number of cells with several candidates.");
    command.add_option("FILE", m_file, "The puzzle file")->required()->type_name("");
    command.add_option("--number", m_number, "Solve only this puzzle, counted from 1")
        ->check(CLI::Range(1, std::numeric_limits<int>::max()).description(""))
        ->type_name("N");
    command
        .add_option("--rules", m_rules,
                    "all (the four rules from the givens) or basic (rules 1 to 3 with the blank "
                    "hexagon emptied)")
        ->check(CLI::IsMember({AllRules, BasicRules}).description(""))
        ->type_name("all|basic");
    return command;
}

int SolveCommand::run(const Console& console) {
    int status = exit_status::Done;
    int lastNumber = 0;
    const auto solve = m_rules == AllRules ? solveWithAllRules : solveWithBasicRules;
    const Outcome outcome = readRecordLines(m_file, [&](RecordLine line) {
        lastNumber = line.number;
        if (m_number != 0 && line.number != m_number)
            return true;
        Board board;
        if (const Outcome read = readLine(line, board); !read.ok()) {
            status = fail(console, lineProblem(m_file, line.number, read.problem));
        } else {
            const int result = solve(board);
            console.out << report(line.number, result, board);
        }
        return line.number != m_number && !console.isInterrupted() && console.out.good();
    });
    if (!outcome.ok())
        return fail(console, outcome.problem);
    if (m_number > lastNumber)
        return fail(console, lineProblem(m_file, m_number, "there is no such record"));
    if (const Outcome written = flushed(console.out); !written.ok())
        return fail(console, written.problem);
    return console.isInterrupted() ? exit_status::Interrupted : status;
}

} // namespace tessaly
