#pragma once

#include "core/board/board.h"
#include "core/output/booklet.h"
#include "core/output/print_selection.h"

#include <optional>
#include <string>
#include <vector>

namespace tessaly {

/// What is printed: puzzles, and how their pages look.
struct PrintJob {
    std::vector<PrintedPuzzle> puzzles;
    PageDesign design;
    /// What the document is called.
    std::string title;
    /// The only puzzle as it stands on the board, what the player has entered included.
    std::optional<Board> shown = {};
    /// The pages that are printed, from 0, in their order; empty for each of them once.
    std::vector<int> pages = {};

    int puzzleCount() const { return static_cast<int>(puzzles.size()); }
    const PrintedPuzzle& puzzle(int index) const {
        return puzzles.at(static_cast<std::size_t>(index));
    }
    /// A puzzle from 0: as it was made, for a booklet is there to be solved, unless it is the shown
    /// one.
    Board board(int index) const;
    /// The names of the files that the puzzles of a page come from: "easy.txt, hard.txt".
    std::string filesOf(const BookletPage& page) const;
    /// Whether they come from more than one file, so that a number alone does not name a puzzle.
    bool hasManyFiles() const;
};

/// What somebody wants printed of some files.
struct PrintRequest {
    std::vector<std::filesystem::path> files;
    PrintSelection selection = {};
    PageDesign design = {};
};

/// Reads the puzzles of a request (see `selectPuzzles`) and makes the jobs of printing them: one,
/// or two where the solutions have a file of their own. Their title is that of the design, or tells
/// the files and the numbers.
Outcome makeJobs(const PrintRequest& request, std::vector<PrintJob>& jobs,
                 const GoOnReading& goOn = {});

/// The file beside `path` for solutions of their own: "booklet-solutions.pdf".
std::filesystem::path solutionsFileOf(const std::filesystem::path& path);

/// The job of printing one board of a file as it stands, each part on a page of its own.
PrintJob jobOf(const Board& board, std::string file, int number, bool puzzle, bool solution);

} // namespace tessaly
