#pragma once

#include "core/base/outcome.h"
#include "core/board/board.h"

#include <array>
#include <filesystem>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace tessaly {

class PuzzleStore;

/// How many puzzles a page of a booklet may hold, and how many solutions it does.
inline constexpr std::array<int, 4> PuzzlesPerPage{1, 2, 4, 6};
inline constexpr int SolutionsPerPage = 12;

/// Puzzles, or their solutions, so many a page.
struct BookletPart {
    bool solutions = false;
    int boardsPerPage = 1;

    friend bool operator==(const BookletPart&, const BookletPart&) = default;
};

/// One page of a booklet: the boards `first` .. `first + count - 1`, counting from 0.
struct BookletPage {
    BookletPart part;
    int first = 0;
    int count = 0;

    friend bool operator==(const BookletPage&, const BookletPage&) = default;
};

/// The pages on which a number of puzzles is printed: part after part, each with all of them.
class Booklet {
public:
    Booklet(int puzzles, std::vector<BookletPart> parts)
        : m_puzzles(puzzles)
        , m_parts(std::move(parts)) {}

    int puzzles() const { return m_puzzles; }
    int pageCount() const;
    /// A page, from 0.
    BookletPage page(int number) const;

private:
    int pagesOf(BookletPart part) const;

    int m_puzzles;
    std::vector<BookletPart> m_parts;
};

/// What is printed: a booklet of boards with the numbers `firstNumber`, `firstNumber + 1`, ...
struct PrintJob {
    Booklet booklet;
    int firstNumber = 1;
    /// Gives the board of a number; called for every part of the booklet anew.
    std::function<Outcome(int number, Board& board)> boardOf;
    /// What the document is called.
    std::string title;
    /// The pages that are printed, from 0, in their order; empty for each of them once.
    std::vector<int> pages = {};
};

/// A page with nothing on it.
inline constexpr int EmptyPage = -1;

/// How the copies of a document follow each other.
struct Copies {
    int count = 1;
    /// Whether each copy is complete before the next one begins.
    bool collated = true;
    /// Whether both sides of the sheets are printed on, and so every copy begins on a new sheet.
    bool twoSided = false;
};

/// The pages of all copies, in their order.
std::vector<int> pagesOfCopies(const std::vector<int>& pages, const Copies& copies);

/// Some of a file's puzzles, and how they are laid out.
struct PrintRange {
    static constexpr int UsualPuzzlesPerPage = 4;

    std::filesystem::path path;
    int from = 1;
    int to = 1;
    int puzzlesPerPage = UsualPuzzlesPerPage;
    bool solutions = true;
};

/// The job of printing a range: the puzzles as they were made, without what a player has entered,
/// for a booklet is there to be solved, and then their solutions. A file that has changed since its
/// first puzzle was read is refused. `files` must outlive the job.
PrintJob jobOf(const PrintRange& range, PuzzleStore& files);

/// The job of printing one board as it stands, each part on a page of its own.
PrintJob jobOf(const Board& board, int number, bool puzzle, bool solution);

} // namespace tessaly
