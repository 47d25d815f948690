#include "cli/commands.h"
#include "core/base/text.h"
#include "core/board/puzzle_record.h"
#include "core/board/puzzle_store.h"
#include "core/solver/puzzle_audit.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <ostream>
#include <unordered_map>
#include <utility>
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

/// Remembers puzzles; tells of one that comes again where it stood first.
class Repeats {
public:
    void look(const std::filesystem::path& path, const RecordLine& line,
              std::vector<std::string>& findings) {
        const std::string puzzle(line.text.substr(0, RecordLength));
        const auto [place, isNew] = m_places.try_emplace(puzzle, &path, line.number);
        const auto& [firstPath, firstNumber] = place->second;
        if (!isNew && !puzzle.empty())
            findings.push_back("the same puzzle as line " + std::to_string(firstNumber) +
                               (*firstPath == path ? "" : " of " + firstPath->native()));
    }

private:
    std::unordered_map<std::string, std::pair<const std::filesystem::path*, int>> m_places;
};

int checkFile(const std::filesystem::path& path, Repeats& repeats, const Console& console) {
    Tally tally;
    const Outcome outcome = forEachRecord(path, [&](RecordLine line) {
        ++tally.records;
        std::vector<std::string> findings = findingsOf(line);
        repeats.look(path, line, findings);
        for (const std::string& finding : findings) {
            ++tally.findings;
            console.out << printable(lineProblem(path, line.number, finding)) << '\n';
        }
        return !console.isInterrupted() && console.out.good();
    });
    if (!outcome.ok()) {
        fail(console, outcome.problem);
        return exit_status::CannotCheck;
    }
    console.out << printable(path.native()) << ": " << counted(tally.records, "puzzle")
                << " checked, " << counted(tally.findings, "finding") << '\n';
    if (const Outcome written = flushed(console.out); !written.ok())
        return fail(console, written.problem);
    if (console.isInterrupted()) {
        fail(console, "interrupted after " + counted(tally.records, "puzzle"));
        return exit_status::Interrupted;
    }
    return tally.findings == 0 ? exit_status::Done : exit_status::Failed;
}

/// As far as it goes: a file that cannot be read does not keep the next from being checked.
int check(const std::vector<std::filesystem::path>& paths, const Console& console) {
    Repeats repeats;
    int status = exit_status::Done;
    for (const auto& path : paths) {
        status = std::max(status, checkFile(path, repeats, console));
        if (status == exit_status::Interrupted)
            break;
    }
    return status;
}

} // namespace

Subcommand checkCommand() {
    const auto paths = std::make_shared<std::vector<std::filesystem::path>>();
    return {{.name = "check",
             .description =
                 "Check the puzzles of files: a line for everything that is wrong, and a summary",
             .footer =
                 "Example: tessaly-cli check easy.txt\n\n"
                 "Every record must be well formed, its solution right and the only one with the "
                 "blank hexagon withheld, and its difficulty, header and hint true; the cells of "
                 "the blank hexagon and the hint are given, and no puzzle comes "
                 "twice.\n\nThe status is 0 when all is well, 1 when something was found, 2 when "
                 "the file "
                 "cannot be read.",
             .options = {puzzleFiles(*paths)}},
            [paths](const Console& console) { return check(*paths, console); }};
}

} // namespace tessaly
