#include "cli/check_command.h"

#include "core/board/record_lines.h"
#include "core/solver/puzzle_audit.h"

#include <CLI/CLI.hpp>

#include <ostream>
#include <vector>

namespace tessaly {
namespace {

/// What a whole file amounts to.
struct Tally {
    int records = 0;
    int findings = 0;
};

std::vector<std::string> findingsOf(const RecordLine& line) {
    return line.isOverLong ? std::vector<std::string>{std::string(OverLongProblem)}
                           : auditRecord(line.text);
}

} // namespace

CLI::App& CheckCommand::addTo(CLI::App& program) {
    CLI::App& command = *program.add_subcommand(
        "check", "Check the puzzles of a file: a line for everything that is wrong, and a summary");
    command.footer("Example: tessaly-cli check easy.txt\n\n"
                   "Every record must be well formed, its solution right and the only one with the "
                   "blank hexagon withheld, and its difficulty, header and hint true.");
    command.add_option("FILE", m_file, "The puzzle file")->required()->type_name("");
    return command;
}

int CheckCommand::run(const Console& console) {
    Tally tally;
    const Outcome outcome = readRecordLines(m_file, [&](RecordLine line) {
        ++tally.records;
        for (const std::string& finding : findingsOf(line)) {
            ++tally.findings;
            console.out << lineProblem(m_file, line.number, finding) << '\n';
        }
        return !console.isInterrupted() && console.out.good();
    });
    if (!outcome.ok())
        return fail(console, outcome.problem);
    console.out << m_file << ": " << tally.records << " puzzles checked, " << tally.findings
                << " findings\n";
    if (const Outcome written = flushed(console.out); !written.ok())
        return fail(console, written.problem);
    if (console.isInterrupted())
        return exit_status::Interrupted;
    return tally.findings == 0 ? exit_status::Done : exit_status::Failed;
}

} // namespace tessaly
