#include "core/output/booklet.h"

#include "core/board/puzzle_store.h"

#include <algorithm>

namespace tessaly {

int Booklet::pagesOf(BookletPart part) const {
    return (m_puzzles + part.boardsPerPage - 1) / part.boardsPerPage;
}

int Booklet::pageCount() const {
    int count = 0;
    for (const BookletPart& part : m_parts)
        count += pagesOf(part);
    return count;
}

BookletPage Booklet::page(int number) const {
    for (const BookletPart& part : m_parts) {
        if (number < pagesOf(part)) {
            const int first = number * part.boardsPerPage;
            return {part, first, std::min(part.boardsPerPage, m_puzzles - first)};
        }
        number -= pagesOf(part);
    }
    return {};
}

PrintJob jobOf(const PrintRange& range, PuzzleStore& files) {
    std::vector<BookletPart> parts{{false, range.puzzlesPerPage}};
    if (range.solutions)
        parts.push_back({true, SolutionsPerPage});
    const auto boardOf = [&files, path = range.path](int number, Board& board) {
        const PuzzleRead read = files.ReadPuzzle(path, number, board);
        board.ResetToGivens();
        return read.ok() ? Outcome::done() : Outcome::failed(read.reason);
    };
    const std::string name = range.path.filename().native();
    return {Booklet(range.to - range.from + 1, parts), range.from, boardOf,
            name + ", " + std::to_string(range.from) + " to " + std::to_string(range.to)};
}

PrintJob jobOf(const Board& board, int number, bool puzzle, bool solution) {
    std::vector<BookletPart> parts;
    if (puzzle)
        parts.push_back({false, 1});
    if (solution)
        parts.push_back({true, 1});
    const auto boardOf = [board](int, Board& copy) {
        copy = board;
        return Outcome::done();
    };
    return {Booklet(1, parts), number, boardOf,
            (puzzle ? "Puz# " : "Sol# ") + std::to_string(number)};
}

} // namespace tessaly
