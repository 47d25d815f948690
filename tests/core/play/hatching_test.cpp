#include "core/play/board_style.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tessaly {
namespace {

/// How far inside the hexagon a point lies; 0 on its border, less than 0 outside.
double depth(int hexagon, Point p) {
    const auto corners = hexagonCorners(hexagon);
    double least = PictureWidth;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const Point a = corners[i];
        const Point b = corners[(i + 1) % corners.size()];
        const double cross = (b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x);
        least = std::min(least, cross / std::hypot(b.x - a.x, b.y - a.y));
    }
    return least;
}

TEST(Hatching, RunsFromBorderToBorderInEveryHexagon) {
    for (int hexagon = 1; hexagon <= HexagonCount; ++hexagon) {
        const auto lines = hatchLines(hexagon);
        EXPECT_GT(lines.size(), 8U);
        double ink = 0;
        for (const auto& [from, to] : lines) {
            EXPECT_NEAR(depth(hexagon, from), 0, 1e-6) << hexagon;
            EXPECT_NEAR(depth(hexagon, to), 0, 1e-6) << hexagon;
            EXPECT_GT(depth(hexagon, {(from.x + to.x) / 2, (from.y + to.y) / 2}), 1) << hexagon;
            EXPECT_NEAR(to.x - from.x, from.y - to.y, 1e-6) << hexagon;
            ink += std::hypot(to.x - from.x, to.y - from.y);
        }
        const Rect bounds = hexagonBounds(hexagon);
        EXPECT_LT(ink, 0.15 * bounds.width() * bounds.height()) << "it swallows ink";
    }
}

} // namespace
} // namespace tessaly
