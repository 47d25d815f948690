#include "core/play/board_style.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace tessaly {
namespace {

/// What an entry shows: "n" and the digit, or the six places of the marks.
std::string shown(std::string_view entry) {
    std::string places(MarkPlaces, '.');
    std::string number;
    layOutEntry(
        entry, [&](int digit) { number = "n" + std::to_string(digit); },
        [&](int digit, int place) {
            places[static_cast<std::size_t>(place)] = static_cast<char>('0' + digit);
        });
    return number.empty() ? places : number;
}

TEST(EntryLayout, MarksStandRightAlignedInTwoRows) {
    for (const auto& [entry, places] : {std::pair("", "......"),
                                        {"4", "n4"},
                                        {"0", "n0"},
                                        {"35", "....35"},
                                        {"123456", "123456"},
                                        {"x", "......"}})
        EXPECT_EQ(shown(entry), places);
}

TEST(BoardStyle, SpacedHexagonsAreBorderedByTheBackgroundAndPaperByItsOwnWidth) {
    Appearance appearance;
    appearance.SchemeColours[slot::Background] = RGB(200, 201, 202);
    appearance.HexaBorderColour = RGB(1, 2, 3);
    appearance.SplitHexas = true;
    const BoardStyle split = boardStyle(appearance);
    EXPECT_EQ(split.border, RGB(200, 201, 202));
    EXPECT_GT(split.borderWidth, 2);
    EXPECT_EQ(split.line, RGB(1, 2, 3));
    EXPECT_EQ(split.solid, RGB(1, 2, 3));
    appearance.PrintLineWidth = 3;
    EXPECT_EQ(paperStyle(appearance).borderWidth, 3);
    appearance.PrintLineWidth = std::numeric_limits<int>::max();
    EXPECT_LT(paperStyle(appearance).borderWidth, 20) << "room for the cells is kept";
}

TEST(BoardStyle, SolutionAndMarkerAreSeenOnEveryFill) {
    Appearance appearance; // with green (0, 128, 0) and red (255, 0, 0)
    for (const auto& [fill, solution, marker] : {std::tuple{White, RGB(0, 128, 0), RGB(255, 0, 0)},
                                                 {RGB(0, 128, 0), White, White},
                                                 {RGB(250, 150, 20), Black, Black}}) {
        appearance.HexaFillColour = fill;
        EXPECT_EQ(solutionColour(appearance), solution) << fill;
        EXPECT_EQ(markerColour(appearance), marker) << fill;
    }
}

} // namespace
} // namespace tessaly
