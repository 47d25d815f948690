#include "core/output/print_job.h"

#include "core/board/puzzle_record.h"

#include <algorithm>

namespace tessaly {
namespace {

/// The names of the files of some puzzles, each once, in the order in which they come.
template <class Iterator>
std::string namesOf(Iterator begin, Iterator end) {
    std::vector<std::string> known;
    std::string names;
    for (; begin != end; ++begin) {
        if (std::find(known.begin(), known.end(), begin->file) != known.end())
            continue;
        names.append(known.empty() ? "" : ", ").append(begin->file);
        known.push_back(begin->file);
    }
    return names;
}

std::string titleOf(const std::vector<PrintedPuzzle>& puzzles) {
    const auto byNumber = [](const PrintedPuzzle& one, const PrintedPuzzle& other) {
        return one.number < other.number;
    };
    const auto [first, last] = std::minmax_element(puzzles.begin(), puzzles.end(), byNumber);
    return namesOf(puzzles.begin(), puzzles.end()) + ", " + std::to_string(first->number) + " to " +
           std::to_string(last->number);
}

} // namespace

Board PrintJob::board(int index) const {
    if (shown)
        return *shown;
    Board board;
    // What was selected has been read before.
    (void)readRecord(puzzle(index).record, board);
    board.ResetToGivens();
    return board;
}

std::string PrintJob::filesOf(const BookletPage& page) const {
    const auto first = puzzles.begin() + page.first;
    return namesOf(first, first + page.count);
}

bool PrintJob::hasManyFiles() const {
    return std::any_of(puzzles.begin(), puzzles.end(), [this](const PrintedPuzzle& each) {
        return each.file != puzzles.front().file;
    });
}

Outcome makeJobs(const PrintRequest& request, std::vector<PrintJob>& jobs,
                 const GoOnReading& goOn) {
    PrintSelection selection = request.selection;
    selection.isRated = selection.isRated || request.design.stars;
    std::vector<PrintedPuzzle> puzzles;
    if (Outcome checked = checkTitle(request.design.title); !checked.ok())
        return checked;
    if (Outcome selected = selectPuzzles(request.files, selection, puzzles, goOn); !selected.ok())
        return selected;
    const std::string& title = request.design.title;
    const std::string named = title.empty() ? titleOf(puzzles) : title;
    jobs.clear();
    for (const PageDesign& design : documentsOf(request.design))
        jobs.push_back({puzzles, design, named});
    if (jobs.size() > 1)
        jobs.back().title += ", solutions";
    return Outcome::done();
}

std::filesystem::path solutionsFileOf(const std::filesystem::path& path) {
    const std::string name = path.stem().native() + "-solutions" + path.extension().native();
    return path.parent_path() / name;
}

PrintJob jobOf(const Board& board, std::string file, int number, bool puzzle, bool solution) {
    PageDesign design;
    design.puzzlesPerPage = 1;
    design.solutionsPerPage = 1;
    design.solutions = !solution ? SolutionsAt::None
                       : puzzle  ? SolutionsAt::End
                                 : SolutionsAt::Only;
    const std::string caption = (puzzle ? "Puz# " : "Sol# ") + std::to_string(number);
    return {{{std::move(file), number}}, design, caption, board};
}

} // namespace tessaly
