#include "core/output/booklet.h"

#include "core/board/puzzle_store.h"

#include <algorithm>
#include <optional>

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

std::vector<int> pagesOfCopies(const std::vector<int>& pages, const Copies& copies) {
    std::vector<int> all;
    const auto add = [&all](int page, int times) {
        all.insert(all.end(), static_cast<std::size_t>(times), page);
    };
    if (!copies.collated && !copies.twoSided) {
        for (int page : pages)
            add(page, copies.count);
        return all;
    }
    for (int copy = 0; copy < copies.count; ++copy) {
        if (copies.twoSided && all.size() % 2 != 0)
            add(EmptyPage, 1);
        all.insert(all.end(), pages.begin(), pages.end());
    }
    return all;
}

PrintJob jobOf(const PrintRange& range, PuzzleStore& files) {
    std::vector<BookletPart> parts{{false, range.puzzlesPerPage}};
    if (range.solutions)
        parts.push_back({true, SolutionsPerPage});
    const auto boardOf = [&files, path = range.path,
                          first = std::optional<FileState>()](int number, Board& board) mutable {
        const PuzzleRead read = files.ReadPuzzle(path, number, board);
        board.ResetToGivens();
        if (!first)
            first = files.lastRead();
        // The solutions would be those of other puzzles.
        if (*first != files.lastRead())
            return Outcome::failed(path.native() + ": changed while it was printed");
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
