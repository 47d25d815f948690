#pragma once

#include <array>
#include <utility>
#include <vector>

namespace tessaly {

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

} // namespace tessaly
