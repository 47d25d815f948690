#include "core/output/booklet.h"

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

} // namespace tessaly
