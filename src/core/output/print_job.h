#pragma once

#include "core/base/outcome.h"
#include "core/board/board.h"
#include "core/output/booklet.h"

#include <functional>
#include <string>

namespace tessaly {

class PuzzleFiles;

/// What is printed: a booklet of boards with the numbers `firstNumber`, `firstNumber + 1`, ...
struct PrintJob {
    Booklet booklet;
    int firstNumber = 1;
    /// Gives the board of a number; called for every part of the booklet anew.
    std::function<Outcome(int number, Board& board)> boardOf;
    /// What the document is called.
    std::string title;
};

/// Some of a file's puzzles, and how they are laid out.
struct PrintRange {
    static constexpr int UsualPuzzlesPerPage = 4;

    std::string path;
    int from = 1;
    int to = 1;
    int puzzlesPerPage = UsualPuzzlesPerPage;
    bool solutions = true;
};

/// The job of printing a range: the puzzles as they were made, without what a player has entered,
/// for a booklet is there to be solved, and then their solutions. `files` must outlive the job.
PrintJob jobOf(const PrintRange& range, PuzzleFiles& files);

/// The job of printing one board as it stands, each part on a page of its own.
PrintJob jobOf(const Board& board, int number, bool puzzle, bool solution);

} // namespace tessaly
