#include "core/play/board_style.h"

#include <algorithm>

namespace tessaly {
namespace {

/// How far apart the lines meet a level one, in board units; none goes through a corner.
constexpr double Pitch = 10.5;

/// What is the same at every point of a line.
constexpr double levelOf(Point p) {
    return p.x + p.y;
}

/// Where the side from `a` to `b` crosses a level between theirs.
Point crossing(Point a, Point b, double level) {
    const double along = (level - levelOf(a)) / (levelOf(b) - levelOf(a));
    return {a.x + along * (b.x - a.x), a.y + along * (b.y - a.y)};
}

Colour seenOn(Colour fill, Colour signal) {
    constexpr double LeastContrast = 3; // of WCAG 2, for signs and large text
    return contrastRatio(signal, fill) >= LeastContrast ? signal : readableOn(fill);
}

} // namespace

std::vector<std::pair<Point, Point>> hatchLines(int hexagon) {
    const auto corners = hexagonCorners(hexagon);
    const double middle = levelOf(hexagonCentre(hexagon));
    double highest = middle;
    for (Point corner : corners)
        highest = std::max(highest, levelOf(corner));
    const int linesOnASide = static_cast<int>((highest - middle) / Pitch);
    std::vector<std::pair<Point, Point>> lines;
    for (int line = -linesOnASide; line <= linesOnASide; ++line) {
        const double level = middle + line * Pitch;
        std::vector<Point> ends;
        for (std::size_t i = 0; i < corners.size(); ++i) {
            const Point a = corners[i];
            const Point b = corners[(i + 1) % corners.size()];
            if ((levelOf(a) < level) != (levelOf(b) < level))
                ends.push_back(crossing(a, b, level));
        }
        lines.emplace_back(ends.at(0), ends.at(1));
    }
    return lines;
}

BoardStyle boardStyle(const Appearance& appearance) {
    constexpr double WiderWhenSplit = 2;
    const Colour background = appearance.SchemeColours[slot::Background];
    const bool split = appearance.SplitHexas;
    return {
        .border = split ? background : appearance.HexaBorderColour,
        .line = appearance.HexaBorderColour,
        .fill = appearance.HexaFillColour,
        .solid = appearance.HexaBorderColour,
        .fixedNumber = appearance.FixedNumberColour,
        .userNumber = appearance.UserNumberColour,
        .borderWidth = appearance.HexaBorderWidth + (split ? WiderWhenSplit : 0),
    };
}

Colour solutionColour(const Appearance& appearance) {
    return seenOn(appearance.HexaFillColour, appearance.SchemeColours[slot::Green]);
}

Colour markerColour(const Appearance& appearance) {
    return seenOn(appearance.HexaFillColour, appearance.SchemeColours[slot::Red]);
}

BoardStyle paperStyle(const Appearance& appearance, bool large) {
    constexpr double WidestBorder = 10;
    constexpr double Wider = 2;
    return {
        .border = Black,
        .line = Black,
        .fill = White,
        .solid = Black,
        .fixedNumber = Black,
        .userNumber = Black,
        .borderWidth =
            std::min<double>(appearance.PrintLineWidth * (large ? Wider : 1), WidestBorder),
        .lineWidth = large ? 1.5 : 0.6,
        .numberScale = large ? 1.25 : 1,
        .onPaper = true,
    };
}

} // namespace tessaly
