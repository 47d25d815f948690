#pragma once

#include "core/base/outcome.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace tessaly {

/// Where the solutions of printed puzzles stand: nowhere, on pages after all puzzles, on a page
/// after that of their puzzles, upside down at the foot of that page, alone without puzzles, or in
/// a document of their own.
enum class SolutionsAt { None, End, After, Foot, Only, OwnFile };

/// How many puzzles, and how many solutions, people like to have on a page.
inline constexpr std::array<int, 4> PuzzlesPerPage{1, 2, 4, 6};
inline constexpr std::array<int, 4> SolutionsPerPage{2, 4, 6, 12};

/// What the pages of a booklet look like, whatever the paper.
struct PageDesign {
    static constexpr int UsualPuzzlesPerPage = 4;
    static constexpr int UsualSolutionsPerPage = 12;

    /// At most; there are fewer where a sheet has no room for them.
    int puzzlesPerPage = UsualPuzzlesPerPage;
    int solutionsPerPage = UsualSolutionsPerPage;
    SolutionsAt solutions = SolutionsAt::End;
    /// Above all that stands on a page; empty for none.
    std::string title = {};
    /// Whether there is a line for the name of whoever solves the puzzles, and for the date.
    bool nameAndDate = false;
    /// One puzzle a page, with large numbers and wide lines.
    bool large = false;
    /// Whether captions tell the stars.
    bool stars = false;
    /// Whether each hexagon has its number in the middle.
    bool hexagonNumbers = false;
    /// Whether cells to write in have six small circles in a corner, one for each number that is
    /// possible there.
    bool markGrid = false;

    int puzzlePlaces() const { return large ? 1 : puzzlesPerPage; }
};

/// A title is one line of text: no control character may be in it.
inline Outcome checkTitle(std::string_view title) {
    for (const char c : title)
        if (const auto byte = static_cast<unsigned char>(c); byte < 0x20 || byte == 0x7F)
            return Outcome::failed("the title holds a control character");
    return Outcome::done();
}

/// The designs of the documents that a design asks for: one, or two where the solutions have a file
/// of their own.
inline std::vector<PageDesign> documentsOf(const PageDesign& design) {
    std::vector<PageDesign> documents{design};
    if (design.solutions == SolutionsAt::OwnFile) {
        documents.push_back(design);
        documents[0].solutions = SolutionsAt::None;
        documents[1].solutions = SolutionsAt::Only;
    }
    return documents;
}

} // namespace tessaly
