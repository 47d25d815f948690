#include "cli/commands.h"
#include "core/board/puzzle_store.h"
#include "core/solver/rating.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace tessaly {
namespace {

std::string report(int number, const Board& board, const Rating& rating) {
    std::string line = std::to_string(number)
                           .append(" ")
                           .append(board.DifName())
                           .append(" ")
                           .append(std::to_string(rating.stars))
                           .append(" ")
                           .append(std::to_string(rating.score));
    for (int steps : rating.steps)
        line.append(" ").append(std::to_string(steps));
    return line + "\n";
}

/// `label` goes before each line.
int rateFile(const std::filesystem::path& path, const std::string& label, const Console& console) {
    int status = exit_status::Done;
    const Outcome outcome = forEachRecord(path, [&](RecordLine line) {
        Board board;
        std::string problem = line.read(board).problem;
        const auto rating = problem.empty() ? ratePuzzle(board) : std::nullopt;
        if (problem.empty() && !rating)
            problem = "the rules do not lead to the solution";
        if (rating)
            console.out << label << report(line.number, board, *rating);
        else
            status = fail(console, lineProblem(path, line.number, problem));
        return !console.isInterrupted() && console.out.good();
    });
    if (!outcome.ok())
        return fail(console, outcome.problem);
    if (const Outcome written = flushed(console.out); !written.ok())
        return fail(console, written.problem);
    return console.isInterrupted() ? exit_status::Interrupted : status;
}

/// As far as it goes: a file that cannot be read does not keep the next from being rated.
int rate(const std::vector<std::filesystem::path>& paths, const Console& console) {
    int status = exit_status::Done;
    for (const auto& path : paths) {
        status =
            std::max(status, rateFile(path, paths.size() > 1 ? path.native() + ": " : "", console));
        if (status == exit_status::Interrupted)
            break;
    }
    return status;
}

} // namespace

Subcommand rateCommand() {
    const auto paths = std::make_shared<std::vector<std::filesystem::path>>();
    return {{.name = "rate",
             .description = "Rate the puzzles of files: a line for each with its number, "
                            "difficulty, stars from 1 to 5, score, and how many steps have each "
                            "reason; the file before it when there are several",
             .footer =
                 "Example: tessaly-cli rate easy.txt\n\n"
                 "The steps are those that explain tells. The reasons are, in this order: across, "
                 "last, place, cell and xcell. The score is the higher the harder they are to see "
                 "and the fewer there are to find at once; each star is a fifth of the puzzles of "
                 "that difficulty.",
             .options = {puzzleFiles(*paths)}},
            [paths](const Console& console) { return rate(*paths, console); }};
}

} // namespace tessaly
