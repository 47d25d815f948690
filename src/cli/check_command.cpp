#include "cli/commands.h"
#include "core/board/puzzle_store.h"
#include "core/solver/puzzle_audit.h"

#include <filesystem>
#include <memory>
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

int check(const std::filesystem::path& path, const Console& console) {
    Tally tally;
    const Outcome outcome = forEachRecord(path, [&](RecordLine line) {
        ++tally.records;
        for (const std::string& finding : findingsOf(line)) {
            ++tally.findings;
            console.out << lineProblem(path, line.number, finding) << '\n';
        }
        return !console.isInterrupted() && console.out.good();
    });
    if (!outcome.ok())
        return fail(console, outcome.problem);
    console.out << path.native() << ": " << counted(tally.records, "puzzle") << " checked, "
                << counted(tally.findings, "finding") << '\n';
    if (const Outcome written = flushed(console.out); !written.ok())
        return fail(console, written.problem);
    if (console.isInterrupted())
        return exit_status::Interrupted;
    return tally.findings == 0 ? exit_status::Done : exit_status::Failed;
}

} // namespace

Subcommand checkCommand() {
    const auto path = std::make_shared<std::filesystem::path>();
    return {{.name = "check",
             .description =
                 "Check the puzzles of a file: a line for everything that is wrong, and a summary",
             .footer =
                 "Example: tessaly-cli check easy.txt\n\n"
                 "Every record must be well formed, its solution right and the only one with the "
                 "blank hexagon withheld, and its difficulty, header and hint true.",
             .options = {required(positional("FILE", "The puzzle file", *path))}},
            [path](const Console& console) { return check(*path, console); }};
}

} // namespace tessaly
