#include "core/output/booklet.h"

#include <algorithm>

namespace tessaly {
namespace {

PageContent contentOf(const PageDesign& design, bool solutions, int boards) {
    return {.hasTitle = !design.title.empty(),
            .hasNameLine = design.nameAndDate,
            .solutions = solutions,
            .places = std::min(solutions ? design.solutionsPerPage : design.puzzlePlaces(), boards),
            .solutionsAtFoot = !solutions && design.solutions == SolutionsAt::Foot};
}

/// Adds pages of one kind for the puzzles from `first` to before `end`.
void addPages(const PageLayout& layout, bool solutions, int first, int end,
              std::vector<BookletPage>& pages) {
    for (; first < end; first += layout.places())
        pages.push_back({solutions, first, std::min(layout.places(), end - first), layout});
}

} // namespace

Outcome layOutBooklet(const PageDesign& design, PaperSize paper, int puzzles,
                      std::vector<BookletPage>& pages) {
    pages.clear();
    const bool hasPuzzles = design.solutions != SolutionsAt::Only;
    const bool isAfterEach = design.solutions == SolutionsAt::After;
    const bool hasSolutionPages =
        isAfterEach || design.solutions == SolutionsAt::End || !hasPuzzles;
    const PageLayout puzzlePage(paper, contentOf(design, false, puzzles));
    const int together = isAfterEach ? puzzlePage.places() : puzzles;
    const PageLayout solutionPage(paper, contentOf(design, true, together));
    if ((hasPuzzles && puzzlePage.places() == 0) ||
        (hasSolutionPages && solutionPage.places() == 0))
        return Outcome::failed(hasPuzzles ? "the paper is too small to write in a puzzle"
                                          : "the paper is too small to read a solution");
    if (hasPuzzles)
        addPages(puzzlePage, false, 0, puzzles, pages);
    if (isAfterEach) {
        std::vector<BookletPage> both;
        for (const BookletPage& page : pages) {
            both.push_back(page);
            addPages(solutionPage, true, page.first, page.first + page.count, both);
        }
        pages = std::move(both);
    } else if (hasSolutionPages) {
        addPages(solutionPage, true, 0, puzzles, pages);
    }
    return Outcome::done();
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

} // namespace tessaly
